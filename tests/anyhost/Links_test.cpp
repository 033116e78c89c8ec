// SPDX-License-Identifier: MIT
// From objects of the model back to features, implicit axes, selection lists, and both sides of a connection.
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "AnalysisInterfaces/VOXISamConnectionDesign.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "AnalysisInterfaces/VOXISamSelectionList.h"
#include "VOXESamConnectionDesignAdaptor.h"
#include "VOXESamEnumManager.h"
#include "VOXSamToolsForExplicitation.h"
#include "tests/anyhost/AnyHost.h"

namespace anyhost
{
namespace
{

// "Mass" needs a mass, "Both" a mass and a spring.
class Choice : public VOXESamEnumManager
{
public:
  HRESULT GetResult(const VOXUnicodeString& iValue, VOXListValVOXUnicodeString& oTypes,
                    VOXListValVOXUnicodeString& oSecond, VOXListValVOXBaseUnknown_var& oKinds) override
  {
    const auto need = [&](const char* iType)
    {
      oTypes.Append(iType);
      oSecond.Append(VOXUnicodeString());
      oKinds.Append(NULL_var);
    };
    if (iValue == "Mass" || iValue == "Both")
      need("Mass");
    if (iValue == "Both")
      need("Spring");
    if (isTorn)
      oTypes.Append("Mass");
    return S_OK;
  }
  static inline bool isTorn = false; // lists of different sizes
};

using Names = std::vector<std::string>;

class LinksOnAnyHost : public AnyHost
{
protected:
  LinksOnAnyHost()
  {
    VOXTieLateType<VOXISamSelectionList, VOXTieSelectionList<Choice>>("SAMListManager");
    VOXTieLateType<VOXISamConnectionDesign, VOXTieConnectionDesign<VOXESamConnectionDesignAdaptor>>(
        "ConnectionUnderTest");
    Choice::isTorn = false;
  }

  std::string FeatureBehind(const VOXAnalysisExplicitParent& iObject)
  {
    VOXISpecObject* const found =
        VOXSamToolsForExplicitation::GetParentFeature(iObject, VOXIContainer_var(world->Container()));
    const std::string name = NameOf(found);
    if (found != nullptr)
      found->Release();
    return name;
  }

  // The tags that a feature lists.
  static std::vector<int> Tags(VOXBaseUnknown* iFeature)
  {
    VOXRawCollint tags;
    EXPECT_EQ(VOXISamExplicit_var(iFeature)->ListTags(tags), S_OK);
    std::vector<int> listed;
    for (int i = 1; i <= tags.Size(); ++i)
      listed.push_back(tags[i]);
    return listed;
  }

  static int TagOf(const VOXAnalysisExplicitChild& iObject)
  {
    int tag = 0;
    EXPECT_EQ(iObject.GetTag(tag), S_OK);
    return tag;
  }
};

TEST_F(LinksOnAnyHost, AnObjectLeadsToTheFeatureThatProducedIt)
{
  const VOXAnalysisExplicitEntity group = world->NewObject(NULL_exp, "GROUP");
  New("GroupUnderTest", "another");
  Link(New("GroupUnderTest", "group"), group);
  EXPECT_EQ(FeatureBehind(group), "group");
  EXPECT_EQ(FeatureBehind(world->NewObject(NULL_exp, "GROUP")), "");
}

TEST_F(LinksOnAnyHost, ANodeLeadsToTheFeatureOfItsMesh)
{
  const VOXAnalysisExplicitEntity mesh = world->NewObject(NULL_exp, "MESH");
  world->FillMesh(mesh, 3, 2);
  Link(New("MeshUnderTest", "mesh"), mesh);
  EXPECT_EQ(FeatureBehind(VOXAnalysisExplicitParent(world->Node(2))), "mesh");
  EXPECT_EQ(FeatureBehind(VOXAnalysisExplicitParent(world->Element(1))), "mesh");
}

TEST_F(LinksOnAnyHost, AnImplicitAxisIsLoggedWithTheGlobalFrameAndWhatStandsInTheSet)
{
  const VOXAnalysisExplicitEntity setObject = world->NewObject(NULL_exp, "AXIS_SET");
  const VOXAnalysisExplicitAxis known(world->NewObject(setObject, "AXIS"));
  const VOXAnalysisExplicitAxis logged(world->NewObject(NULL_exp, "AXIS"));
  VOXBaseUnknown* const set = New("AxisSet", "axes");
  Hold(New("ModelUnderTest", "model"), set);
  Link(set, setObject);
  const VOXISamAnalysisSet_var spSet(set);

  EXPECT_EQ(VOXSamToolsForExplicitation::LogImplicitAxis(spSet, logged), S_OK);
  VOXISpecObject_var spEntity;
  EXPECT_EQ(spSet->GetMemberByName("AllImplicitAxis", spEntity, 0), S_OK);
  ASSERT_FALSE(!spEntity);
  VOXAnalysisExplicitAxis global;
  EXPECT_EQ(world->Model()->GetGlobalRefFrame(global), S_OK);
  EXPECT_EQ(Tags(spEntity), (std::vector<int>{TagOf(known), TagOf(global), TagOf(logged)}));

  world->SetStatus(known, VOXSamStatusDropped);
  EXPECT_EQ(VOXSamToolsForExplicitation::LogImplicitAxis(spSet, logged), S_OK);
  EXPECT_EQ(Tags(spEntity), (std::vector<int>{TagOf(global), TagOf(logged)}));
  EXPECT_EQ(NamesIn(set, "SonsList"), Names{"AllImplicitAxis"});
}

TEST_F(LinksOnAnyHost, WithoutASetNoAxisIsLogged)
{
  EXPECT_EQ(VOXSamToolsForExplicitation::LogImplicitAxis(nullptr, VOXAnalysisExplicitAxis()), E_FAIL);
  ExpectFirstReport(VOXSamErrorMissingObject, "piAxisSet", "VOXSamToolsForExplicitation");
}

TEST_F(LinksOnAnyHost, ASelectionMakesWhatItNeedsAndRemovesWhatItDoesNot)
{
  VOXBaseUnknown* const choice = New("SAMListManager", "choice");
  const VOXISamSelectionList_var spChoice(choice);
  EXPECT_EQ(spChoice->SetSelected(3), S_OK);
  EXPECT_EQ(NamesIn(choice, "SonsList"), (Names{"Mass", "Spring"}));
  EXPECT_EQ(spChoice->SetSelected(2), S_OK);
  EXPECT_EQ(NamesIn(choice, "SonsList"), (Names{"Mass"}));
  VOXUnicodeString value;
  int index = -1;
  EXPECT_EQ(spChoice->GetSelected(value, index), S_OK);
  EXPECT_EQ(index, 2);
  EXPECT_STREQ(value.ConvertToChar(), "Mass");
}

TEST_F(LinksOnAnyHost, AnEnumerationIsChosenFromItsList)
{
  const VOXISamSelectionList_var spChoice(New("SAMListManager", "choice"));
  VOXSamSelectionMode mode = VOXSamSelectFree;
  EXPECT_EQ(spChoice->GetMode(mode), S_OK);
  EXPECT_EQ(mode, VOXSamSelectFromList);
  VOXListValVOXUnicodeString list;
  EXPECT_EQ(spChoice->GetList(list), S_OK);
  ASSERT_EQ(list.Size(), 3);
  EXPECT_STREQ(list[3].ConvertToChar(), "Both");
}

TEST_F(LinksOnAnyHost, ANeedWithoutItsQualifierIsAProgrammingError)
{
  const VOXISamSelectionList_var spChoice(New("SAMListManager", "choice"));
  EXPECT_EQ(FatalTextOf(
                [&]
                {
                  Choice::isTorn = true;
                  spChoice->SetSelected(1);
                }),
            "AssertionFailed:size==iFeatureType.Size() && iListOfVOXICkeType.Size()==size");
}

TEST_F(LinksOnAnyHost, EachSideOfAConnectionIsWhatItsDesignerStandsOn)
{
  VOXBaseUnknown* const designer1 = New("DesignerUnderTest", "designer 1");
  VOXBaseUnknown* const designer2 = New("DesignerUnderTest", "designer 2");
  Refer(designer1, "Supports", New("Mass", "plate"));
  Refer(designer2, "Supports", New("Mass", "bolt"));
  Refer(designer2, "Designers", New("Mass", "mesh of the bolt"));
  VOXBaseUnknown* const connection = New("ConnectionUnderTest", "connection");
  Refer(connection, "SAMConnectionDesigner1", designer1);
  Refer(connection, "SAMConnectionDesigner2", designer2);

  VOXListValVOXBaseUnknown_var supports1;
  VOXListValVOXBaseUnknown_var supports2;
  VOXListValVOXISpecObject_var* designers1 = nullptr;
  VOXListValVOXISpecObject_var* designers2 = nullptr;
  const VOXISamConnectionDesign_var spDesign(connection);
  EXPECT_EQ(spDesign->GetConnectionDesigners(supports1, designers1, supports2, designers2), S_OK);
  ASSERT_EQ(supports1.Size(), 1);
  ASSERT_EQ(supports2.Size(), 1);
  EXPECT_EQ(NameOf(supports1[1]), "plate");
  EXPECT_EQ(NameOf(supports2[1]), "bolt");
  EXPECT_EQ(designers1, nullptr);
  ASSERT_NE(designers2, nullptr);
  EXPECT_EQ(NameOf((*designers2)[1]), "mesh of the bolt");
  delete designers2;
}

TEST_F(LinksOnAnyHost, ASideWithoutDesignerIsNoFailure)
{
  VOXListValVOXBaseUnknown_var supports1;
  VOXListValVOXBaseUnknown_var supports2;
  const VOXISamConnectionDesign_var spDesign(New("ConnectionUnderTest", "connection"));
  EXPECT_EQ(spDesign->GetConnectedSupports(supports1, supports2), S_FALSE);
  EXPECT_EQ(supports1.Size() + supports2.Size(), 0);
}

} // namespace
} // namespace anyhost
