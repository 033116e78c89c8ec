// SPDX-License-Identifier: MIT
#include "SmallModel.h"

#include <algorithm>

namespace
{

using voxhost::ExplicitRules;

class ExplicitRulesData : public SmallModel
{
protected:
  const VOXAnalysisExplicitRulesData& rules = *model->GetRulesData();
};

TEST_F(ExplicitRulesData, NumbersAKnownName)
{
  int number = 0;
  EXPECT_EQ(rules.GetPhysicalTypeNumber("NODE_GROUP", number), S_OK);
  EXPECT_EQ(number, ExplicitRules::Default()->NumberOf("NODE_GROUP"));
  EXPECT_GT(number, static_cast<int>(VOXSamPhysicalTypeImportedMass));
}

TEST_F(ExplicitRulesData, FailsForAnUnknownNameAndLeavesTheNumber)
{
  int number = 77;
  EXPECT_EQ(rules.GetPhysicalTypeNumber("NO_SUCH_TYPE", number), E_FAIL);
  EXPECT_EQ(rules.GetPhysicalTypeNumber(nullptr, number), E_FAIL);
  EXPECT_EQ(number, 77);
}

TEST_F(ExplicitRulesData, KnowsTheFixedTypesUnderTheirNumbers)
{
  int number = 0;
  EXPECT_EQ(rules.GetPhysicalTypeNumber("IMPORTED_LOAD", number), S_OK);
  EXPECT_EQ(number, static_cast<int>(VOXSamPhysicalTypeImportedLoad));
}

TEST_F(ExplicitRulesData, GivesTheCategoryOfAType)
{
  VOXSamValue category = VOXSamValueUnknown;
  EXPECT_EQ(rules.GetPhysicalTypeCategory(ExplicitRules::Default()->NumberOf("LOAD_SET"), category), S_OK);
  EXPECT_EQ(category, VOXSamValueLoadSet);
}

TEST_F(ExplicitRulesData, FailsForTheCategoryOfAnUnknownTypeAndLeavesIt)
{
  VOXSamValue category = VOXSamValueUnknown;
  EXPECT_EQ(rules.GetPhysicalTypeCategory(0, category), E_FAIL);
  EXPECT_EQ(rules.GetPhysicalTypeCategory(-3, category), E_FAIL);
  EXPECT_EQ(rules.GetPhysicalTypeCategory(9999, category), E_FAIL);
  EXPECT_EQ(category, VOXSamValueUnknown);
}

TEST_F(ExplicitRulesData, ListsTheTypesAllowedUnderATypeWithTheirSigns)
{
  int count = 0;
  int* types = nullptr;
  ASSERT_EQ(rules.GetPhysicalTypeAuthorizedChildren(ExplicitRules::Default()->NumberOf("GROUP"), count, types), S_OK);
  ASSERT_EQ(count, 4);
  EXPECT_EQ(types[0], -ExplicitRules::Default()->NumberOf("NODE_GROUP"));
  EXPECT_EQ(types[3], -ExplicitRules::Default()->NumberOf("ELEMENT_GROUP"));
  delete[] types;
}

TEST_F(ExplicitRulesData, GivesNoArrayForATypeWithoutChildren)
{
  int count = 7;
  int* types = nullptr;
  EXPECT_EQ(rules.GetPhysicalTypeAuthorizedChildren(ExplicitRules::Default()->NumberOf("NODE_GROUP"), count, types),
            S_OK);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(types, nullptr);
}

TEST(ExplicitRulesTable, NamesOnlyChildrenThatItDeclares)
{
  const ExplicitRules rules(ExplicitRules::DefaultTable());
  for (const voxhost::PhysicalTypeRule& rule : ExplicitRules::DefaultTable())
    for (const char* const child : rule.children)
      EXPECT_NE(rules.NumberOf(child[0] == '-' ? child + 1 : child), static_cast<int>(VOXSamPhysicalTypeNone)) << child;
}

TEST(ExplicitModelWithoutRules, AnswersNoRulesData)
{
  const voxhost::ExplicitModel model(nullptr);
  EXPECT_EQ(model.GetRulesData(), nullptr);
}

} // namespace
