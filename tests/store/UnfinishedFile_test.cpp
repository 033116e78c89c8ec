// SPDX-License-Identifier: MIT
// What a program that a signal ends leaves behind.
#include "RunProgram.h"
#include "voxbench/store/Database.h"
#include "voxbench/store/PendingFile.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>

using testing::KilledBySignal;

namespace
{

//! A file alone in its folder.
class EndedProgram : public testing::Test
{
protected:
  std::size_t FilesInFolder() const
  {
    const std::filesystem::directory_iterator folder(std::filesystem::path(file).parent_path());
    return static_cast<std::size_t>(std::distance(begin(folder), end(folder)));
  }

  const std::string file = voxtest::TemporaryFile(
      std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) + "/old.voxdoc", "old");
};

TEST_F(EndedProgram, TakesItsPendingFilesAlong)
{
  const auto raised = [this](int iSignal)
  {
    voxbench::RemoveUnfinishedFilesWhenEnded();
    const voxbench::PendingFile one(file);
    const voxbench::PendingFile other(file + "-other");
    raise(iSignal);
  };
  for (const int signal : {SIGINT, SIGTERM, SIGHUP})
    EXPECT_EXIT(raised(signal), KilledBySignal(signal), "");
  EXPECT_EQ(FilesInFolder(), 1u);
  EXPECT_EQ(voxtest::ReadText(file), "old");
}

TEST_F(EndedProgram, LeavesWhatHasTakenItsPlace)
{
  const auto placed = [this]
  {
    voxbench::RemoveUnfinishedFilesWhenEnded();
    voxbench::PendingFile pending(file + "-new");
    pending.TakeFreePlace();
    raise(SIGTERM);
  };
  EXPECT_EXIT(placed(), KilledBySignal(SIGTERM), "");
  EXPECT_TRUE(std::filesystem::exists(file + "-new"));
}

TEST_F(EndedProgram, IgnoresWhatItsCallerIgnores)
{
  const auto ignored = []
  {
    std::signal(SIGHUP, SIG_IGN);
    voxbench::RemoveUnfinishedFilesWhenEnded();
    raise(SIGHUP);
    std::_Exit(0);
  };
  EXPECT_EXIT(ignored(), testing::ExitedWithCode(0), "");
}

TEST_F(EndedProgram, ADatabaseWithoutJournalIsOneFile)
{
  voxbench::Database database(file + "-database", voxbench::Database::Mode::kCreate);
  database.KeepNoJournal();
  database.Execute("BEGIN; CREATE TABLE one(number); INSERT INTO one VALUES(1)");
  EXPECT_EQ(FilesInFolder(), 2u);
  database.Execute("COMMIT");
}

} // namespace
