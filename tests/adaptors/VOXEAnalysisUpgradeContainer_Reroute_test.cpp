// SPDX-License-Identifier: MIT
// An instance takes the place of another: where it is made, its update, and what refers to it from then on.
#include "tests/adaptors/RerouteWorld.h"

using namespace voxtest;
using voxhost::Faults;
using voxhost::Feature;

namespace
{

class Reroute : public InBalance<RerouteWorld>
{
protected:
  Reroute() : old(world->old) {}
  ~Reroute() override { VOXSamRattrapMode::SetMode(0); }

  Feature& Pointing(const char* iAttribute, std::initializer_list<Feature*> iTargets)
  {
    Feature& pointing = world->Made("OldRestraint", "pointing");
    for (Feature* const target : iTargets)
      pointing.Add(iAttribute, *target);
    return pointing;
  }

  Feature& old;
};

} // namespace

TEST_F(Reroute, GivesAnInstanceOfTheStartUpInTheContainerOfTheOldOne)
{
  voxhost::Container* const container = world->document.NewContainer("Elsewhere");
  Feature& elsewhere = *world->document.New("OldRestraint", "old", container);
  const Feature* const made = world->Reroute(elsewhere, "NewRestraint");
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->StartUp(), world->document.StartUp("NewRestraint"));
  EXPECT_EQ(made->OwningContainer(), container);
  EXPECT_EQ(made->Name(), VOXUnicodeString("NewRestraint.1")) << "the host's choice of a name";
}

TEST_F(Reroute, GivesTheNewInstanceWithOneReferenceForTheCaller)
{
  VOXISpecObject* const made = world->tested->RerouteInstance(&old, "NewRestraint");
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(Bench::References(made), 1);
  made->Release();
}

TEST_F(Reroute, TakesNoReferenceOnTheStartUpBesideTheInstances)
{
  const Feature* const startUp = world->document.StartUp("NewRestraint");
  const long before = Bench::References(startUp);
  world->Reroute();
  EXPECT_EQ(Bench::References(startUp), before + 1);
}

TEST_F(Reroute, LeavesTheOldInstanceInPlace)
{
  world->Reroute();
  EXPECT_FALSE(old.IsRemoved());
  EXPECT_EQ(Bench::References(&old), 0);
}

TEST_F(Reroute, OfNothingGivesNothing)
{
  const CallLog log;
  EXPECT_EQ(world->tested->RerouteInstance(nullptr, "NewRestraint"), nullptr);
  EXPECT_EQ(log.All(), Calls{});
}

TEST_F(Reroute, ToAnUnknownStartUpGivesNothingAndChangesNothing)
{
  const std::size_t before = world->document.NumberOfFeatures();
  const std::int32_t clock = world->document.Clock();
  EXPECT_EQ(world->Reroute("NeverHeardOf"), nullptr);
  EXPECT_EQ(world->document.NumberOfFeatures(), before);
  EXPECT_EQ(world->document.Clock(), clock);
}

TEST_F(Reroute, WithoutAnInstanceGivesNothingChangesNothingAndReleasesTheStartUp)
{
  const Feature* const startUp = world->document.StartUp("NewRestraint");
  const long before = Bench::References(startUp);
  old.Set("ExplicitTag", std::int32_t{77});
  const std::int32_t clock = world->document.Clock();
  Faults::FailOperation("VOXISpecObject::Instantiate", 1, true);
  EXPECT_EQ(world->Reroute(), nullptr);
  EXPECT_EQ(Bench::References(startUp), before);
  EXPECT_EQ(old.Integer("ExplicitTag"), 77);
  EXPECT_EQ(world->document.Clock(), clock);
}

TEST_F(Reroute, OfAnInstanceWithoutContainerGivesNothing)
{
  Faults::FailOperation("VOXISpecObject::GetContainer", 1, false);
  const CallLog log;
  EXPECT_EQ(world->Reroute(), nullptr);
  EXPECT_EQ(log.Count("FindStartUp"), 0);
}

TEST_F(Reroute, UpdatesTheNewInstanceInRepairModeWhenTheOldOneWasUpToDate)
{
  std::vector<int> modes;
  world->document.OnUpdate("NewRestraint",
                           [&](Feature&)
                           {
                             modes.push_back(VOXSamRattrapMode::GetMode());
                             return S_OK;
                           });
  const Feature* const made = world->Reroute();
  EXPECT_FALSE(made->IsOutOfDate());
  EXPECT_EQ(modes, std::vector<int>{1});
  EXPECT_EQ(VOXSamRattrapMode::GetMode(), 0);
}

TEST_F(Reroute, AnswersToWhatTheOldInstanceWasBeforeItsTagWentOver)
{
  old.Set("ExplicitTag", std::int32_t{77});
  world->document.UpdateAll();
  EXPECT_FALSE(world->Reroute()->IsOutOfDate()) << "the reset puts the old one out of date";
  EXPECT_TRUE(old.IsOutOfDate());
}

TEST_F(Reroute, LeavesRepairModeWhenTheUpdateFails)
{
  Feature& pointing = Pointing("Target", {&old});
  world->document.UpdateAll();
  Faults::FailOperation("VOXISpecObject::Update", 1, true);
  const Feature* const made = world->Reroute();
  EXPECT_TRUE(made->IsOutOfDate());
  EXPECT_EQ(VOXSamRattrapMode::GetMode(), 0);
  EXPECT_EQ(pointing.Features("Target")[0], made) << "and goes on";
}

TEST_F(Reroute, NeitherUpdatesNorTouchesTheModeWhenTheOldInstanceWasOutOfDate)
{
  old.SetOutOfDate(true);
  VOXSamRattrapMode::SetMode(5);
  EXPECT_TRUE(world->Reroute()->IsOutOfDate());
  EXPECT_EQ(VOXSamRattrapMode::GetMode(), 5);
}

TEST_F(Reroute, RedirectsAListAtTheSamePosition)
{
  const Feature& pointing = Pointing("Targets", {&world->Part("A"), &world->Part("B"), &old, &world->Part("D")});
  const Feature* const made = world->Reroute();
  const auto targets = pointing.Features("Targets");
  ASSERT_EQ(targets.size(), 4u);
  EXPECT_EQ(targets[2], made);
  EXPECT_EQ(UpgradeWorld::Names(pointing, "Targets"), (Names{"A", "B", "NewRestraint.1", "D"}));
}

TEST_F(Reroute, RedirectsASingleReference)
{
  const Feature& pointing = Pointing("Target", {&old});
  const Feature* const made = world->Reroute();
  EXPECT_EQ(pointing.Features("Target")[0], made);
}

TEST_F(Reroute, RedirectsEveryReferenceOfAList)
{
  const Feature& pointing = Pointing("Targets", {&old, &world->Part("B"), &old});
  const Feature* const made = world->Reroute();
  EXPECT_EQ(pointing.Features("Targets")[0], made);
  EXPECT_EQ(pointing.Features("Targets")[2], made);
}

TEST_F(Reroute, RedirectsEveryAttributeThatRefersToTheOldInstance)
{
  std::vector<const Feature*> pointings;
  for (int i = 0; i < 20; ++i)
    pointings.push_back(&Pointing(i % 2 == 0 ? "Target" : "Targets", {&old}));
  const Feature* const made = world->Reroute();
  for (int i = 0; i < 20; ++i)
    EXPECT_EQ(pointings[static_cast<std::size_t>(i)]->Features(i % 2 == 0 ? "Target" : "Targets")[0], made);
  EXPECT_TRUE(old.Referrers().empty());
}

TEST_F(Reroute, PutsTheNewInstanceInItsFathersList)
{
  Feature& set = world->Made("RestraintSet", "set");
  for (Feature* const son : {&world->Part("A"), &old, &world->Part("C")})
    set.Add("SonsList", *son);
  Feature* const made = world->Reroute();
  EXPECT_EQ(UpgradeWorld::Names(set), (Names{"A", "NewRestraint.1", "C"}));
  EXPECT_EQ(made->Father(), &set);
  EXPECT_EQ(old.Father(), nullptr);
}

TEST_F(Reroute, TurnsAReferenceToItselfIntoOneOfTheNewInstance)
{
  old.Add("Target", old);
  const Feature* const made = world->Reroute();
  EXPECT_EQ(made->Features("Target")[0], made);
}

TEST_F(Reroute, SkipsAPointingWithoutAccessOrKeyAndGoesOn)
{
  for (const char* const missing : {"VOXSpecPointing::GetAccess", "VOXSpecPointing::GetKey"})
  {
    const Feature& first = Pointing("Target", {&old});
    const Feature& second = Pointing("Target", {&old});
    Faults::FailOperation(missing, 1, false);
    const Feature* const made = world->Reroute();
    Faults::Disarm();
    EXPECT_EQ(first.Features("Target")[0], &old) << missing;
    EXPECT_EQ(second.Features("Target")[0], made) << missing;
    world->Reroute(); // and now the first one, too
  }
}

TEST_F(Reroute, AssertsTheAccessToBothInstances)
{
  const voxhost::CheckReport noNew = FatalErrorOf([this] { world->Reroute("SealedRestraint"); });
  EXPECT_EQ(noNew.text, "AssertionFailed:!!spNewAcc");
  EXPECT_EQ(noNew.file, SourceOf("VOXEAnalysisUpgradeContainer"));
  EXPECT_GT(noNew.line, 0);

  Feature& sealed = world->Made("SealedRestraint", "sealed");
  const voxhost::CheckReport noOld = FatalErrorOf([&] { world->Reroute(sealed, "NewRestraint"); });
  EXPECT_EQ(noOld.text, "AssertionFailed:!!spOldAcc");
  EXPECT_EQ(noOld.file, SourceOf("VOXEAnalysisUpgradeContainer"));
}

TEST_F(Reroute, AssertsTheAccessToTheOldInstanceFirst)
{
  Feature& sealed = world->Made("SealedRestraint", "sealed");
  EXPECT_EQ(FatalErrorOf([&] { world->Reroute(sealed, "SealedRestraint"); }).text, "AssertionFailed:!!spOldAcc");
}

TEST_F(Reroute, IsNoOperationOfTheVirtualTable)
{
  EXPECT_EQ(sizeof(VOXEAnalysisUpgradeContainer), sizeof(VOXBaseUnknown));
  EXPECT_EQ(OwnPlace(&VOXEAnalysisUpgradeContainer::UpgradeObject), 3) << "the last";
}

namespace
{

Torture RerouteTorture()
{
  Torture torture("RerouteInstance");
  torture.MayAnswer({S_OK, S_FALSE}).ReportsNothing();
  for (const char* const condition : {"!!spOldAcc", "!!spNewAcc"})
    torture.MayEndFatally(std::string("AssertionFailed:") + condition);
  return torture;
}

// Who holds a part: the old instance or the new one; nobody else, and somebody.
bool IsHeld(const Feature& iPart, const RerouteWorld& iWorld, const Feature* iMade)
{
  return iPart.Father() != nullptr && (iPart.Father() == &iWorld.old || iPart.Father() == iMade);
}

} // namespace

TEST(RerouteTorture, EveryFailureLeavesTheOldInstanceItsPartsAndWhatRefersToItWhole)
{
  RerouteTorture().Run(
      [](TortureRun& ioRun)
      {
        RerouteWorld world;
        Feature& part = world.Part("P1");
        Feature& single = world.Part("P");
        world.old.Add("Parts", part);
        world.old.Add("Part", single);
        world.old.Add("Target", single);
        world.old.Set("Real", 3.25);
        world.old.Set("Flag", true);
        world.old.Set("Text", std::string("clamped"));
        world.old.Set("Counts", std::vector<std::int32_t>{1, 2});
        world.old.Set("ExplicitTag", std::int32_t{77});
        Feature& pointing = world.Made("OldRestraint", "pointing");
        pointing.Add("Targets", single);
        pointing.Add("Targets", world.old);
        world.document.UpdateAll();
        VOXISpecObject* made = nullptr;
        ioRun.Call(
            [&]
            {
              made = world.tested->RerouteInstance(&world.old, "RestraintWithParts");
              return made == nullptr ? S_FALSE : S_OK;
            });
        const Feature* const feature = Feature::Of(made);
        EXPECT_FALSE(world.old.IsRemoved());
        EXPECT_TRUE(IsHeld(part, world, feature) && IsHeld(single, world, feature));
        EXPECT_EQ(world.old.Real("Real"), 3.25);
        EXPECT_EQ(VOXSamRattrapMode::GetMode(), 0);
        ASSERT_GE(pointing.Features("Targets").size(), 2u);
        EXPECT_EQ(pointing.Features("Targets")[0], &single);
        if (!ioRun.IsTortured())
        {
          EXPECT_EQ(pointing.Features("Targets")[1], feature);
          EXPECT_EQ(feature->Integer("ExplicitTag"), 77);
          EXPECT_EQ(part.Father(), feature);
        }
        if (made != nullptr)
          made->Release();
      });
}
