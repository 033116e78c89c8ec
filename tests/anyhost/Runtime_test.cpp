// SPDX-License-Identifier: MIT
// What adaptors rely on in the runtime: components and their faces, references, late types, texts and lists.
#include "AnalysisInterfaces/VOXISamEditionControl.h"
#include "AnalysisInterfaces/VOXISamFeatureUpgrade.h"
#include "AnalysisInterfaces/VOXISamSelectionList.h"
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"
#include "VOXEAnalysisEditionControl.h"
#include "VOXEAnalysisUpgrade.h"
#include "VOXESamEnumManager.h"
#include "tests/anyhost/AnyHost.h"

#include <sys/wait.h>
#include <unistd.h>

namespace anyhost
{
namespace
{

class Locked final : public VOXEAnalysisEditionControl
{
public:
  HRESULT AllowEdition(unsigned char& oAllowed) override
  {
    oAllowed = 0;
    return S_OK;
  }
};

class RuntimeOnAnyHost : public AnyHost
{
protected:
  RuntimeOnAnyHost()
  {
    VOXExtendLateType<VOXISamEditionControl, VOXEAnalysisEditionControl>("GroupUnderTest");
    VOXTieLateType<VOXISamFeatureUpgrade, VOXTieFeatureUpgrade<VOXEAnalysisUpgrade>>("GroupUnderTest");
    feature = New("GroupUnderTest", "feature");
  }

  VOXBaseUnknown* feature;
};

VOXBaseUnknown* Ask(VOXBaseUnknown* iFace, const IID& iInterface)
{
  void* face = nullptr;
  iFace->QueryInterface(iInterface, &face);
  return static_cast<VOXBaseUnknown*>(face);
}

TEST_F(RuntimeOnAnyHost, EveryFaceReachesEveryOtherAndAnswersWithTheSameObject)
{
  const VOXHandle<VOXISamEditionControl> spControl(feature);
  const VOXISpecAttrAccess_var spAccess(spControl);
  const VOXISpecObject_var spFeature(spAccess);
  EXPECT_EQ(VOXHandle<VOXISamEditionControl>(spFeature).Get(), spControl.Get());
  EXPECT_EQ(spControl->GetImpl(), feature->GetImpl());
  EXPECT_TRUE(spControl->IsEqual(spAccess.Get()));
  EXPECT_FALSE(spControl->IsEqual(nullptr));
}

TEST_F(RuntimeOnAnyHost, AQueryGivesOneReferenceAndAllFacesShareTheCount)
{
  const unsigned long before = References(feature);
  VOXBaseUnknown* const control = Ask(feature, VOXISamEditionControl::ClassId());
  ASSERT_NE(control, nullptr);
  EXPECT_EQ(References(feature), before + 1);
  EXPECT_EQ(References(control), before + 1);
  VOXBaseUnknown* const byName =
      static_cast<const VOXBaseUnknown*>(feature)->QueryInterface(VOXISamEditionControl::ClassName());
  EXPECT_EQ(byName, control);
  EXPECT_EQ(References(feature), before + 2);
  byName->Release();
  EXPECT_EQ(control->Release(), before);
}

TEST_F(RuntimeOnAnyHost, AnInterfaceThatNobodyCarriesIsRefused)
{
  void* face = this;
  EXPECT_EQ(feature->QueryInterface(IID_VOXISamSelectionList, &face), E_NOINTERFACE);
  EXPECT_EQ(face, nullptr);
  EXPECT_EQ(feature->QueryInterface(IID_VOXISamSelectionList, nullptr), E_INVALIDARG);
  EXPECT_EQ(static_cast<const VOXBaseUnknown*>(feature)->QueryInterface("VOXISamSelectionList"), nullptr);
  EXPECT_TRUE(!VOXISamSelectionList_var(feature));
}

TEST_F(RuntimeOnAnyHost, ATieReachesAnAdaptorThatDoesNotDeriveFromTheInterface)
{
  const VOXISamFeatureUpgrade_var spUpgrade(New("UpgradedUnderTest", "elsewhere"));
  EXPECT_TRUE(!spUpgrade); // declared for another type
  EXPECT_FALSE(!VOXISamFeatureUpgrade_var(feature));
}

TEST_F(RuntimeOnAnyHost, TheLateTypeIsTheNameOfTheImplementation)
{
  const VOXHandle<VOXISamEditionControl> spControl(feature);
  EXPECT_STREQ(spControl->GetImpl(0)->IsA(), "GroupUnderTest");
  EXPECT_EQ(spControl->GetImpl(0)->IsAKindOf("GroupUnderTest"), 1);
  EXPECT_EQ(spControl->GetImpl(0)->IsAKindOf("GroupSet"), 0);
  EXPECT_STREQ(spControl->GetImpl(0)->GetMetaObject()->IsA(), "GroupUnderTest");
}

TEST_F(RuntimeOnAnyHost, ALaterDeclarationHoldsForComponentsMadeFromThenOn)
{
  EXPECT_EQ((VOXExtendLateType<VOXISamEditionControl, Locked>("GroupUnderTest")), S_FALSE);
  unsigned char allowed = 9;
  VOXHandle<VOXISamEditionControl>(New("GroupUnderTest"))->AllowEdition(allowed);
  EXPECT_EQ(allowed, 0);
}

TEST_F(RuntimeOnAnyHost, DeclarationsThatContradictAreRefused)
{
  EXPECT_EQ(VOXDeclareLateType("BaseUnderTest", nullptr), S_OK);
  EXPECT_EQ(VOXDeclareLateType("DerivedUnderTest", "BaseUnderTest"), S_OK);
  EXPECT_EQ(VOXDeclareLateType("DerivedUnderTest", "BaseUnderTest"), S_FALSE);
  EXPECT_EQ(VOXDeclareLateType("DerivedUnderTest", nullptr), E_INVALIDARG);
  EXPECT_EQ(VOXDeclareLateType("OtherUnderTest", "NeverDeclared"), E_INVALIDARG);
  EXPECT_EQ((VOXExtendLateType<VOXISamEditionControl, Locked>("NeverDeclared")), E_INVALIDARG);
}

TEST_F(RuntimeOnAnyHost, AnObjectWithoutComponentCountsForItself)
{
  auto* const alone = new Locked;
  EXPECT_EQ(alone->AddRef(), 2u);
  EXPECT_EQ(alone->GetImpl(), alone);
  EXPECT_EQ(alone->Release(), 1u);
  EXPECT_EQ(alone->Release(), 0u); // what lives is counted at the end
}

TEST_F(RuntimeOnAnyHost, TheOneMetaObjectIsRegisteredWithItsBase)
{
  const VOXMetaClass* const registered = VOXESamEnumManager::MetaObject();
  ASSERT_NE(registered, nullptr);
  EXPECT_EQ(VOXESamEnumManager::MetaObject(), registered);
  EXPECT_STREQ(registered->IsA(), "VOXESamEnumManager");
  EXPECT_EQ(registered->IsAKindOf("VOXBaseUnknown"), 1);
  EXPECT_EQ(registered->IsAKindOf("VOXISpecObject"), 0);
}

TEST_F(RuntimeOnAnyHost, TextsAreValuesAndCanBeSearched)
{
  VOXUnicodeString text("Mass.Mass.2");
  const VOXUnicodeString copy(text);
  EXPECT_EQ(text.SearchSubString(".", 0, 1), 4);
  EXPECT_EQ(text.SearchSubString("Mass", 1, 1), 5);
  EXPECT_EQ(text.SearchSubString("Mass", 10, 0), 5);
  EXPECT_EQ(text.SearchSubString("mass", 0, 1), -1);
  EXPECT_EQ(text.SearchSubString("", 0, 1), -1);
  EXPECT_EQ(text.SearchSubString("Mass", -1, 1), -1);
  text.Resize(4);
  EXPECT_TRUE(text == "Mass");
  EXPECT_STREQ(copy.ConvertToChar(), "Mass.Mass.2");
  EXPECT_STREQ((text + ".3").ConvertToChar(), "Mass.3");
  EXPECT_STREQ(VOXUnicodeString(nullptr).ConvertToChar(), "");
}

TEST_F(RuntimeOnAnyHost, ListsCountFromOneAndLocateByComponent)
{
  VOXListValVOXBaseUnknown_var list;
  VOXBaseUnknown* const other = New("GroupUnderTest", "other");
  list.Append(feature);
  list.Append(other);
  list.Append(NULL_var);
  const VOXISpecAttrAccess_var spAccess(other);
  EXPECT_EQ(list.Locate(VOXBaseUnknown_var(spAccess.Get())), 2); // another face of the same component
  EXPECT_EQ(list.Locate(VOXBaseUnknown_var()), 3);
  EXPECT_EQ(list.Locate(feature, 2), 0);
  const unsigned long held = References(feature);
  list.RemovePosition(1);
  EXPECT_EQ(References(feature), held - 1);
  EXPECT_EQ(list.Size(), 2);
  EXPECT_EQ(list[1].Get(), other);
}

TEST_F(RuntimeOnAnyHost, IntegersAreRemovedWhereverTheyOccur)
{
  VOXRawCollint list;
  for (const int value : {3, 0, 5, 3, 0, 7})
    list.Append(value);
  VOXRawCollint unwanted;
  unwanted.Append(3);
  list.Remove(unwanted);
  list.RemoveNulls();
  ASSERT_EQ(list.Size(), 2);
  EXPECT_EQ(list[1], 5);
  EXPECT_EQ(list[2], 7);
  EXPECT_EQ(list.Locate(7, 1), 2);
  list[1] = 0;
  list.RemoveNulls();
  EXPECT_EQ(list.Locate(7, 1), 1);
}

TEST_F(RuntimeOnAnyHost, APositionOutsideOfAListIsFatal)
{
  EXPECT_EXIT(
      {
        VOXListValVOXUnicodeString list;
        list[1] = "nowhere";
        _exit(0);
      },
      [](int iStatus) { return !WIFEXITED(iStatus) || WEXITSTATUS(iStatus) != 0; }, "");
}

} // namespace
} // namespace anyhost
