// SPDX-License-Identifier: MIT
// What is no document, or not all of one, is refused with a sentence and left alone.
#include "DocumentText.h"
#include "RunProgram.h"
#include "voxbench/store/DocumentFile.h"
#include "voxbench/store/DocumentTables.h"

#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <gmock/gmock.h>
#include <sqlite3.h>

using testing::HasSubstr;
using voxbench::LoadedModel;

namespace
{

class RefusedFile : public testing::Test
{
protected:
  void SetUp() override
  {
    LoadedModel model;
    voxtest::OpenDeck("plate_on_block.inp", model);
    ASSERT_EQ(voxbench::WriteDocumentFile(file, model, true, {}), "");
    bytes = voxtest::ReadText(file);
  }

  //! What opening a file of these bytes says; the file must stay as it is, and alone.
  std::string Refusal(const std::string& iBytes) const
  {
    voxtest::TemporaryFile("refused/x.voxdoc", iBytes);
    LoadedModel model;
    const std::string reason = voxbench::ReadDocumentFile(refused, model, {});
    EXPECT_EQ(voxtest::ReadText(refused), iBytes);
    const std::filesystem::directory_iterator files(std::filesystem::path(refused).parent_path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
    return reason;
  }

  std::string With(std::size_t iPlace, const std::string& iBytes) const
  {
    std::string changed = bytes;
    return changed.replace(iPlace, iBytes.size(), iBytes);
  }

  void Execute(const std::string& iStatement) const
  {
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, iStatement.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(database);
  }

  const std::string file = voxtest::TemporaryFile("whole.voxdoc", "");
  const std::string refused = voxtest::TemporaryFile("refused/x.voxdoc", "");
  std::string bytes;
};

TEST_F(RefusedFile, ADocumentOfANewerFormatIsNamedWithItsVersionAndOurs)
{
  EXPECT_EQ(Refusal(With(60, std::string("\0\0\0\x09", 4))),
            refused + ": the document is of format 9, and this program reads up to format 1: use a newer voxbench.");
}

TEST_F(RefusedFile, ADatabaseOfAnotherProgramIsNoDocument)
{
  EXPECT_THAT(Refusal(With(68, "ABCD")), HasSubstr("a database of another program"));
}

TEST_F(RefusedFile, AFileOfOtherBytesIsNoDocument)
{
  EXPECT_THAT(Refusal("*NODE\n1, 0., 0., 0.\n"), HasSubstr("it is no analysis document"));
  EXPECT_THAT(Refusal(""), HasSubstr("the file is empty: restore it"));
}

TEST_F(RefusedFile, ADocumentIsKnownByItsContentWhateverItIsCalled)
{
  EXPECT_EQ(voxtest::RunInProcess({"tree", voxtest::TemporaryFile("document.inp", bytes)}).code, 0);
  EXPECT_FALSE(voxbench::IsDocumentFile(voxtest::DataFile("joined.inp")));
}

TEST_F(RefusedFile, ATruncatedDocumentIsCalledSo)
{
  for (const std::size_t size :
       {bytes.size() - 1, bytes.size() / 2, std::size_t{5000}, std::size_t{100}, std::size_t{50}})
    EXPECT_THAT(Refusal(bytes.substr(0, size)), HasSubstr("the document is truncated")) << size;
}

TEST_F(RefusedFile, AModeThatThisProgramDoesNotWriteIsRefused)
{
  EXPECT_THAT(Refusal(With(18, "\x02\x02")), HasSubstr("write-ahead log"));
}

TEST_F(RefusedFile, AFolderIsNoDocument)
{
  LoadedModel model;
  const std::string folder = std::filesystem::path(refused).parent_path();
  EXPECT_THAT(voxbench::ReadDocumentFile(folder, model, {}), HasSubstr("it is a directory"));
}

TEST_F(RefusedFile, ADocumentWithoutATableIsDamaged)
{
  Execute("DROP TABLE mesh");
  EXPECT_THAT(Refusal(voxtest::ReadText(file)), HasSubstr("the document is damaged: no such table: mesh"));
}

TEST_F(RefusedFile, AValueThatSomebodyChangedIsNoticed)
{
  for (const char* const change :
       {"UPDATE value SET value = 7 WHERE attribute IN (SELECT id FROM attribute WHERE name = 'Step')",
        "UPDATE object SET name = 'other' WHERE tag = 5", "UPDATE record SET kind = 'load' WHERE kind = 'restraint'",
        "UPDATE mesh SET data = zeroblob(length(data)) WHERE array = 'coordinates'",
        "UPDATE meta SET value = 3 WHERE key = 'tags'", "UPDATE meta SET value = 2 WHERE key = 'catalogue'"})
  {
    std::ofstream(file, std::ios::binary) << bytes;
    Execute(change);
    EXPECT_THAT(Refusal(voxtest::ReadText(file)), HasSubstr("damaged: ")) << change;
  }
}

// The sums are right, as in a file that was made so.
TEST_F(RefusedFile, AFeatureThatStandsBelowItselfIsDamage)
{
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  const std::uint32_t root = model.Root().Identifier();
  const std::uint32_t child = LoadedModel::ChildrenOf(model.Root()).front()->Identifier();
  ASSERT_LT(root, 256u);
  Execute(fmt::format("UPDATE value SET value = x'{:02x}000000' WHERE feature = {} AND attribute IN (SELECT id FROM "
                      "attribute WHERE name = 'SonsList')",
                      root, child));
  voxbench::Database database(file, voxbench::Database::Mode::kRead);
  voxbench::Checksum sum;
  try
  {
    voxbench::ReadDocument(database, sum, {});
    FAIL() << "the circle was taken over";
  }
  catch (const voxbench::Damaged& damage)
  {
    EXPECT_THAT(damage.what(), HasSubstr("stands below itself"));
  }
}

TEST_F(RefusedFile, ADocumentThatAnotherProgramHoldsIsCalledSo)
{
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(database, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  LoadedModel model;
  EXPECT_THAT(voxbench::ReadDocumentFile(file, model, {}), HasSubstr("another program is using the document"));
  sqlite3_close(database);
}

TEST_F(RefusedFile, EverySubcommandRefusesItWithItsSentence)
{
  const std::string newer = voxtest::TemporaryFile("newer.voxdoc", With(60, std::string("\0\0\0\x09", 4)));
  for (const char* const command : {"info", "tree", "groups", "check", "axes", "params", "connections"})
  {
    const auto run = voxtest::RunInProcess({command, newer});
    EXPECT_EQ(run.code, 3) << command;
    EXPECT_EQ(run.out, "") << command;
    EXPECT_THAT(run.errors, HasSubstr("voxbench: " + newer + ": the document is of format 9")) << command;
  }
}

} // namespace
