// SPDX-License-Identifier: MIT
// The completion in a real fish, which tells what it would offer.
#include "Shell.h"
#include "voxbench/commands/Command.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::UnorderedElementsAre;
using Words = std::vector<std::string>;

namespace
{

//! What fish offers at the end of each line, without the descriptions.
std::map<std::string, Words> Offered(const Words& iLines)
{
  std::string script = "source $argv[1]; for line in $argv[2..-1]; echo \"== $line\"; complete -C \"$line\"; end";
  std::string line = "cd " + voxtest::QuotedForShell(voxtest::FolderOfModels()) + " && fish --no-config -c " +
                     voxtest::QuotedForShell(script) + " " + voxtest::QuotedForShell(voxtest::CompletionFile("fish"));
  for (const std::string& typed : iLines)
    line += " " + voxtest::QuotedForShell(typed);
  const voxtest::ShellRun run = voxtest::RunShell(line);
  EXPECT_EQ(run.code, 0) << run.out;

  std::map<std::string, Words> offered;
  Words* current = nullptr;
  for (const std::string& found : voxtest::LinesOf(run.out))
    if (found.starts_with("== "))
      current = &offered[found.substr(3)];
    else if (current != nullptr)
      current->push_back(found.substr(0, found.find('\t')));
  return offered;
}

Words Offered(const std::string& iLine)
{
  return Offered(Words{iLine})[iLine];
}

TEST(FishCompletion, OffersEverySubcommandInTheFirstPlace)
{
  const Words offered = Offered("voxbench ");
  for (const voxbench::CommandFactory make : voxbench::CommandTable())
    EXPECT_THAT(offered, Contains(make()->Describe().name));
  EXPECT_THAT(offered, Contains("help"));
}

TEST(FishCompletion, OffersTheOptionsThatEachHelpLists)
{
  Words lines;
  const auto all = voxtest::OptionsOfHelp();
  for (const auto& [command, options] : all)
    for (const char* const begun : {" -", " --"})
      lines.push_back("voxbench " + command + begun);
  auto offered = Offered(lines);
  for (const auto& [command, options] : all)
  {
    std::set<std::string> names;
    for (const char* const begun : {" -", " --"})
      for (const std::string& name : offered["voxbench " + command + begun])
        names.insert(name);
    EXPECT_EQ(names, options) << command;
  }
}

TEST(FishCompletion, OffersTheValuesOfAnOptionThatAreKnown)
{
  EXPECT_THAT(Offered("voxbench groups bracket.inp --kind "), UnorderedElementsAre("NODE", "EDGE", "FACE", "ELEMENT"));
  EXPECT_THAT(Offered("voxbench completion "), UnorderedElementsAre("bash", "zsh", "fish"));
}

TEST(FishCompletion, OffersTheFilesThatASubcommandOpensAndFolders)
{
  EXPECT_THAT(Offered("voxbench groups "),
              UnorderedElementsAre("sub/", "bracket.inp", "with blank.inp", "packed.inp.gz", "kept.voxdoc"));
  EXPECT_THAT(Offered("voxbench import bracket.inp -o "), UnorderedElementsAre("sub/", "kept.voxdoc"));
}

TEST(FishCompletion, OffersAFileOnceHoweverManyOptionsStandBeforeIt)
{
  EXPECT_THAT(Offered("voxbench groups --ids --kind NODE --name=x br"), UnorderedElementsAre("bracket.inp"));
  EXPECT_THAT(Offered("voxbench groups bracket.inp --ids br"), testing::IsEmpty());
}

TEST(FishCompletion, KnowsTheSubcommandByItsPlaceAlone)
{
  EXPECT_THAT(Offered("voxbench owner groups --ki"), testing::IsEmpty());
  EXPECT_THAT(Offered("voxbench help gr"), UnorderedElementsAre("groups"));
}

} // namespace
