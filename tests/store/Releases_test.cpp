// SPDX-License-Identifier: MIT
// What releases of the start-ups have written is opened for good.
#include "DocumentText.h"
#include "RunProgram.h"
#include "voxbench/features/Catalogue.h"
#include "voxbench/features/SelectionLists.h"
#include "voxbench/store/DocumentFile.h"

#include <gmock/gmock.h>

using voxbench::LoadedModel;
using voxhost::Feature;

namespace
{

std::string DocumentOf(int iRelease)
{
  return voxtest::DataFile("layered.release-" + std::to_string(iRelease) + ".voxdoc");
}

class EveryRelease : public testing::TestWithParam<int>
{
};

INSTANTIATE_TEST_SUITE_P(FromTheFirst, EveryRelease, testing::Range(1, voxbench::kNewestRelease + 1));

TEST_P(EveryRelease, WroteADocumentThatIsOpenedAndKnowsItsRelease)
{
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(DocumentOf(GetParam()), model, {}), "");
  EXPECT_EQ(model.Release(), GetParam());
  EXPECT_EQ(model.MembersOf("LoadSet").size(), 2u);
  EXPECT_EQ(model.MembersOf("RestraintSet").size(), 2u);
}

TEST_P(EveryRelease, WroteADocumentThatTellsWhatTheDeckTells)
{
  const std::string deck = voxtest::DataFile("layered.inp");
  for (const char* const command : {"groups", "check", "axes", "params", "connections"})
    EXPECT_EQ(voxtest::RunInProcess({command, DocumentOf(GetParam()), "--json"}).out,
              voxtest::RunInProcess({command, deck, "--json"}).out)
        << command;
}

TEST_P(EveryRelease, IsWrittenAgainAsItWrote)
{
  const std::string file = voxtest::TemporaryFile("again.voxdoc", "");
  ASSERT_EQ(voxtest::RunInProcess({"import", voxtest::DataFile("layered.inp"), "-o", file, "--force", "--catalogue",
                                   std::to_string(GetParam())})
                .code,
            0);
  LoadedModel kept;
  LoadedModel fresh;
  ASSERT_EQ(voxbench::ReadDocumentFile(DocumentOf(GetParam()), kept, {}), "");
  ASSERT_EQ(voxbench::ReadDocumentFile(file, fresh, {}), "");
  EXPECT_EQ(voxtest::TextOfDocument(fresh), voxtest::TextOfDocument(kept));
}

TEST_P(EveryRelease, HasACatalogueWhoseTypesFitEachOther)
{
  const auto types = voxbench::WorkbenchTypes(GetParam());
  EXPECT_EQ(voxbench::ReleaseOf(GetParam()).number, GetParam());
  voxhost::Document document(types);
  for (const auto& type : types->Types())
    EXPECT_TRUE(type->IsAbstract() || document.StartUp(type->Name()) != nullptr) << type->Name();
}

TEST(Releases, TheSelectionListsAreThoseOfTheNewestCatalogue)
{
  const auto types = voxbench::WorkbenchTypes();
  for (const auto& [type, entries] :
       {std::pair{"SectionKind", voxbench::SectionKinds()}, {"RestraintKind", voxbench::RestraintKinds()}})
  {
    std::vector<std::string> names;
    for (const voxbench::SelectionEntry& entry : entries)
    {
      names.emplace_back(entry.name);
      for (const char* const component : entry.components)
        EXPECT_TRUE(component == nullptr || types->Find(component) != nullptr) << component;
    }
    EXPECT_EQ(types->Find(type)->Parameter()->entries, names);
  }
}

TEST(Releases, TheTypesThatReplaceOthersStandInTheNewestCatalogue)
{
  const auto& replaced = voxbench::ReleaseOf(voxbench::kNewestRelease).replaced;
  EXPECT_FALSE(replaced.empty());
  for (const auto& [old, replacement] : replaced)
  {
    EXPECT_EQ(voxbench::WorkbenchTypes()->Find(old), nullptr) << old;
    EXPECT_NE(voxbench::WorkbenchTypes()->Find(replacement), nullptr) << replacement;
  }
}

TEST(Releases, EachChangesWhatItSaysItChanges)
{
  const auto names = [](int iRelease, const char* iType, const char* iAttribute)
  {
    voxhost::Document document(voxbench::WorkbenchTypes(iRelease));
    std::vector<std::string> all;
    for (const Feature* const component : document.StartUp(iType)->Features(iAttribute))
      all.emplace_back(component->Name().ConvertToChar());
    return all;
  };
  using Names = std::vector<std::string>;
  EXPECT_EQ(names(1, "DeckLoad", "SonsList"), Names{"LoadFactor"});
  EXPECT_EQ(names(2, "DeckLoad", "SonsList"), (Names{"LoadFactor", "LoadDelay"}));
  EXPECT_EQ(names(2, "ShellPlies", "Values"), Names{"PlyThickness"});
  EXPECT_EQ(names(3, "ShellPlies", "Values"), (Names{"PlyThickness", "PlyAngle"}));
  EXPECT_NE(voxbench::WorkbenchTypes(2)->Find("DeckBoundary"), nullptr);
  EXPECT_EQ(voxbench::WorkbenchTypes(2)->Find("DeckRestraint"), nullptr);
}

TEST(Releases, ALayeredShellHasAValueOfEachKindPerLayer)
{
  LoadedModel model;
  voxtest::OpenDeck("layered.inp", model);
  const Feature& plies = *model.MembersOf("PropertySet").at(0)->Features("SonsList").front();
  EXPECT_EQ(plies.Integer("Layers"), 3);
  EXPECT_EQ(plies.Integer("ValuesDim"), 2);
  std::string values;
  for (const Feature* const value : plies.Features("Values"))
    values +=
        std::string(value->Name().ConvertToChar()) + " " + std::to_string(value->Real("Value")).substr(0, 3) + "; ";
  EXPECT_EQ(values, "PlyThickness 0.5; PlyAngle 0.0; PlyThickness 1.0; PlyAngle 0.0; PlyThickness 0.5; PlyAngle 0.0; ");
}

TEST(Releases, ACatalogueThatThereIsNotIsAWrongUse)
{
  const auto run = voxtest::RunInProcess(
      {"import", voxtest::DataFile("layered.inp"), "-o", voxtest::TemporaryFile("x.voxdoc", ""), "--catalogue", "4"});
  EXPECT_EQ(run.code, 2);
  EXPECT_THAT(run.errors, testing::HasSubstr("--catalogue"));
}

} // namespace
