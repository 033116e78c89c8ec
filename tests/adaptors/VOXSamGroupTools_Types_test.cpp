// SPDX-License-Identifier: MIT
#include "VOXSamGroupTools.h"

#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"
#include "tests/adaptors/Reported.h"
#include "tests/support/CallLog.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ErrorLog;
using voxhost::Faults;

namespace
{

const std::string kTools = SourceOf("VOXSamGroupTools");
constexpr int kGarbage = 4711;
constexpr auto kNode = static_cast<VOXSamValue>(8);
constexpr auto kElement = static_cast<VOXSamValue>(9);

class VOXSamGroupToolsTypes : public testing::Test
{
protected:
  VOXSamGroupToolsTypes() { ResetErrors(); }
  ~VOXSamGroupToolsTypes() override
  {
    EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
    EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1);
    ResetErrors();
  }

  HRESULT Ask(VOXSamValue iValue, const char* iKeyword) { return Ask(&model, iValue, iKeyword); }
  HRESULT Ask(VOXAnalysisExplicitModel* iModel, VOXSamValue iValue, const char* iKeyword)
  {
    type = kGarbage;
    const HRESULT result = VOXSamGroupTools::GetExplicitGroupType(iModel, iValue, iKeyword, type);
    Faults::Disarm();
    return result;
  }

  static int NumberOf(const char* iName) { return voxhost::ExplicitRules::Default()->NumberOf(iName); }

  voxhost::ExplicitModel model;
  int type = kGarbage;
};

} // namespace

TEST_F(VOXSamGroupToolsTypes, EachKeywordHasItsGroupType)
{
  EXPECT_EQ(Ask(kNode, "NODE"), S_OK);
  EXPECT_EQ(type, NumberOf("NODE_GROUP"));
  EXPECT_EQ(Ask(kElement, "EDGE"), S_OK);
  EXPECT_EQ(type, NumberOf("EDGE_GROUP"));
  EXPECT_EQ(Ask(kElement, "FACE"), S_OK);
  EXPECT_EQ(type, NumberOf("FACE_GROUP"));
  EXPECT_EQ(Ask(kElement, "ELEMENT"), S_OK);
  EXPECT_EQ(type, NumberOf("ELEMENT_GROUP"));
  EXPECT_TRUE(ErrorLog::Reports().empty());
}

// Kept: for value 8 an unknown keyword is no error, unlike for value 9.
TEST_F(VOXSamGroupToolsTypes, AnUnknownKeywordOfNodesIsNoErrorAndHasNoType)
{
  for (const char* const keyword : {"FACE", "node", "NODE_GROUP", ""})
  {
    CallLog log;
    EXPECT_EQ(Ask(kNode, keyword), S_OK);
    EXPECT_EQ(type, VOXSamPhysicalTypeNone);
    EXPECT_EQ(log.Count("VOXAnalysisExplicitRulesData"), 0) << "the rules are not asked for a number";
  }
  EXPECT_TRUE(ErrorLog::Reports().empty());
}

TEST_F(VOXSamGroupToolsTypes, AnUnknownKeywordOfElementsIsReportedByItself)
{
  for (const char* const keyword : {"NODE", "face", "ELEMENTS", ""})
  {
    ResetErrors();
    EXPECT_EQ(Ask(kElement, keyword), E_FAIL);
    EXPECT_EQ(type, VOXSamPhysicalTypeNone);
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorKeyword, keyword, kTools}}));
  }
}

TEST_F(VOXSamGroupToolsTypes, TheRejectedKeywordCanBeReadAfterItsOwnerIsGone)
{
  ErrorLog::SetResetsPendingError(false);
  for (const std::string keyword : {"a keyword that lives on the heap", "another one in place of it"})
  {
    Ask(kElement, std::string(keyword).c_str());
    std::vector<VOXString> takers; // of the memory that the argument gave back
    for (int i = 0; i < 8; ++i)
      takers.emplace_back(std::string(keyword.size(), '#').c_str());
    ASSERT_NE(ErrorDepthHandler::_c_err_, nullptr);
    EXPECT_EQ(ErrorDepthHandler::_c_err_, keyword);
  }
}

TEST_F(VOXSamGroupToolsTypes, AnyOtherKindIsReportedByItsNumberEvenWithAValidKeyword)
{
  for (const int value : {7, 10, 0, -1})
  {
    ResetErrors();
    EXPECT_EQ(Ask(static_cast<VOXSamValue>(value), "NODE"), E_FAIL);
    EXPECT_EQ(type, VOXSamPhysicalTypeNone);
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorEnumValue, "(null)", kTools, 1, value}}));
  }
}

TEST_F(VOXSamGroupToolsTypes, ANullModelIsReportedWhateverTheKindAndKeyword)
{
  for (const int value : {8, 9, 7})
    for (const char* const keyword : {"NODE", "nonsense"})
    {
      ResetErrors();
      EXPECT_EQ(Ask(nullptr, static_cast<VOXSamValue>(value), keyword), E_FAIL);
      EXPECT_EQ(type, VOXSamPhysicalTypeNone);
      EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorMissingObject, "iModel", kTools}}));
    }
}

TEST_F(VOXSamGroupToolsTypes, AModelWithoutRulesIsReportedBeforeTheKindIsLookedAt)
{
  voxhost::ExplicitModel lawless(nullptr);
  EXPECT_EQ(Ask(&lawless, static_cast<VOXSamValue>(7), "NODE"), E_FAIL);
  EXPECT_EQ(type, VOXSamPhysicalTypeNone);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorMissingObject, "RulesData", kTools}}));
}

TEST_F(VOXSamGroupToolsTypes, AnUnknownGroupTypeIsPropagated)
{
  const std::vector<voxhost::PhysicalTypeRule> table{{"SOMETHING", VOXSamValueEntity, {}}};
  voxhost::ExplicitModel other(std::make_shared<const voxhost::ExplicitRules>(table));
  for (const auto& [value, keyword] : {std::pair(kNode, "NODE"), std::pair(kElement, "EDGE"),
                                       std::pair(kElement, "FACE"), std::pair(kElement, "ELEMENT")})
  {
    ResetErrors();
    EXPECT_EQ(Ask(&other, value, keyword), E_FAIL);
    EXPECT_EQ(type, VOXSamPhysicalTypeNone);
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kTools}}));
  }
}

TEST_F(VOXSamGroupToolsTypes, APropagatedErrorLeavesAPendingOne)
{
  const PendingError pending;
  Faults::FailOperation("VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber", 1, false);
  EXPECT_EQ(Ask(kNode, "NODE"), E_FAIL);
  EXPECT_TRUE(PendingError::Stands());
  EXPECT_EQ(AllReported(), (std::vector<Reported>{PendingError::AsReported(1)}));
}

TEST_F(VOXSamGroupToolsTypes, EveryOtherErrorReplacesAPendingOne)
{
  {
    const PendingError pending;
    Ask(nullptr, kNode, "NODE");
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorMissingObject, "iModel", kTools}}));
  }
  {
    const PendingError pending;
    Ask(kElement, "NODE");
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorKeyword, "NODE", kTools}}));
  }
  const PendingError pending;
  Ask(static_cast<VOXSamValue>(7), "NODE");
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorEnumValue, "(null)", kTools, 1, 7}}));
  EXPECT_EQ(ErrorDepthHandler::_c_err_, nullptr);
  EXPECT_EQ(ErrorDepthHandler::_i_err_, 7);
}

TEST_F(VOXSamGroupToolsTypes, AsksTheRulesByNameOnce)
{
  CallLog log;
  Ask(kElement, "FACE");
  EXPECT_EQ(log.All(),
            (Calls{"VOXAnalysisExplicitModel::GetRulesData", "VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber"}));
}

TEST_F(VOXSamGroupToolsTypes, SurvivesEveryFailure)
{
  for (const auto& [value, keyword] : {std::pair(kNode, "NODE"), std::pair(kElement, "ELEMENT")})
    Torture("GetExplicitGroupType")
        .Reports(VOXSamErrorMissingObject, "RulesData", "VOXSamGroupTools")
        .Reports(VOXSamErrorPropagated, "", "VOXSamGroupTools")
        .Run(
            [&, value = value, keyword = keyword](TortureRun& ioRun)
            {
              int given = kGarbage;
              ioRun.Call([&] { return VOXSamGroupTools::GetExplicitGroupType(&model, value, keyword, given); });
              EXPECT_EQ(given == VOXSamPhysicalTypeNone, ioRun.Failed());
            });
}
