// SPDX-License-Identifier: MIT
// A document that is kept and opened again is the same document.
#include "DocumentText.h"
#include "RunProgram.h"
#include "host/Instruments/Ledger.h"
#include "voxbench/store/DocumentFile.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using voxbench::LoadedModel;
using voxhost::Feature;
using voxtest::TextOfDocument;

namespace
{

class KeptDocument : public testing::Test
{
protected:
  void SetUp() override { voxtest::OpenDeck("plate_on_block.inp", model); }

  //! Keeps the document and opens it again.
  void Reopen()
  {
    ASSERT_EQ(voxbench::WriteDocumentFile(file, model, true, {}), "");
    ASSERT_EQ(voxbench::ReadDocumentFile(file, opened, {}), "");
  }

  Feature& Load() const { return *model.MembersOf("LoadSet").at(0); }
  Feature& Group() const { return *model.Groups().at(0); }
  Feature* Again(const Feature& iFeature) const { return opened.Document().FindFeature(iFeature.Identifier()); }

  const std::string file = voxtest::TemporaryFile("kept.voxdoc", "");
  LoadedModel model;
  LoadedModel opened;
};

TEST(KeptDocuments, AreTheSameForEveryDeckOfTheTests)
{
  for (const char* const deck : {"plate_on_block.inp", "joined.inp", "questionable.inp"})
  {
    LoadedModel model;
    LoadedModel opened;
    voxtest::OpenDeck(deck, model);
    const std::string file = voxtest::TemporaryFile("deck.voxdoc", "");
    ASSERT_EQ(voxbench::WriteDocumentFile(file, model, true, {}), "");
    ASSERT_EQ(voxbench::ReadDocumentFile(file, opened, {}), "");
    EXPECT_EQ(TextOfDocument(opened), TextOfDocument(model)) << deck;
  }
}

TEST_F(KeptDocument, IsWrittenByteForByteTheSameAfterItWasOpened)
{
  Reopen();
  const std::string first = voxtest::ReadText(file);
  ASSERT_EQ(voxbench::WriteDocumentFile(file, opened, true, {}), "");
  EXPECT_EQ(voxtest::ReadText(file), first);
}

TEST_F(KeptDocument, KeepsTheStatesOfAFeature)
{
  Feature& load = Load();
  load.SetActive(false);
  load.SetMarked(true);
  load.SetUpdateFails(true);
  load.SetSubscribed(true);
  load.SetExplicitState(7);
  load.SetIdentifyingString(std::string("my own"));
  load.SetPhysicalType("OTHER_LOAD");
  Group().SetOutOfDate(true);
  Reopen();
  EXPECT_EQ(voxtest::TextOfFeature(*Again(load)), voxtest::TextOfFeature(load));
  EXPECT_TRUE(Again(Group())->IsOutOfDate());
}

TEST_F(KeptDocument, KeepsInWhichViewsAFeatureIsShown)
{
  model.Document().ShownViews().Show(&Load(), voxhost::Views::kIn3D);
  model.Document().ShownViews().Show(&Group(), voxhost::Views::kInGraph);
  Reopen();
  const voxhost::Views& views = opened.Document().ShownViews();
  EXPECT_TRUE(views.IsShown(Again(Load()), voxhost::Views::kIn3D));
  EXPECT_FALSE(views.IsShown(Again(Load()), voxhost::Views::kInGraph));
  EXPECT_TRUE(views.IsShown(Again(Group()), voxhost::Views::kInGraph));
}

TEST_F(KeptDocument, KeepsAnAliasAndTagsOfAFeature)
{
  Load().Set("Alias", std::string("Wind, 50 years"));
  Load().SetIntegerList(Load().IndexOf("ExplicitTag"), {3, 5});
  Reopen();
  EXPECT_EQ(LoadedModel::DisplayName(*Again(Load())), "Wind, 50 years");
  EXPECT_EQ(Again(Load())->ExplicitTags(), (std::vector<std::int32_t>{3, 5}));
}

TEST_F(KeptDocument, KeepsEmptyListsAsLocalOnes)
{
  Feature& load = Load();
  load.Reset(load.IndexOf("Missing"));
  load.Reset(load.IndexOf("FluidNodes"));
  load.Reset(load.IndexOf("Supports"));
  Reopen();
  for (const char* const name : {"Missing", "FluidNodes", "Supports"})
    EXPECT_TRUE(Again(load)->IsLocal(load.IndexOf(name))) << name;
  EXPECT_EQ(TextOfDocument(opened), TextOfDocument(model));
}

TEST_F(KeptDocument, KeepsTextsOfAnyBytesAndNumbersThatAreNone)
{
  Feature& component = *LoadedModel::ComponentsOf(*model.MembersOf("PropertySet").at(0)).at(0);
  Feature* const number = model.Document().New("ShellThickness", "thick");
  component.Add("SonsList", *number);
  number->Set("Value", std::nan(""));
  Load().Set("Missing", std::vector<std::string>{"", "Träger\n\xff", "a"});
  Reopen();
  EXPECT_TRUE(std::isnan(Again(*number)->Real("Value")));
  EXPECT_EQ(voxtest::TextOfFeature(*Again(Load())), voxtest::TextOfFeature(Load()));
}

TEST_F(KeptDocument, KeepsContainersAndWhichFeatureStandsInWhich)
{
  voxhost::Container* const container = model.Document().NewContainer("Second", "SpecContainer", true);
  const Feature* const stray = model.Document().New("DeckLoad", "stray", container);
  Reopen();
  EXPECT_EQ(Again(*stray)->OwningContainer()->Name(), "Second");
  EXPECT_EQ(TextOfDocument(opened), TextOfDocument(model));
}

TEST_F(KeptDocument, KeepsIdentifiersOverThoseOfRemovedFeatures)
{
  const std::uint32_t removed = Load().Identifier();
  model.Document().Remove(Load());
  Reopen();
  EXPECT_EQ(opened.Document().FindFeature(removed), nullptr);
  EXPECT_EQ(TextOfDocument(opened), TextOfDocument(model));
}

TEST_F(KeptDocument, GoesOnCountingTheNamesItGives)
{
  const std::string first = model.Document().New("DeckLoad", "")->Name().ConvertToChar();
  Reopen();
  EXPECT_NE(opened.Document().New("DeckLoad", "")->Name().ConvertToChar(), first);
}

TEST_F(KeptDocument, ChangesAsTheFirstOneDoes)
{
  Reopen();
  Feature& load = *Again(Load());
  Feature& support = *load.Features("Supports").front();
  opened.Document().Remove(support);
  EXPECT_TRUE(load.Features("Supports").empty());
  EXPECT_TRUE(load.IsOutOfDate());
}

TEST_F(KeptDocument, KnowsItsRecordsAgain)
{
  Reopen();
  EXPECT_EQ(opened.Records().sections.size(), model.Records().sections.size());
  EXPECT_EQ(opened.Records().files, model.Records().files);
  ASSERT_FALSE(opened.Records().loads.empty());
  EXPECT_EQ(opened.Records().loads[0].rows.size(), model.Records().loads[0].rows.size());
  EXPECT_EQ(opened.Records().loads[0].values[0], model.Records().loads[0].values[0]);
  EXPECT_EQ(opened.FamilyOf(0), model.FamilyOf(0));
}

TEST_F(KeptDocument, TellsHowFarItsOpeningIs)
{
  for (int number = 0; number < 3000; ++number)
    model.Document().New("DeckSensor", "sensor")->Set("Step", std::int32_t{number});
  ASSERT_EQ(voxbench::WriteDocumentFile(file, model, true, {}), "");
  std::vector<std::uint64_t> told;
  std::uint64_t total = 0;
  const auto progress = [&](std::uint64_t iDone, std::uint64_t iTotal)
  {
    told.push_back(iDone);
    total = iTotal;
  };
  ASSERT_EQ(voxbench::ReadDocumentFile(file, opened, progress), "");
  EXPECT_GT(told.size(), 6u); // one per 1024 features, one per 1024 values, one per array of the mesh
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_EQ(told.back(), total);
}

TEST_F(KeptDocument, GivesBackAllThatItTook)
{
  voxhost::Ledger::TurnOn();
  const auto before = voxhost::Ledger::Read();
  {
    LoadedModel third;
    ASSERT_EQ(voxbench::WriteDocumentFile(file, model, true, {}), "");
    ASSERT_EQ(voxbench::ReadDocumentFile(file, third, {}), "");
  }
  EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced");
  voxhost::Ledger::TurnOff();
}

} // namespace
