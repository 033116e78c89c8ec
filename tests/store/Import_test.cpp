// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"

#include <filesystem>
#include <gmock/gmock.h>

using nlohmann::json;
using testing::HasSubstr;
using voxtest::RunBuiltProgram;
using voxtest::RunInProcess;

namespace
{

class Import : public testing::Test
{
protected:
  void SetUp() override { std::filesystem::remove(document); }

  //! The files beside the document, which stands alone in its folder.
  std::size_t FilesBeside() const
  {
    const std::filesystem::directory_iterator files(std::filesystem::path(document).parent_path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

  const std::string deck = voxtest::DataFile("plate_on_block.inp");
  const std::string document = voxtest::TemporaryFile("imported/plate.voxdoc", "");
};

TEST_F(Import, MakesADocumentAndTellsWhatIsInIt)
{
  const auto run = RunBuiltProgram({"import", deck, "-o", document});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_EQ(run.out, document + ": release 3, 44 features, 12 nodes, 5 elements.\n");
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(FilesBeside(), 1u);
}

TEST_F(Import, TellsTheSameAsJson)
{
  const json output = json::parse(RunInProcess({"import", deck, "-o", document, "--json"}).out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("import"), output), std::vector<std::string>{});
  EXPECT_EQ(output["features"], 44);
  EXPECT_EQ(output["bytes"], std::filesystem::file_size(document));
}

TEST_F(Import, EverySubcommandTellsOfTheDocumentWhatItTellsOfTheDeck)
{
  for (const char* const name : {"plate_on_block.inp", "joined.inp", "questionable.inp"})
  {
    const std::string file = voxtest::DataFile(name);
    ASSERT_EQ(RunInProcess({"import", file, "-o", document, "--force"}).code, 0);
    for (const char* const command : {"tree", "groups", "check", "axes", "params", "connections", "expressions"})
    {
      const auto ofDeck = RunInProcess({command, file, "--json"});
      const auto ofDocument = RunInProcess({command, document, "--json"});
      EXPECT_EQ(ofDocument.code, ofDeck.code) << command << " " << name;
      EXPECT_EQ(ofDocument.out, ofDeck.out) << command << " " << name;
    }
    EXPECT_EQ(RunInProcess({"owner", document, "1", "2", "--json"}).out,
              RunInProcess({"owner", file, "1", "2", "--json"}).out);
  }
}

TEST_F(Import, InfoTellsOfTheDocumentAndWhatTheReaderFound)
{
  const std::string file = voxtest::DataFile("questionable.inp");
  ASSERT_EQ(RunInProcess({"import", file, "-o", document}).code, 0);
  json ofDeck = json::parse(RunInProcess({"info", file, "--json"}).out);
  json ofDocument = json::parse(RunInProcess({"info", document, "--json"}).out);
  EXPECT_EQ(ofDocument["file"], document);
  EXPECT_EQ(ofDocument["bytes"], std::filesystem::file_size(document));
  for (const char* const own : {"file", "bytes"})
  {
    ofDeck.erase(own);
    ofDocument.erase(own);
  }
  EXPECT_EQ(ofDocument, ofDeck);
}

TEST_F(Import, LeavesAFileThatIsThereAlready)
{
  voxtest::TemporaryFile("imported/plate.voxdoc", "my work");
  const auto run = RunBuiltProgram({"import", deck, "-o", document});
  EXPECT_EQ(run.code, 4);
  EXPECT_THAT(run.errors, HasSubstr("is there already"));
  EXPECT_THAT(run.errors, HasSubstr("--force"));
  EXPECT_EQ(voxtest::ReadText(document), "my work");
}

TEST_F(Import, ReplacesAFileWhenItIsForcedTo)
{
  voxtest::TemporaryFile("imported/plate.voxdoc", "my work");
  EXPECT_EQ(RunBuiltProgram({"import", deck, "-o", document, "--force"}).code, 0);
  EXPECT_EQ(RunBuiltProgram({"tree", document}).code, 0);
}

TEST_F(Import, NeverReplacesItsDeck)
{
  const std::string copy = voxtest::TemporaryFile("imported/plate.voxdoc", "*NODE\n1, 0., 0., 0.\n");
  const std::string same = voxtest::TemporaryFile("same.inp", "*NODE\n1, 0., 0., 0.\n");
  const auto run = RunBuiltProgram({"import", same, "-o", same, "--force"});
  EXPECT_EQ(run.code, 4);
  EXPECT_THAT(run.errors, HasSubstr("is the deck itself"));
  EXPECT_EQ(voxtest::ReadText(same), voxtest::ReadText(copy));
}

TEST_F(Import, WritesNothingOfADeckThatCannotBeRead)
{
  const std::string empty = voxtest::TemporaryFile("empty.inp", "");
  EXPECT_EQ(RunBuiltProgram({"import", empty, "-o", document}).code, 3);
  EXPECT_EQ(FilesBeside(), 0u);
}

TEST_F(Import, RefusesADocumentInPlaceOfADeck)
{
  ASSERT_EQ(RunBuiltProgram({"import", deck, "-o", document}).code, 0);
  const auto run = RunBuiltProgram({"import", document, "-o", document + ".voxdoc"});
  EXPECT_EQ(run.code, 3);
  EXPECT_THAT(run.errors, HasSubstr("is a document, no deck"));
}

TEST_F(Import, SaysWhyADocumentCannotBeMade)
{
  const auto run = RunBuiltProgram({"import", deck, "-o", "/no/such/folder/plate.voxdoc"});
  EXPECT_EQ(run.code, 4);
  EXPECT_THAT(run.errors, HasSubstr("/no/such/folder"));
  EXPECT_THAT(run.errors, HasSubstr("there is no folder /no/such/folder; make it first"));
  EXPECT_EQ(RunBuiltProgram({"import", deck, "-o", "/dev/null", "--force"}).code, 4);
}

TEST_F(Import, ADocumentWithoutANameIsAWrongUse)
{
  const auto run = RunBuiltProgram({"import", deck, "-o", ""});
  EXPECT_EQ(run.code, 2);
  EXPECT_THAT(run.errors, HasSubstr("--output: the name of a file is needed"));
}

TEST_F(Import, LeavesTheOldFileWhenTheDiskIsFull)
{
  voxtest::TemporaryFile("imported/plate.voxdoc", "my work");
  for (const char* const blocks : {"0", "1", "8", "40"})
  {
    const auto run = RunBuiltProgram({"import", deck, "-o", document, "--force"},
                                     std::string("trap '' XFSZ; ulimit -f ") + blocks + ";");
    EXPECT_EQ(run.code, 4) << blocks;
    EXPECT_EQ(voxtest::ReadText(document), "my work") << blocks;
    EXPECT_EQ(FilesBeside(), 1u) << blocks;
  }
}

TEST_F(Import, WritesToTheFileThatALinkLeadsTo)
{
  const std::string target = voxtest::TemporaryFile("linked.voxdoc", "old");
  std::filesystem::create_symlink(target, document);
  EXPECT_EQ(RunBuiltProgram({"import", deck, "-o", document, "--force"}).code, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(document));
  EXPECT_EQ(RunBuiltProgram({"tree", target}).code, 0);
}

TEST_F(Import, ADocumentThatIsReplacedKeepsItsPermissions)
{
  using std::filesystem::perms;
  ASSERT_EQ(RunInProcess({"import", deck, "-o", document}).code, 0);
  std::filesystem::permissions(document, perms::owner_read | perms::owner_write);
  ASSERT_EQ(RunInProcess({"import", deck, "-o", document, "--force"}).code, 0);
  EXPECT_EQ(std::filesystem::status(document).permissions(), perms::owner_read | perms::owner_write);
}

TEST_F(Import, ALinkToNoFileYetIsFollowed)
{
  const std::filesystem::path link = std::filesystem::path(document).parent_path() / "link.voxdoc";
  std::filesystem::create_symlink("plate.voxdoc", link);
  EXPECT_EQ(RunInProcess({"import", deck, "-o", link.string(), "--force"}).code, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_TRUE(std::filesystem::is_regular_file(document));
  std::filesystem::remove(link);
}

} // namespace
