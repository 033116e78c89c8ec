// SPDX-License-Identifier: MIT
// What holds for every subcommand, seen from a shell.
#include "RunProgram.h"
#include "voxbench/commands/Command.h"
#include "voxbench/commands/Progress.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <sstream>
#include <unistd.h>

using testing::HasSubstr;
using testing::Not;
using voxtest::RunBuiltProgram;
using voxtest::RunInProcess;

namespace
{

const std::string kDeck = voxtest::DataFile("plate_on_block.inp");

std::vector<voxbench::CommandDescription> AllDescriptions()
{
  std::vector<voxbench::CommandDescription> all;
  for (const voxbench::CommandFactory make : voxbench::CommandTable())
    all.push_back(make()->Describe());
  return all;
}

//! Those that open a file.
std::vector<voxbench::CommandDescription> DescriptionsWithFile()
{
  std::vector<voxbench::CommandDescription> all = AllDescriptions();
  const auto opensNone = [](const voxbench::CommandDescription& iCommand)
  {
    return std::none_of(iCommand.values.begin(), iCommand.values.end(),
                        [](const auto& iValues) { return iValues.argument == "FILE"; });
  };
  all.erase(std::remove_if(all.begin(), all.end(), opensNone), all.end());
  return all;
}

//! The words of a subcommand's first example, on another file.
std::vector<std::string> FirstExampleOn(const voxbench::CommandDescription& iCommand, const std::string& iFile)
{
  std::istringstream words(iCommand.examples.front().line);
  std::vector<std::string> arguments;
  for (std::string word; words >> word;)
  {
    const bool isDocument = word == "bracket.voxdoc" && arguments.size() == 2; // and not the one to write
    arguments.push_back(isDocument || word == "bracket.inp" || word == "bracket.frd" ? iFile : word);
  }
  arguments.erase(arguments.begin()); // the program itself
  return arguments;
}

TEST(Program, HelpListsEverySubcommandWithItsSummary)
{
  const auto run = RunBuiltProgram({"--help"});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.errors, "");
  for (const auto& command : AllDescriptions())
  {
    EXPECT_THAT(run.out, HasSubstr(command.name));
    EXPECT_THAT(run.out, HasSubstr(command.summary));
  }
}

TEST(Program, HelpOfEverySubcommandHasExamplesAndExitCodes)
{
  for (const auto& command : AllDescriptions())
  {
    const auto run = RunInProcess({command.name, "--help"});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.out, HasSubstr("Usage: voxbench " + command.name));
    for (const auto& example : command.examples)
      EXPECT_THAT(run.out, HasSubstr(example.line));
    for (const auto& exit : command.exits)
      EXPECT_THAT(run.out, HasSubstr(std::to_string(exit.code) + "  " + exit.meaning));
  }
}

TEST(Program, EverySubcommandThatOpensAFileHasItsResultAsJson)
{
  EXPECT_GE(DescriptionsWithFile().size(), 14u);
  for (const auto& command : DescriptionsWithFile())
    EXPECT_THAT(RunInProcess({command.name, "--help"}).out, HasSubstr("--json")) << command.name;
}

TEST(Program, NoLineOfAnyHelpIsWiderThanAnOrdinaryWindow)
{
  for (const auto& command : AllDescriptions())
  {
    std::istringstream lines(RunInProcess({command.name, "--help"}).out);
    for (std::string line; std::getline(lines, line);)
      EXPECT_LE(line.size(), 110u) << line;
  }
}

TEST(Program, HelpMayBeAskedAsASubcommand)
{
  EXPECT_EQ(RunInProcess({"help"}).out, RunInProcess({"--help"}).out);
  EXPECT_EQ(RunInProcess({"help", "tree"}).out, RunInProcess({"tree", "--help"}).out);
  EXPECT_EQ(RunInProcess({"help", "wobble"}).code, 2);
}

TEST(Program, TellsItsVersion)
{
  const auto run = RunBuiltProgram({"--version"});
  EXPECT_EQ(run.code, 0);
  EXPECT_TRUE(run.out.starts_with("voxbench ")) << run.out;
}

TEST(Program, WithoutArgumentsPrintsItsHelpAsAWrongUse)
{
  const auto run = RunBuiltProgram({});
  EXPECT_EQ(run.code, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.errors, HasSubstr("groups"));
}

TEST(Program, AnUnknownSubcommandIsAWrongUseAndNamesThoseThatExist)
{
  const auto run = RunBuiltProgram({"grups", kDeck});
  EXPECT_EQ(run.code, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.errors, HasSubstr("there is no command grups; there are info, tree, groups"));
}

TEST(Program, AMissingFileArgumentIsAWrongUse)
{
  for (const auto& command : DescriptionsWithFile())
  {
    const auto run = RunInProcess({command.name});
    EXPECT_EQ(run.code, 2);
    EXPECT_THAT(run.errors, HasSubstr("voxbench " + command.name + ": FILE is required"));
  }
}

TEST(Program, AnUnknownOptionIsAWrongUse)
{
  const auto run = RunBuiltProgram({"info", kDeck, "--jsn"});
  EXPECT_EQ(run.code, 2);
  EXPECT_THAT(run.errors, HasSubstr("--jsn"));
}

TEST(Program, AFileThatIsNotThereIsUnreadable)
{
  for (const auto& command : DescriptionsWithFile())
  {
    const auto run = RunBuiltProgram(FirstExampleOn(command, "/no/such/deck.inp"));
    EXPECT_EQ(run.code, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.errors, HasSubstr("/no/such/deck.inp"));
  }
}

TEST(Program, AFileWithoutANameIsAWrongUse)
{
  for (const std::string command : {"info", "tree", "upgrade", "results"})
  {
    const auto run = RunInProcess({command, ""});
    EXPECT_EQ(run.code, 2) << command;
    EXPECT_THAT(run.errors, HasSubstr("FILE: the name of a file is needed")) << command;
  }
}

TEST(Program, AFolderIsUnreadable)
{
  const auto run = RunBuiltProgram({"groups", std::filesystem::temp_directory_path().string()});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.errors, HasSubstr("irectory"));
}

TEST(Program, AnEmptyFileIsUnreadable)
{
  const auto run = RunBuiltProgram({"tree", voxtest::TemporaryFile("empty.inp", "")});
  EXPECT_EQ(run.code, 3);
  EXPECT_THAT(run.errors, HasSubstr("empty.inp:1: the file is empty"));
}

TEST(Program, AFileWithoutReadPermissionIsUnreadable)
{
  if (geteuid() == 0)
    GTEST_SKIP() << "root may read everything";
  const std::string file = voxtest::TemporaryFile("locked.inp", "*NODE\n1, 0., 0., 0.\n");
  std::filesystem::permissions(file, std::filesystem::perms::none);
  const auto run = RunBuiltProgram({"info", file});
  EXPECT_EQ(run.code, 3);
  EXPECT_THAT(run.errors, HasSubstr("locked.inp"));
}

TEST(Program, AFileOfAnotherKindIsRefusedWithItsReason)
{
  const auto run = RunBuiltProgram({"info", voxtest::TemporaryFile("foreign.inp", std::string("\x7f"
                                                                                              "ELF\0\0\0\0",
                                                                                              8))});
  EXPECT_EQ(run.code, 3);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.errors, HasSubstr("foreign.inp"));
}

TEST(Program, AMissingIncludedFileIsNamedWithTheLineThatIncludesIt)
{
  const std::string file = voxtest::TemporaryFile("main.inp", "*NODE\n1, 0., 0., 0.\n*INCLUDE, INPUT=absent.inp\n");
  const auto run = RunBuiltProgram({"groups", file});
  EXPECT_EQ(run.code, 3);
  EXPECT_THAT(run.errors, HasSubstr("main.inp:3"));
  EXPECT_THAT(run.errors, HasSubstr("absent.inp"));
}

TEST(Program, AnOutputThatCannotBeWrittenIsAFailure)
{
  if (!std::filesystem::exists("/dev/full"))
    GTEST_SKIP() << "there is no device that is always full";
  for (const std::string& arguments : {"info '" + kDeck + "'", std::string("--help"), std::string("info --help")})
  {
    const int status = std::system((VOXBENCH_PROGRAM " " + arguments + " >/dev/full 2>/dev/null").c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1) << arguments;
  }
}

TEST(Progress, DrawsNothingForQuickWork)
{
  std::ostringstream stream;
  {
    voxbench::Progress progress(stream, "Reading", true);
    progress.Report(1, 2);
    progress.Report(2, 2);
  }
  EXPECT_EQ(stream.str(), "");
}

} // namespace
