// SPDX-License-Identifier: MIT
// The calls of a rerouting with their arguments, in order. The host's services are defined here, so that they work on
// scripted features: a program's own definitions come before those of the host's library.
#include "FeatureModeler/VOXSpecPointing.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "tests/adaptors/RerouteWorld.h"
#include "tests/adaptors/ReroutedScripts.h"

#include <set>

using namespace voxtest;

namespace
{

// What the services answer.
struct ServicesScript
{
  VOXISpecObject* startUp = nullptr;   // borrowed
  std::set<std::string> inheritedKeys; // every other key is local
};

ServicesScript g_services;

} // namespace

VOXBaseUnknown* FindStartUp(const char* iInterfaceName, const VOXUnicodeString& iName,
                            const VOXUnicodeString& iAlternateName, const VOXIContainer_var& iContainer)
{
  if (CallLog::Enter("FindStartUp", iInterfaceName, iName.ConvertToChar(), iAlternateName.ConvertToChar(),
                     Labels::Of(iContainer)) ||
      g_services.startUp == nullptr)
    return nullptr;
  g_services.startUp->AddRef();
  return g_services.startUp;
}

HRESULT VOXSpecIsLocalValue(VOXISpecObject* iInstance, VOXISpecAttrKey* iKey)
{
  const std::string& name = ScriptedFeatureKey::ScriptOf(iKey).name;
  if (CallLog::Enter("VOXSpecIsLocalValue", Labels::Of(iInstance), name))
    return E_INVALIDARG;
  return g_services.inheritedKeys.count(name) == 0 ? 0 : 1;
}

HRESULT VOXSpecPubServices::UpgradeSpecObjectAttribute(VOXISpecAttrAccess* iAccess, const VOXISpecAttrKey* iKey,
                                                       const VOXISpecObject_var& iObject, int iPosition)
{
  const bool fails = CallLog::Enter("VOXSpecPubServices::UpgradeSpecObjectAttribute", Labels::Of(iAccess),
                                    ScriptedFeatureKey::ScriptOf(iKey).name, Labels::Of(iObject), iPosition);
  return fails ? E_FAIL : S_OK;
}

void VOXSamRattrapMode::SetMode(int iMode)
{
  CallLog::Note("SetMode(" + std::to_string(iMode) + ")");
}

namespace
{

using LabelledFeature = Labelled<PointedSpecObject>;
using LabelledAccess = Labelled<ScriptedFeatureAccess>;
using LabelledKey = Labelled<ScriptedFeatureKey>;

// An old instance, a start-up and the new instance that it makes. Keys of the new one are called "new NAME".
class OtherServices : public testing::Test
{
protected:
  OtherServices()
      : old(Named<LabelledFeature, LabelledAccess, ReroutedAlias>("old")),
        fresh(Named<LabelledFeature, LabelledAccess, ReroutedAlias>("new")),
        startUp(Named<LabelledFeature>("start-up")),
        container(Named<ScriptedFeatureContainer>("container")),
        tested(static_cast<Rerouting*>(upgrade.Get()))
  {
    g_services = {FaceOf<VOXISpecObject>(startUp), {}};
    LabelledFeature::ScriptOf(old).container = FaceOf<VOXIContainer>(container);
    LabelledFeature::ScriptOf(startUp).instance = FaceOf<VOXISpecObject>(fresh);
    ReroutedAlias::ScriptOf(old).alias = "edge";
    LabelledAccess::ScriptOf(old).listed.emplace();
  }
  ~OtherServices() override { PointedSpecObject::pointings.clear(); }

  template <class... Faces>
  VOXBaseUnknown* Named(const char* iLabel)
  {
    VOXBaseUnknown* const made = bench.Component<Faces...>();
    Labels::Of(made) = iLabel;
    return made;
  }

  VOXISpecAttrKey* Key(const std::string& iName, int iType, int iElementType)
  {
    VOXBaseUnknown* const key = Named<LabelledKey>(iName.c_str());
    LabelledKey::ScriptOf(key) = {iName, iType, iElementType};
    return FaceOf<VOXISpecAttrKey>(key);
  }

  // An attribute of both instances.
  FeatureAccessScript& Both(const char* iName, int iType, int iElementType = 0)
  {
    FeatureAccessScript& script = LabelledAccess::ScriptOf(old);
    script.listed->push_back(Key(iName, iType, iElementType));
    LabelledAccess::ScriptOf(fresh).keys[iName] = Key(std::string("new ") + iName, iType, iElementType);
    return script;
  }

  VOXISpecObject* Reroute() const
  {
    VOXISpecObject* const made = tested->RerouteInstance(FaceOf<VOXISpecObject>(old), "Clamp");
    if (made != nullptr)
      made->Release();
    return made;
  }

  // What is done to attributes, from the question whether the value is local on.
  Calls Copied() const
  {
    const CallLog log;
    Reroute();
    return log.Only({"VOXISpecAttrAccess::", "VOXSpecPub", "VOXISpecObject::Rem", "VOXISpecObject::Hand", "VOXSpecIs"});
  }

  static Calls With(const char* iName, Calls iRest)
  {
    const std::string name(iName);
    Calls all{"VOXISpecAttrAccess::ListAttrKeys", "VOXSpecIsLocalValue(old, " + name + ")",
              "VOXISpecAttrAccess::GetAttrKey(" + name + ")"};
    all.insert(all.end(), iRest.begin(), iRest.end());
    return all;
  }

  VOXBaseUnknown* Object(const char* iLabel) { return Named<LabelledFeature>(iLabel); }

  Bench bench;
  VOXBaseUnknown* old;
  VOXBaseUnknown* fresh;
  VOXBaseUnknown* startUp;
  VOXBaseUnknown* container;
  AdaptorBench<Rerouting> upgrade;
  Rerouting* tested;
};

} // namespace

TEST_F(OtherServices, ARerouteTakesItsStepsInOrder)
{
  Both("Count", VOXSpecInteger).numbers["Count"] = {5.};
  VOXBaseUnknown* const pointing = Named<LabelledFeature, LabelledAccess>("pointing");
  PointedSpecObject::pointings = {{{pointing, Key("Target", VOXSpecReference, 0)}}};
  const CallLog log;
  EXPECT_NE(Reroute(), nullptr);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::", "query of"}),
            (Calls{"VOXISpecObject::GetContainer",
                   "FindStartUp(VOXISpecObject, Clamp, Clamp, container)",
                   "VOXISpecObject::Instantiate(, null)",
                   "VOXIAlias::GetAlias(old)",
                   "VOXIAlias::SetAlias(new, edge)",
                   "VOXISpecObject::IsUpToDate(whole document)",
                   "VOXISpecAttrAccess::ListAttrKeys",
                   "VOXISpecAttrKey::GetName",
                   "VOXSpecIsLocalValue(old, Count)",
                   "VOXISpecAttrAccess::GetAttrKey(Count)",
                   "VOXISpecAttrKey::GetType",
                   "VOXISpecAttrKey::GetType",
                   "VOXISpecAttrKey::GetType",
                   "VOXISpecAttrAccess::Reset(new Count)",
                   "VOXISpecAttrAccess::GetInteger(Count, 0)",
                   "VOXISpecAttrAccess::SetInteger(new Count, 5, 0)",
                   "SetMode(1)",
                   "VOXISpecObject::Update(whole document)",
                   "SetMode(0)",
                   "VOXISpecObject::GetPointings(old, 0)",
                   "VOXSpecPointing::GetAccess",
                   "VOXSpecPointing::GetKey",
                   "VOXISpecAttrKey::GetType",
                   "VOXSpecPubServices::UpgradeSpecObjectAttribute(pointing, Target, new, 0)"}));
}

TEST_F(OtherServices, TheFacesOfBothInstancesAreAskedForWhenTheyAreNeeded)
{
  const CallLog log;
  Reroute();
  EXPECT_EQ(log.Only({"query of old", "query of new", "VOXIAlias::", "VOXISpecObject::IsUpToDate",
                      "VOXISpecAttrAccess::ListAttrKeys"}),
            (Calls{"query of old", "VOXIAlias::GetAlias(old)", "query of new", "VOXIAlias::SetAlias(new, edge)",
                   "VOXISpecObject::IsUpToDate(whole document)", "query of old", "query of new",
                   "VOXISpecAttrAccess::ListAttrKeys", "query of new"}))
      << "what is redirected takes a handle of its own";
}

TEST_F(OtherServices, AnInstanceThatWasOutOfDateIsNotUpdatedAndTheModeNotTouched)
{
  LabelledFeature::ScriptOf(old).upToDate = 0;
  const CallLog log;
  Reroute();
  EXPECT_EQ(log.Only({"SetMode", "VOXISpecObject::Update"}), Calls{});
}

TEST_F(OtherServices, RealsAreReadAtTheirIndexAndWrittenWithZero)
{
  Both("Reals", VOXSpecList, VOXSpecReal).numbers["Reals"] = {1.5, 2.5};
  EXPECT_EQ(
      Copied(),
      With("Reals", {"VOXISpecAttrAccess::GetListSize(Reals)", "VOXISpecAttrAccess::GetListSize(new Reals)",
                     "VOXISpecAttrAccess::Reset(new Reals)", "VOXISpecAttrAccess::GetDouble(Reals, 1)",
                     "VOXISpecAttrAccess::SetDouble(new Reals, 1.5, 0)", "VOXISpecAttrAccess::GetDouble(Reals, 2)",
                     "VOXISpecAttrAccess::SetDouble(new Reals, 2.5, 0)"}));
}

TEST_F(OtherServices, AnEmptyListIsResetOnly)
{
  Both("Texts", VOXSpecList, VOXSpecString);
  EXPECT_EQ(Copied(),
            With("Texts", {"VOXISpecAttrAccess::GetListSize(Texts)", "VOXISpecAttrAccess::GetListSize(new Texts)",
                           "VOXISpecAttrAccess::Reset(new Texts)"}));
}

TEST_F(OtherServices, ASingleBooleanIsReadAndWrittenWithZero)
{
  Both("Flag", VOXSpecBoolean).numbers["Flag"] = {1.};
  EXPECT_EQ(Copied(), With("Flag", {"VOXISpecAttrAccess::Reset(new Flag)", "VOXISpecAttrAccess::GetBoolean(Flag, 0)",
                                    "VOXISpecAttrAccess::SetBoolean(new Flag, 1, 0)"}));
}

TEST_F(OtherServices, ASingleTextIsReadAndWrittenWithZero)
{
  Both("Text", VOXSpecString).texts["Text"] = {"clamped"};
  EXPECT_EQ(Copied(), With("Text", {"VOXISpecAttrAccess::Reset(new Text)", "VOXISpecAttrAccess::GetString(Text, 0)",
                                    "VOXISpecAttrAccess::SetString(new Text, clamped, 0)"}));
}

TEST_F(OtherServices, AResetThatFailsAndAWriteThatFailsDoNotEndTheCopy)
{
  Both("Counts", VOXSpecList, VOXSpecInteger).numbers["Counts"] = {1., 2.};
  for (const char* const failing : {"VOXISpecAttrAccess::Reset", "VOXISpecAttrAccess::SetInteger"})
  {
    voxhost::Faults::FailOperation(failing, 1, false);
    const CallLog log;
    EXPECT_NE(Reroute(), nullptr);
    EXPECT_EQ(log.Count("VOXISpecAttrAccess::SetInteger"), 2) << failing;
  }
  voxhost::Faults::Disarm();
}

TEST_F(OtherServices, TheExplicitTagIsResetOnTheOldInstanceAfterTheCopy)
{
  Both("ExplicitTag", VOXSpecInteger).numbers["ExplicitTag"] = {77.};
  EXPECT_EQ(Copied(),
            With("ExplicitTag",
                 {"VOXISpecAttrAccess::Reset(new ExplicitTag)", "VOXISpecAttrAccess::GetInteger(ExplicitTag, 0)",
                  "VOXISpecAttrAccess::SetInteger(new ExplicitTag, 77, 0)", "VOXISpecAttrAccess::Reset(ExplicitTag)"}));
}

TEST_F(OtherServices, AnExplicitTagThatIsNoIntegerIsCopiedAndNotReset)
{
  Both("ExplicitTag", VOXSpecString).texts["ExplicitTag"] = {"77"};
  EXPECT_EQ(Copied(), With("ExplicitTag", {"VOXISpecAttrAccess::Reset(new ExplicitTag)",
                                           "VOXISpecAttrAccess::GetString(ExplicitTag, 0)",
                                           "VOXISpecAttrAccess::SetString(new ExplicitTag, 77, 0)"}));
}

TEST_F(OtherServices, ReferencesAreWrittenByTheUpgradeServiceWithoutAReset)
{
  Both("Targets", VOXSpecList, VOXSpecReference).lists["Targets"] = {Object("X"), nullptr, Object("Y")};
  LabelledAccess::ScriptOf(fresh).lists["new Targets"] = {Object("D")};
  EXPECT_EQ(
      Copied(),
      With("Targets", {"VOXISpecAttrAccess::GetListSize(Targets)", "VOXISpecAttrAccess::GetListSize(new Targets)",
                       "VOXISpecAttrAccess::GetSpecObject(Targets, 1)",
                       "VOXSpecPubServices::UpgradeSpecObjectAttribute(new, new Targets, X, 0)",
                       "VOXISpecAttrAccess::GetSpecObject(Targets, 2)", "VOXISpecAttrAccess::GetSpecObject(Targets, 3)",
                       "VOXSpecPubServices::UpgradeSpecObjectAttribute(new, new Targets, Y, 0)"}));
}

TEST_F(OtherServices, ASingleReferenceIsReadAtZero)
{
  Both("Target", VOXSpecReference).lists["Target"] = {Object("X")};
  EXPECT_EQ(Copied(), With("Target", {"VOXISpecAttrAccess::GetSpecObject(Target, 0)",
                                      "VOXSpecPubServices::UpgradeSpecObjectAttribute(new, new Target, X, 0)"}));
}

TEST_F(OtherServices, DefaultComponentsAreRemovedFromTheLastOneDownAndThenThoseOfTheOldOneHandedOver)
{
  VOXBaseUnknown* const foreign = bench.Component<ScriptedBasicComponent>();
  Both("Parts", VOXSpecList, VOXSpecComponent).lists["Parts"] = {Object("P1"), foreign, nullptr, Object("P2")};
  LabelledAccess::ScriptOf(fresh).lists["new Parts"] = {Object("D1"), nullptr, Object("D3")};
  EXPECT_EQ(Copied(),
            With("Parts",
                 {"VOXISpecAttrAccess::GetListSize(Parts)", "VOXISpecAttrAccess::GetListSize(new Parts)",
                  "VOXISpecAttrAccess::GetSpecObject(new Parts, 3)", "VOXISpecObject::RemoveComponent(D3, 0)",
                  "VOXISpecAttrAccess::GetSpecObject(new Parts, 2)", "VOXISpecAttrAccess::GetSpecObject(new Parts, 1)",
                  "VOXISpecObject::RemoveComponent(D1, 0)", "VOXISpecAttrAccess::ListSpecObjects(Parts, null)",
                  "VOXISpecObject::HandOver(P1, Parts, new, new Parts)",
                  "VOXISpecObject::HandOver(P2, Parts, new, new Parts)"}));
}

TEST_F(OtherServices, ComponentsThatAreListedAreHandedOverWhateverSizeWasAskedFor)
{
  Both("Parts", VOXSpecList, VOXSpecComponent).lists["Parts"] = {Object("P1"), Object("P2")};
  voxhost::Faults::FailOperation("VOXISpecAttrAccess::GetListSize", 1, true);
  const CallLog log;
  Reroute();
  EXPECT_EQ(log.Count("VOXISpecObject::HandOver"), 2);
  voxhost::Faults::Disarm();
}

TEST_F(OtherServices, ComponentsThatAreNotListedAreNotHandedOver)
{
  Both("Parts", VOXSpecList, VOXSpecComponent);
  EXPECT_EQ(Copied().back(), "VOXISpecAttrAccess::ListSpecObjects(Parts, null)");
}

TEST_F(OtherServices, ASingleComponentIsReadAtZeroAndHandedOverAndNothingRemoved)
{
  Both("Part", VOXSpecComponent).lists["Part"] = {Object("P")};
  LabelledAccess::ScriptOf(fresh).lists["new Part"] = {Object("D")};
  EXPECT_EQ(Copied(), With("Part", {"VOXISpecAttrAccess::GetSpecObject(Part, 0)",
                                    "VOXISpecObject::HandOver(P, Part, new, new Part)"}));
}

TEST_F(OtherServices, NoSingleComponentHandsNothingOver)
{
  Both("Part", VOXSpecComponent);
  EXPECT_EQ(Copied(), With("Part", {"VOXISpecAttrAccess::GetSpecObject(Part, 0)"}));
}

TEST_F(OtherServices, AnAttributeOfATypeOfItsOwnIsNotTouched)
{
  Both("Matrix", 99);
  EXPECT_EQ(Copied(), With("Matrix", {}));
}

TEST_F(OtherServices, AListOfATypeOfItsOwnIsNotTouched)
{
  Both("Matrices", VOXSpecList, 99).numbers["Matrices"] = {1.};
  EXPECT_EQ(Copied(), With("Matrices", {"VOXISpecAttrAccess::GetListSize(Matrices)",
                                        "VOXISpecAttrAccess::GetListSize(new Matrices)"}));
}

TEST_F(OtherServices, TheOldListSaysWhatItsElementsAre)
{
  Both("Values", VOXSpecList, VOXSpecInteger).numbers["Values"] = {3.};
  VOXISpecAttrKey* const key = LabelledAccess::ScriptOf(fresh).keys["Values"];
  LabelledKey::ScriptOf(key).elementType = VOXSpecReal;
  EXPECT_EQ(Copied().back(), "VOXISpecAttrAccess::SetInteger(new Values, 3, 0)");
}

TEST_F(OtherServices, AnAttributeOfAnotherTypeGivesItsKeyBackUntouched)
{
  Both("Count", VOXSpecInteger);
  VOXISpecAttrKey* const key = LabelledAccess::ScriptOf(fresh).keys["Count"];
  LabelledKey::ScriptOf(key).type = VOXSpecReal;
  EXPECT_EQ(Copied(), With("Count", {}));
  EXPECT_EQ(Bench::References(key), 0);
}

TEST_F(OtherServices, TheAliasIsNotAskedWhetherItIsLocal)
{
  Both("Alias", VOXSpecString);
  EXPECT_EQ(Copied(), Calls{"VOXISpecAttrAccess::ListAttrKeys"});
}

TEST_F(OtherServices, AnInheritedValueDoesNotAskTheNewInstance)
{
  Both("Count", VOXSpecInteger);
  g_services.inheritedKeys = {"Count"};
  EXPECT_EQ(Copied(), (Calls{"VOXISpecAttrAccess::ListAttrKeys", "VOXSpecIsLocalValue(old, Count)"}));
}

TEST_F(OtherServices, AnEmptyKeyIsSkippedAndTheNextOneCopied)
{
  Both("Dropped", VOXSpecInteger);
  LabelledAccess::ScriptOf(fresh).keys.clear();
  LabelledAccess::ScriptOf(old).listed->insert(LabelledAccess::ScriptOf(old).listed->begin(), nullptr);
  Both("Count", VOXSpecInteger).numbers["Count"] = {5.};
  EXPECT_EQ(Copied(),
            With("Dropped", {"VOXSpecIsLocalValue(old, Count)", "VOXISpecAttrAccess::GetAttrKey(Count)",
                             "VOXISpecAttrAccess::Reset(new Count)", "VOXISpecAttrAccess::GetInteger(Count, 0)",
                             "VOXISpecAttrAccess::SetInteger(new Count, 5, 0)"}));
}

TEST_F(OtherServices, AnInstanceWithoutAListOfKeysIsReroutedAllTheSame)
{
  LabelledAccess::ScriptOf(old).listed.reset();
  EXPECT_NE(Reroute(), nullptr);
}

TEST_F(OtherServices, APointingOfAListIsRedirectedAtThePositionOfTheOldInstance)
{
  VOXBaseUnknown* const pointing = Named<LabelledFeature, LabelledAccess>("pointing");
  LabelledAccess::ScriptOf(pointing).lists["Targets"] = {Object("X"), Object("Y"), old, Object("Z")};
  PointedSpecObject::pointings = {{{pointing, Key("Targets", VOXSpecList, VOXSpecReference)}}};
  EXPECT_EQ(Copied(), (Calls{"VOXISpecAttrAccess::ListAttrKeys", "VOXISpecAttrAccess::GetPosition(Targets, old)",
                             "VOXSpecPubServices::UpgradeSpecObjectAttribute(pointing, Targets, new, 3)"}));
}

TEST_F(OtherServices, APointingThatIsEmptyOrLacksAccessOrKeyIsSkippedAndGoesAway)
{
  VOXBaseUnknown* const pointing = Named<LabelledFeature, LabelledAccess>("pointing");
  VOXISpecAttrKey* const key = Key("Target", VOXSpecReference, 0);
  using Pointing = PointedSpecObject::Pointing;
  PointedSpecObject::pointings = {std::nullopt, Pointing{nullptr, key}, Pointing{pointing, nullptr},
                                  Pointing{pointing, key}};
  EXPECT_EQ(Copied(), (Calls{"VOXISpecAttrAccess::ListAttrKeys",
                             "VOXSpecPubServices::UpgradeSpecObjectAttribute(pointing, Target, new, 0)"}));
  EXPECT_EQ(Bench::References(pointing), 0);
  EXPECT_EQ(Bench::References(key), 0);
}

TEST_F(OtherServices, TheStartUpsOtherReferenceGoesBackWhenTheInstanceIsMade)
{
  const CallLog log(CallLog::References::Recorded);
  Reroute();
  const Calls calls = log.Only({"FindStartUp", "VOXISpecObject::Instantiate", "Release VOXISpecObject of start-up",
                                "VOXIAlias::GetAlias", "VOXISpecObject::GetPointings"});
  EXPECT_EQ(calls, (Calls{"FindStartUp(VOXISpecObject, Clamp, Clamp, container)", "VOXISpecObject::Instantiate(, null)",
                          "Release VOXISpecObject of start-up", "VOXIAlias::GetAlias(old)",
                          "VOXISpecObject::GetPointings(old, 0)", "Release VOXISpecObject of start-up"}));
}

TEST_F(OtherServices, TheStartUpGoesBackWholeWhenNoInstanceIsMade)
{
  LabelledFeature::ScriptOf(startUp).instance = nullptr;
  EXPECT_EQ(Reroute(), nullptr);
  EXPECT_EQ(Bench::References(startUp), 0);
}

TEST_F(OtherServices, WithoutAStartUpNothingIsMade)
{
  g_services.startUp = nullptr;
  const CallLog log;
  EXPECT_EQ(Reroute(), nullptr);
  EXPECT_EQ(log.All().back(), "FindStartUp(VOXISpecObject, Clamp, Clamp, container)");
}

TEST_F(OtherServices, EverythingGoesBackButTheNewInstance)
{
  Both("Targets", VOXSpecList, VOXSpecReference).lists["Targets"] = {Object("X")};
  Both("Part", VOXSpecComponent).lists["Part"] = {Object("P")};
  VOXISpecObject* const made = tested->RerouteInstance(FaceOf<VOXISpecObject>(old), "Clamp");
  EXPECT_EQ(Bench::References(fresh), 1);
  for (VOXBaseUnknown* const object : {old, startUp, container, LabelledAccess::ScriptOf(old).lists["Targets"][0],
                                       LabelledAccess::ScriptOf(old).lists["Part"][0]})
    EXPECT_EQ(Bench::References(object), 0) << Labels::Of(object);
  for (const VOXISpecAttrKey* const key : *LabelledAccess::ScriptOf(old).listed)
    EXPECT_EQ(Bench::References(key), 0);
  made->Release();
}
