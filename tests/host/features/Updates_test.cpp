// SPDX-License-Identifier: MIT
#include "SmallDocument.h"

namespace
{

using FeatureUpdates = SmallDocument;

TEST_F(FeatureUpdates, PutWhatHoldsAndWhatRefersToAChangedFeatureOutOfDate)
{
  voxhost::Feature& set = New("LoadSet", "Set");
  voxhost::Feature& bolt = New("Bolt", "B");
  voxhost::Feature& referrer = New("Bolt", "R");
  voxhost::Feature& stranger = New("Bolt", "S");
  set.Add("SonsList", bolt);
  referrer.Add("Nut", bolt);
  ASSERT_EQ(document->UpdateAll(), S_OK);
  bolt.Set("Count", std::int32_t{9});
  EXPECT_EQ(Spec(bolt)->IsUpToDate(VOXIDomain_var()), 0);
  EXPECT_EQ(Spec(set)->IsUpToDate(VOXIDomain_var()), 0);
  EXPECT_EQ(Spec(referrer)->IsUpToDate(VOXIDomain_var()), 0);
  EXPECT_EQ(Spec(stranger)->IsUpToDate(VOXIDomain_var()), 1);
}

TEST_F(FeatureUpdates, StampEveryChange)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  const std::int32_t stamp = Spec(bolt)->GetTimeStamp();
  bolt.Set("Count", std::int32_t{9});
  EXPECT_GT(Spec(bolt)->GetTimeStamp(), stamp);
}

TEST_F(FeatureUpdates, RunForWhatAFeatureNeedsFirst)
{
  voxhost::Feature& nut = New("Bolt", "Nut");
  voxhost::Feature& bolt = New("Bolt", "Bolt");
  bolt.Add("Nut", nut);
  std::vector<std::string> order;
  document->OnUpdate("Bolt",
                     [&order](voxhost::Feature& feature)
                     {
                       order.emplace_back(feature.Name().ConvertToChar());
                       return S_OK;
                     });
  EXPECT_EQ(Spec(bolt)->Update(VOXIDomain_var()), S_OK);
  EXPECT_EQ(order, (std::vector<std::string>{"Nut", "Bolt"}));
  EXPECT_EQ(Spec(bolt)->Update(VOXIDomain_var()), S_OK);
  EXPECT_EQ(order.size(), 2u) << "what is up to date is left alone";
}

TEST_F(FeatureUpdates, FailWhenSomethingThatTheFeatureNeedsFails)
{
  voxhost::Feature& nut = New("Bolt", "Nut");
  voxhost::Feature& bolt = New("Bolt", "Bolt");
  bolt.Add("Nut", nut);
  nut.SetUpdateFails(true);
  EXPECT_EQ(Spec(bolt)->Update(VOXIDomain_var()), E_FAIL);
  EXPECT_EQ(Spec(bolt)->IsUpToDate(VOXIDomain_var()), 0);
}

TEST_F(FeatureUpdates, EndForFeaturesThatReferToEachOther)
{
  voxhost::Feature& left = New("Bolt", "L");
  voxhost::Feature& right = New("Bolt", "R");
  left.Add("Nut", right);
  right.Add("Nut", left);
  EXPECT_EQ(document->UpdateAll(), S_OK);
  EXPECT_FALSE(left.IsOutOfDate());
  EXPECT_FALSE(right.IsOutOfDate());
}

TEST_F(FeatureUpdates, MayRemoveTheVeryFeatureThatIsUpdated)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  document->OnUpdate("Bolt",
                     [this](voxhost::Feature& feature)
                     {
                       document->Remove(feature);
                       return S_OK;
                     });
  EXPECT_EQ(document->Update(bolt), E_FAIL);
  EXPECT_EQ(document->NumberOfFeatures(), 0u);
}

TEST_F(FeatureUpdates, AreCalledForByAMarkAndNoMoreOnceItIsTakenBack)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  ASSERT_EQ(document->UpdateAll(), S_OK);
  VOXISpecObject_var spec = Spec(bolt);
  EXPECT_EQ(VOXSpecObjServices::MarkForRebuild(spec, 1), S_OK);
  EXPECT_EQ(spec->IsUpToDate(VOXIDomain_var()), 0);
  EXPECT_EQ(VOXSpecObjServices::MarkForRebuild(spec, 0), S_OK);
  EXPECT_EQ(spec->IsUpToDate(VOXIDomain_var()), 1);
}

} // namespace
