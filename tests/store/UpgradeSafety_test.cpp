// SPDX-License-Identifier: MIT
// Whatever happens while a document is written: there is the old one or the new one, whole.
#include "UpgradedDocument.h"

#include <csignal>
#include <sqlite3.h>
#include <unistd.h>

using testing::HasSubstr;

namespace
{

class UpgradeSafety : public voxtest::UpgradedDocument
{
protected:
  voxtest::RunResult UpgradeUnder(const std::string& iBefore) const
  {
    return voxtest::RunBuiltProgram({"upgrade", file, "--write"}, iBefore);
  }

  //! Whether the upgrade has taken place; fails for anything but the old document or a whole new one.
  bool IsNew() const
  {
    if (voxtest::ReadText(file) == original)
      return false;
    const auto run = RunUpgrade();
    EXPECT_EQ(run.code, 0) << run.out << run.errors;
    EXPECT_EQ(voxtest::ReadText(file + ".backup-1"), original);
    return true;
  }

  static constexpr int kBlockBytes = 512; // of ulimit -f
};

TEST_F(UpgradeSafety, AWriteThatFailsAnywhereLeavesTheOldDocumentAlone)
{
  const int enough = static_cast<int>(original.size()) / kBlockBytes * 2;
  bool wasDone = false;
  for (int blocks = 0; blocks <= enough && !wasDone; blocks += 12)
  {
    const auto run = UpgradeUnder("trap '' XFSZ; ulimit -f " + std::to_string(blocks) + ";");
    wasDone = IsNew();
    EXPECT_EQ(run.code, wasDone ? 1 : 4) << blocks;
    EXPECT_EQ(FilesInFolder(), wasDone ? 2u : 1u) << blocks;
  }
  EXPECT_TRUE(wasDone);
}

TEST_F(UpgradeSafety, BeingKilledAtAnyWriteLeavesTheOldDocumentWhole)
{
  const int enough = static_cast<int>(original.size()) / kBlockBytes * 2;
  for (int blocks = 0; blocks <= enough; blocks += 12) // the signal of the limit ends the program
  {
    UpgradeUnder("ulimit -c 0; ulimit -f " + std::to_string(blocks) + ";");
    if (IsNew())
      return;
  }
  FAIL() << "no limit was high enough";
}

TEST_F(UpgradeSafety, ASignalThatEndsItLeavesNoOtherFileBehind)
{
  for (int blocks = 0; blocks <= 48; blocks += 12)
  {
    const auto run = UpgradeUnder("ulimit -c 0; ulimit -f " + std::to_string(blocks) + ";");
    EXPECT_EQ(run.code, 128 + SIGXFSZ) << blocks;
    EXPECT_EQ(FilesInFolder(), 1u) << blocks;
    EXPECT_EQ(voxtest::ReadText(file), original) << blocks;
  }
}

TEST_F(UpgradeSafety, BeingKilledAtAnyMomentLeavesTheOldOrTheNewDocumentWhole)
{
  int killedBefore = 0;
  int done = 0;
  for (int tenths = 0; tenths < 400 && done < 3; tenths += 8)
  {
    TakeRelease(1);
    UpgradeUnder("timeout -s KILL " + std::to_string(tenths / 10000.) + " ");
    IsNew() ? ++done : ++killedBefore;
  }
  EXPECT_GT(killedBefore + done, 3);
}

TEST_F(UpgradeSafety, ADocumentThatAnotherProgramHoldsIsNotWritten)
{
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(database, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  const auto run = RunUpgrade({"--write"});
  sqlite3_close(database);
  EXPECT_EQ(run.code, 3);
  EXPECT_THAT(run.errors, HasSubstr("another program is using the document"));
  EXPECT_EQ(voxtest::ReadText(file), original);
}

TEST_F(UpgradeSafety, ADocumentThatChangedMeanwhileIsNotWritten)
{
  voxbench::LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  TakeRelease(2);
  std::string backup;
  EXPECT_THAT(voxbench::RewriteDocumentFile(file, model, 3, {}, backup), HasSubstr("another program has changed it"));
  EXPECT_EQ(voxtest::ReadText(file), original);
  EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(UpgradeSafety, ADocumentThatMayNotBeWrittenIsNotWritten)
{
  if (geteuid() == 0)
    GTEST_SKIP() << "root may write everything";
  std::filesystem::permissions(file, std::filesystem::perms::owner_read);
  const auto run = RunUpgrade({"--write"});
  EXPECT_EQ(run.code, 4);
  EXPECT_THAT(run.errors, HasSubstr("Permission denied"));
}

TEST_F(UpgradeSafety, KeepsThePermissionsOfTheDocument)
{
  using std::filesystem::perms;
  std::filesystem::permissions(file, perms::owner_read | perms::owner_write | perms::group_read);
  RunUpgrade({"--write"});
  EXPECT_EQ(std::filesystem::status(file).permissions(), perms::owner_read | perms::owner_write | perms::group_read);
}

TEST_F(UpgradeSafety, KeepsTablesAndFactsThatItDoesNotKnow)
{
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(file.c_str(), &database), SQLITE_OK);
  ASSERT_EQ(
      sqlite3_exec(database, "CREATE TABLE note(text); INSERT INTO note VALUES('mine')", nullptr, nullptr, nullptr),
      SQLITE_OK);
  sqlite3_close(database);
  original = voxtest::ReadText(file);
  EXPECT_EQ(RunUpgrade({"--write"}).code, 1);
  EXPECT_THAT(voxtest::ReadText(file), HasSubstr("mine"));
}

} // namespace
