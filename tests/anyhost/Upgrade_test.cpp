// SPDX-License-Identifier: MIT
// Features of older documents: what their start-ups have and they lack, and instances that move to another start-up.
#include "AnalysisInterfaces/VOXISamFeatureUpgrade.h"
#include "AnalysisInterfaces/VOXISamUpgradeContainer.h"
#include "AnalysisInterfaces/VOXSamRattrapMode.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "ObjectModeler/VOXIAlias.h"
#include "VOXEAnalysisUpgrade.h"
#include "VOXEAnalysisUpgradeContainer.h"
#include "tests/anyhost/AnyHost.h"

namespace anyhost
{
namespace
{

// Moves the feature that it extends to the start-up "SuccessorUnderTest".
class Rerouter final : public VOXEAnalysisUpgradeContainer
{
public:
  HRESULT UpgradeContainer() override
  {
    made = RerouteInstance(VOXISpecObject_var(GetImpl()), "SuccessorUnderTest");
    return made == nullptr ? E_FAIL : S_OK;
  }
  static inline VOXISpecObject* made = nullptr; // with the reference for the caller
};

using Names = std::vector<std::string>;

class UpgradeOnAnyHost : public AnyHost
{
protected:
  UpgradeOnAnyHost()
  {
    VOXTieLateType<VOXISamFeatureUpgrade, VOXTieFeatureUpgrade<VOXEAnalysisUpgrade>>("UpgradedUnderTest");
    VOXExtendLateType<VOXISamUpgradeContainer, Rerouter>("UpgradedUnderTest");
    feature = New("UpgradedUnderTest", "old");
    spUpgrade = feature;
  }

  // Takes a component out, as if the feature were of a release that did not have it yet.
  static void Forget(VOXBaseUnknown* iFeature, const char* iAttribute, int iPosition)
  {
    const AttributeOf attribute(iFeature, iAttribute);
    VOXISpecObject* const component = attribute.access->GetSpecObject(attribute.key, iPosition);
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(VOXISpecObject_var(iFeature)->RemoveComponent(VOXBaseUnknown_var(component), 0), S_OK);
    component->Release();
  }

  VOXBaseUnknown* feature;
  VOXISamFeatureUpgrade_var spUpgrade;
};

TEST_F(UpgradeOnAnyHost, AnInstanceHasWhatItsStartUpHas)
{
  EXPECT_EQ(NamesIn(feature, "SonsList"), (Names{"Pressure", "Height"}));
  EXPECT_FALSE(spUpgrade->NeedToUpgrade());
}

TEST_F(UpgradeOnAnyHost, AMissingComponentIsMadeAgainFromTheStartUp)
{
  Forget(feature, "SonsList", 1);
  EXPECT_TRUE(spUpgrade->NeedToUpgrade());
  EXPECT_EQ(spUpgrade->Upgrade(), S_OK);
  EXPECT_EQ(NamesIn(feature, "SonsList"), (Names{"Height", "Pressure"}));
  EXPECT_FALSE(spUpgrade->NeedToUpgrade());
}

TEST_F(UpgradeOnAnyHost, AComponentUnderAnotherNameIsKnownByTheStartUpsThatItStandsFor)
{
  const AttributeOf sons(feature, "SonsList");
  VOXISpecObject* const pressure = sons.access->GetSpecObject(sons.key, 1);
  VOXISpecObject* const startUp = pressure->GetRelatedObject();
  ASSERT_NE(startUp, nullptr);
  EXPECT_STREQ(startUp->GetName().ConvertToChar(), "Pressure");
  Forget(feature, "SonsList", 1);
  VOXISpecObject* const renamed = startUp->Instantiate("Load", VOXIContainer_var(world->Container()), nullptr);
  EXPECT_EQ(VOXSpecPubServices::UpgradeSpecObjectAttribute(sons.access, sons.key, VOXISpecObject_var(renamed), 0),
            S_OK);
  EXPECT_FALSE(spUpgrade->NeedToUpgrade());
  for (VOXISpecObject* const given : {pressure, startUp, renamed})
    given->Release();
}

TEST_F(UpgradeOnAnyHost, ALayeredComponentGetsAValuePerLayer)
{
  VOXBaseUnknown* const layered = New("LayersUnderTest", "layers");
  WriteInteger(layered, "ValuesDim", 2);
  WriteInteger(layered, "Layers", 2);
  Forget(layered, "Values", 2);
  const VOXISamBasicComponent_var spLayered(layered);
  EXPECT_TRUE(spUpgrade->CheckMultiLayer(spLayered));
  EXPECT_EQ(spUpgrade->UpgradeMultiLayer(spLayered), S_OK);
  EXPECT_EQ(NamesIn(layered, "Values"), (Names{"Angle", "Height", "Height"}));
  const AttributeOf dimension(layered, "ValuesDim");
  EXPECT_EQ(dimension.access->GetInteger(dimension.key, 0), 2);
}

TEST_F(UpgradeOnAnyHost, AReroutedInstanceTakesLocalValuesComponentsAliasAndPointingsAlong)
{
  const AttributeOf title(feature, "Title");
  const AttributeOf share(feature, "Share");
  EXPECT_EQ(title.access->SetString(title.key, "Roof", 0), S_OK);
  EXPECT_EQ(share.access->SetDouble(share.key, 0.25, 0), S_OK);
  EXPECT_EQ(VOXSpecIsLocalValue(VOXISpecObject_var(feature), AttributeOf(feature, "Rank").key), 1);
  VOXIAlias_var(feature)->SetAlias("The roof");
  Refer(feature, "Others", New("Mass", "neighbour"));
  VOXBaseUnknown* const pointing = New("UpgradedUnderTest", "pointing");
  Refer(pointing, "Others", New("Mass", "first"));
  Refer(pointing, "Others", feature);
  SetUpToDate(feature, true);

  ASSERT_EQ(VOXISamUpgradeContainer_var(feature)->UpgradeContainer(), S_OK);
  VOXISpecObject* const made = Rerouter::made;
  EXPECT_EQ(made->GetImpl()->IsAKindOf("SuccessorUnderTest"), 1);
  EXPECT_STREQ(VOXIAlias_var(made)->GetAlias().ConvertToChar(), "The roof");
  const AttributeOf newTitle(made, "Title");
  const AttributeOf newShare(made, "Share");
  EXPECT_STREQ(newTitle.access->GetString(newTitle.key, 0).ConvertToChar(), "Roof");
  EXPECT_EQ(newShare.access->GetDouble(newShare.key, 0), 0.25);
  EXPECT_EQ(NamesIn(made, "SonsList"), (Names{"Pressure", "Height"}));
  EXPECT_EQ(NamesIn(feature, "SonsList"), Names{});
  EXPECT_EQ(NamesIn(made, "Others"), Names{"neighbour"});
  EXPECT_EQ(NamesIn(pointing, "Others"), (Names{"first", NameOf(made)}));
  EXPECT_EQ(made->IsUpToDate(VOXIDomain_var()), 1);
  EXPECT_EQ(VOXSamRattrapMode::GetMode(), 0);
  made->Release();
}

TEST_F(UpgradeOnAnyHost, AFeatureIsNotReroutedToAStartUpThatIsNotThere)
{
  EXPECT_EQ(FindStartUp(VOXISpecObject::ClassName(), "NeverDeclared", "NorThis", VOXIContainer_var(world->Container())),
            nullptr);
  VOXBaseUnknown* const found =
      FindStartUp(VOXISpecObject::ClassName(), "NeverDeclared", "Mass", VOXIContainer_var(world->Container()));
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(NameOf(found), "Mass");
  found->Release();
}

TEST_F(UpgradeOnAnyHost, ANullComponentIsAProgrammingError)
{
  EXPECT_EQ(FatalTextOf([this] { spUpgrade->UpgradeMultiLayer(nullptr); }), "AssertionFailed:ipiBasicComp");
}

} // namespace
} // namespace anyhost
