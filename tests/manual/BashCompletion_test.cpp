// SPDX-License-Identifier: MIT
// The completion in a real bash: its function is called as the shell calls it.
#include "RunProgram.h"
#include "Shell.h"
#include "voxbench/commands/Command.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::UnorderedElementsAre;
using voxtest::RunInProcess;
using Words = std::vector<std::string>;

namespace
{

//! What bash offers behind these words, in a folder of models. The last word is the one under the cursor.
Words Offered(const Words& iWords)
{
  std::string line = "cd " + voxtest::QuotedForShell(voxtest::FolderOfModels()) + " && bash --norc --noprofile -c ";
  line += voxtest::QuotedForShell("source \"$1\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _voxbench; "
                                  "((${#COMPREPLY[@]} == 0)) || printf '%s\\n' \"${COMPREPLY[@]}\"");
  line += " bash " + voxtest::QuotedForShell(voxtest::CompletionFile("bash"));
  for (const std::string& word : iWords)
    line += " " + voxtest::QuotedForShell(word);
  const voxtest::ShellRun run = voxtest::RunShell(line);
  EXPECT_EQ(run.code, 0) << run.out;
  return voxtest::LinesOf(run.out);
}

TEST(BashCompletion, OffersEverySubcommandInTheFirstPlace)
{
  const Words offered = Offered({"voxbench", ""});
  for (const voxbench::CommandFactory make : voxbench::CommandTable())
    EXPECT_THAT(offered, Contains(make()->Describe().name));
  EXPECT_THAT(offered, IsSupersetOf({"help", "--help", "-h", "--version"}));
  EXPECT_THAT(Offered({"voxbench", "co"}), UnorderedElementsAre("connections", "completion"));
}

TEST(BashCompletion, OffersTheOptionsThatEachHelpLists)
{
  for (const auto& [command, options] : voxtest::OptionsOfHelp())
  {
    EXPECT_GE(options.size(), 2u) << command;
    EXPECT_THAT(Offered({"voxbench", command, "-"}), testing::UnorderedElementsAreArray(options)) << command;
  }
}

TEST(BashCompletion, OffersTheValuesOfAnOptionThatAreKnown)
{
  EXPECT_THAT(Offered({"voxbench", "groups", "bracket.inp", "--kind", ""}),
              ElementsAre("NODE", "EDGE", "FACE", "ELEMENT"));
  EXPECT_THAT(Offered({"voxbench", "import", "--catalogue", ""}), ElementsAre("1", "2", "3"));
  EXPECT_THAT(Offered({"voxbench", "results", "--version", "a"}), ElementsAre("all"));
  EXPECT_THAT(Offered({"voxbench", "results", "--type", "STR"}), ElementsAre("STRESS"));
  EXPECT_THAT(Offered({"voxbench", "completion", ""}), UnorderedElementsAre("bash", "zsh", "fish"));
}

// Bash takes --kind=NODE for three words.
TEST(BashCompletion, OffersTheValuesBehindAnEqualsSignToo)
{
  EXPECT_THAT(Offered({"voxbench", "groups", "--kind", "="}), ElementsAre("NODE", "EDGE", "FACE", "ELEMENT"));
  EXPECT_THAT(Offered({"voxbench", "groups", "--kind", "=", "F"}), ElementsAre("FACE"));
}

TEST(BashCompletion, OffersNothingForATextOfTheUsersOwn)
{
  EXPECT_THAT(Offered({"voxbench", "groups", "--name", ""}), IsEmpty());
  EXPECT_THAT(Offered({"voxbench", "owner", "bracket.inp", ""}), IsEmpty());
}

TEST(BashCompletion, OffersTheFilesThatASubcommandOpensAndFolders)
{
  EXPECT_THAT(Offered({"voxbench", "groups", ""}),
              UnorderedElementsAre("sub", "bracket.inp", "with blank.inp", "packed.inp.gz", "kept.voxdoc"));
  EXPECT_THAT(Offered({"voxbench", "results", ""}), UnorderedElementsAre("sub", "bracket.frd"));
  EXPECT_THAT(Offered({"voxbench", "upgrade", ""}), UnorderedElementsAre("sub", "kept.voxdoc"));
  EXPECT_THAT(Offered({"voxbench", "import", "k"}), IsEmpty());
  EXPECT_THAT(Offered({"voxbench", "import", "bracket.inp", "-o", ""}), UnorderedElementsAre("sub", "kept.voxdoc"));
  EXPECT_THAT(Offered({"voxbench", "results", "--deck", "b"}), ElementsAre("bracket.inp"));
}

TEST(BashCompletion, FindsAFileByAPartOfANameWithABlank)
{
  EXPECT_THAT(Offered({"voxbench", "groups", "with\\ "}), ElementsAre("with blank.inp"));
  EXPECT_THAT(Offered({"voxbench", "groups", "'with b"}), ElementsAre("with blank.inp"));
}

TEST(BashCompletion, OffersAFileOnceHoweverManyOptionsStandBeforeIt)
{
  const Words before{"voxbench", "groups", "--ids", "--kind", "NODE", "--name", "=", "x"};
  Words words = before;
  words.emplace_back("br");
  EXPECT_THAT(Offered(words), ElementsAre("bracket.inp"));
  words.back() = "bracket.inp";
  words.emplace_back("br");
  EXPECT_THAT(Offered(words), IsEmpty());
}

TEST(BashCompletion, OffersSubcommandsBehindHelp)
{
  EXPECT_THAT(Offered({"voxbench", "help", "gr"}), ElementsAre("groups"));
}

TEST(BashCompletion, IsBoundToTheProgram)
{
  const std::string line = "bash --norc --noprofile -c 'source \"$1\" && complete -p voxbench' bash ";
  const voxtest::ShellRun run = voxtest::RunShell(line + voxtest::QuotedForShell(voxtest::CompletionFile("bash")));
  EXPECT_EQ(run.out, "complete -F _voxbench voxbench\n");
}

// A value that is offered and then refused would be a lie.
TEST(Completion, EveryValueThatIsOfferedIsAccepted)
{
  const std::map<std::string, Words> needed{{"import", {"-o", "out.voxdoc"}}, {"results", {"--type", "U"}}};
  int tried = 0;
  for (const voxbench::CommandFactory make : voxbench::CommandTable())
  {
    const voxbench::CommandDescription command = make()->Describe();
    for (const auto& values : command.values)
      for (const std::string& word : values.words)
      {
        const bool isOption = values.argument.starts_with("-");
        Words words{command.name, isOption ? "/no/such/file" : word};
        if (const auto more = needed.find(command.name); more != needed.end() && more->second[0] != values.argument)
          words.insert(words.end(), more->second.begin(), more->second.end());
        if (isOption)
          words.insert(words.end(), {values.argument, word});
        const auto run = RunInProcess(words);
        EXPECT_EQ(run.code, isOption ? 3 : 0) << command.name << " " << values.argument << " " << word << run.errors;
        ++tried;
      }
  }
  EXPECT_GT(tried, 30);
}

TEST(Completion, AShellThatIsNotKnownIsAWrongUse)
{
  const auto run = RunInProcess({"completion", "tcsh"});
  EXPECT_EQ(run.code, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.errors, testing::HasSubstr("needs bash, zsh or fish, not tcsh"));
}

} // namespace
