// SPDX-License-Identifier: MIT
#include "FeatureModeler/VOXSpecPointing.h"
#include "SmallDocument.h"

namespace
{

class FeaturePointings : public SmallDocument
{
protected:
  // The attributes that refer to a feature: "name of the feature.attribute".
  std::vector<std::string> Of(voxhost::Feature& iFeature)
  {
    VOXListPtrVOXSpecPointing pointings;
    EXPECT_EQ(Spec(iFeature)->GetPointings(pointings), S_OK);
    std::vector<std::string> names;
    for (int i = 1; i <= pointings.Size(); ++i)
    {
      const std::unique_ptr<VOXSpecPointing> pointing(pointings[i]);
      const VOXISpecAttrAccess_var access = pointing->GetAccess();
      const VOXISpecAttrKey_var key = pointing->GetKey();
      names.push_back(std::string(voxhost::Feature::Of(access)->Name().ConvertToChar()) + "." +
                      key->GetName().ConvertToChar());
    }
    return names;
  }
};

TEST_F(FeaturePointings, NameEveryAttributeAsOftenAsItRefersAndTheFathersFirst)
{
  voxhost::Feature& set = New("LoadSet", "Set");
  voxhost::Feature& nut = New("Bolt", "Nut");
  voxhost::Feature& bolt = New("Bolt", "Bolt");
  set.Add("SonsList", nut);
  bolt.Add("Nut", nut);
  bolt.Add("Supports", nut);
  bolt.Add("Supports", nut);
  EXPECT_EQ(Of(nut), (std::vector<std::string>{"Set.SonsList", "Bolt.Supports", "Bolt.Supports", "Bolt.Nut"}));
}

TEST_F(FeaturePointings, GoWithTheReferenceAndWithTheFeatureThatRefers)
{
  voxhost::Feature& nut = New("Bolt", "Nut");
  voxhost::Feature& bolt = New("Bolt", "Bolt");
  voxhost::Feature& other = New("Bolt", "Other");
  bolt.Add("Nut", nut);
  other.Add("Nut", nut);
  bolt.Add("Nut", other);
  EXPECT_EQ(Of(nut), (std::vector<std::string>{"Other.Nut"}));
  document->Remove(other);
  EXPECT_TRUE(Of(nut).empty());
}

TEST_F(FeaturePointings, AreEmptiedWhenTheFeatureIsRemoved)
{
  voxhost::Feature& nut = New("Bolt", "Nut");
  voxhost::Feature& bolt = New("Bolt", "Bolt");
  bolt.Add("Nut", nut);
  bolt.Add("Supports", nut);
  document->Remove(nut);
  EXPECT_TRUE(bolt.Features("Nut").empty());
  EXPECT_TRUE(bolt.Features("Supports").empty());
}

TEST_F(FeaturePointings, AreRedirectedAtTheSamePlaceOfAList)
{
  voxhost::Feature& old = New("Bolt", "Old");
  voxhost::Feature& fresh = New("Bolt", "New");
  voxhost::Feature& bolt = New("Bolt", "Bolt");
  for (voxhost::Feature* const support : {&New("Bolt", "A"), &New("Bolt", "B"), &old, &New("Bolt", "D")})
    bolt.Add("Supports", *support);
  EXPECT_EQ(VOXSpecPubServices::UpgradeSpecObjectAttribute(Access(bolt), Key(bolt, "Supports"), Spec(fresh), 3), S_OK);
  EXPECT_EQ(bolt.PositionOf(bolt.IndexOf("Supports"), fresh), 3);
  EXPECT_EQ(bolt.PositionOf(bolt.IndexOf("Supports"), old), 0);
  EXPECT_EQ(VOXSpecPubServices::UpgradeSpecObjectAttribute(Access(bolt), Key(bolt, "Supports"), Spec(fresh), 9),
            E_FAIL);
}

TEST_F(FeaturePointings, OfAHundredThousandAttributesAreKnownWithoutLookingThroughTheDocument)
{
  voxhost::Feature& nut = New("Bolt", "Nut");
  for (int i = 0; i < 100000; ++i)
    document->New("AnalysisMass", "M", nullptr, voxhost::Components::kNone)->Add("Supports", nut);
  EXPECT_EQ(nut.Referrers().size(), 100000u);
  document->Remove(nut);
}

TEST_F(FeaturePointings, AreKnownWhileManyComeAndGoInAnyOrder)
{
  constexpr std::size_t kUsers = 300;
  voxhost::Feature& nut = New("Bolt", "Nut");
  voxhost::Feature& other = New("Bolt", "Other");
  std::vector<voxhost::Feature*> users;
  for (std::size_t i = 0; i < kUsers; ++i)
    users.push_back(&New("Bolt", "User"));
  std::vector<bool> refers(kUsers, false);
  std::uint32_t random = 1;
  for (int step = 0; step < 6000; ++step)
  {
    random = random * 1664525u + 1013904223u;
    const std::size_t user = (random >> 8) % (step % 2000 < 1200 ? kUsers : kUsers / 20); // at times only a few
    refers[user] = (random >> 24) % 3 != 0 && step < 5000;
    users[user]->Add("Nut", refers[user] ? nut : other);
  }
  std::vector<const voxhost::Feature*> expected;
  for (std::size_t i = 0; i < kUsers; ++i)
    if (refers[i])
      expected.push_back(users[i]);
  std::vector<const voxhost::Feature*> known;
  for (const voxhost::Referrer& referrer : nut.Referrers())
  {
    known.push_back(referrer.feature);
    EXPECT_EQ(referrer.count, 1);
  }
  EXPECT_EQ(known, expected);
  for (voxhost::Feature* const user : users)
    user->Add("Nut", other);
  EXPECT_TRUE(nut.Referrers().empty());
  EXPECT_EQ(other.Referrers().size(), kUsers);
}

} // namespace
