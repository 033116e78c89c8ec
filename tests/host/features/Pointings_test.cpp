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

} // namespace
