// SPDX-License-Identifier: MIT
#include "SmallDocument.h"

namespace
{

using FeatureAttributes = SmallDocument;

TEST_F(FeatureAttributes, InheritTheirValuesFromTheStartUpUntilTheyAreWritten)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  const VOXISpecAttrKey_var key = Key(bolt, "Length");
  EXPECT_EQ(Access(bolt)->GetDouble(key, 0), 2.5);
  EXPECT_EQ(VOXSpecIsLocalValue(Spec(bolt), key), 1);
  EXPECT_EQ(Access(bolt)->SetDouble(key, 3.5, 0), S_OK);
  EXPECT_EQ(Access(bolt)->GetDouble(key, 0), 3.5);
  EXPECT_EQ(VOXSpecIsLocalValue(Spec(bolt), key), 0);
}

TEST_F(FeatureAttributes, ReadEveryType)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  EXPECT_EQ(Access(bolt)->GetInteger(Key(bolt, "Count"), 0), 4);
  EXPECT_EQ(Access(bolt)->GetBoolean(Key(bolt, "Tight"), 0), 1);
  EXPECT_TRUE(Access(bolt)->GetString(Key(bolt, "Grade"), 0) == "8.8");
  EXPECT_EQ(Access(bolt)->GetDouble(Key(bolt, "Steps"), 2), 2.);
}

TEST_F(FeatureAttributes, AnswerZeroForAWrongTypeOrIndex)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  EXPECT_EQ(Access(bolt)->GetInteger(Key(bolt, "Length"), 0), 0);
  EXPECT_EQ(Access(bolt)->GetDouble(Key(bolt, "Steps"), 0), 0.);
  EXPECT_EQ(Access(bolt)->GetDouble(Key(bolt, "Steps"), 3), 0.);
  EXPECT_EQ(Access(bolt)->GetDouble(Key(bolt, "Length"), 1), 0.);
}

TEST_F(FeatureAttributes, RefuseAWriteOfAWrongTypeOrIndexAndStayAsTheyWere)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  EXPECT_EQ(Access(bolt)->SetInteger(Key(bolt, "Length"), 1, 0), E_FAIL);
  EXPECT_EQ(Access(bolt)->SetDouble(Key(bolt, "Steps"), 9., 3), E_FAIL);
  EXPECT_EQ(Access(bolt)->PutInteger(Key(bolt, "Steps"), 1, 1), E_FAIL);
  EXPECT_FALSE(bolt.IsLocal(bolt.IndexOf("Length")));
  EXPECT_FALSE(bolt.IsLocal(bolt.IndexOf("Steps")));
}

TEST_F(FeatureAttributes, CopyAnInheritedListBeforeOneElementIsWritten)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  EXPECT_EQ(Access(bolt)->SetDouble(Key(bolt, "Steps"), 9., 0), S_OK);
  EXPECT_EQ(Access(bolt)->GetListSize(Key(bolt, "Steps")), 3);
  EXPECT_EQ(Access(bolt)->GetDouble(Key(bolt, "Steps"), 1), 1.);
  voxhost::Feature& other = New("Bolt", "C");
  EXPECT_EQ(Access(other)->GetListSize(Key(other, "Steps")), 2);
}

TEST_F(FeatureAttributes, AreLocalAndEmptyAfterAReset)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  EXPECT_EQ(Access(bolt)->Reset(Key(bolt, "Steps")), S_OK);
  EXPECT_EQ(Access(bolt)->GetListSize(Key(bolt, "Steps")), 0);
  EXPECT_EQ(VOXSpecIsLocalValue(Spec(bolt), Key(bolt, "Steps")), 0);
  EXPECT_EQ(Access(bolt)->Reset(Key(bolt, "Grade")), S_OK);
  EXPECT_TRUE(Access(bolt)->GetString(Key(bolt, "Grade"), 0) == "");
}

TEST_F(FeatureAttributes, BecomeAListOfIntegersWhenOneIsWrittenAndSingleAgainAfterAReset)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  VOXRawCollint tags;
  tags.Append(7);
  tags.Append(8);
  EXPECT_EQ(Access(bolt)->SetIntegerList(Key(bolt, "ExplicitTag"), tags), S_OK);
  EXPECT_EQ(Key(bolt, "ExplicitTag")->GetType(), static_cast<int>(VOXSpecList));
  EXPECT_EQ(Key(bolt, "ExplicitTag")->GetElementType(), static_cast<int>(VOXSpecInteger));
  EXPECT_EQ(Access(bolt)->GetInteger(Key(bolt, "ExplicitTag"), 2), 8);
  EXPECT_EQ(Access(bolt)->Reset(Key(bolt, "ExplicitTag")), S_OK);
  EXPECT_EQ(Key(bolt, "ExplicitTag")->GetType(), static_cast<int>(VOXSpecInteger));
}

TEST_F(FeatureAttributes, HaveNoKeyForANameThatTheTypeLacks)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  EXPECT_EQ(Access(bolt)->GetAttrKey("NoSuchAttribute"), nullptr);
}

TEST_F(FeatureAttributes, ListTheirKeysInTheOrderOfTheDeclaration)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  const std::unique_ptr<VOXListValVOXISpecAttrKey_var> keys(Access(bolt)->ListAttrKeys());
  ASSERT_EQ(keys->Size(), static_cast<int>(bolt.Type().Attributes().size()));
  EXPECT_TRUE((*keys)[1]->GetName() == "Alias");
  EXPECT_TRUE((*keys)[keys->Size()]->GetName() == "Nut");
}

TEST_F(FeatureAttributes, ListFeaturesAsTheInterfaceThatIsAskedFor)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  const std::unique_ptr<VOXListValVOXBaseUnknown_var> sons(
      Access(bolt)->ListSpecObjects(Key(bolt, "SonsList"), "VOXISamBasicComponent"));
  ASSERT_NE(sons, nullptr);
  ASSERT_EQ(sons->Size(), 1);
  EXPECT_EQ(Access(bolt)->ListSpecObjects(Key(bolt, "Length"), nullptr), nullptr);
}

} // namespace
