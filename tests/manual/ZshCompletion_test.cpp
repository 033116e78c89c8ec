// SPDX-License-Identifier: MIT
// The completion in a real zsh: an interactive one, at whose terminal a line is typed and completed.
#include "RunProgram.h"
#include "Shell.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <stdlib.h>
#include <unistd.h>

using testing::HasSubstr;

namespace
{

//! Types the second argument and waits until the third is shown; what was shown goes out.
constexpr const char* kTyping = R"script(
zmodload zsh/zpty
zpty shell 'TERM=dumb zsh -f -i'
zpty -w shell "PS1='> '; stty cols 200; cd ${(q)4}; autoload -U compinit; compinit -u -D; source ${(q)1}; print REA''DY"
zpty -r shell shown '*READY*'
zpty -w -n shell "$2"$'\t\t'
zpty -r shell shown "*$3*"
print -r -- "$shown"
zpty -d shell
)script";

std::string Shown(const std::string& iTyped, const std::string& iAwaited)
{
  const std::string script = voxtest::TemporaryFile("type.zsh", kTyping);
  const voxtest::ShellRun run = voxtest::RunShell(
      "timeout 60 zsh -f " + voxtest::QuotedForShell(script) + " " +
      voxtest::QuotedForShell(voxtest::CompletionFile("zsh")) + " " + voxtest::QuotedForShell(iTyped) + " " +
      voxtest::QuotedForShell(iAwaited) + " " + voxtest::QuotedForShell(voxtest::FolderOfModels()));
  EXPECT_EQ(run.code, 0) << iAwaited << " was not offered for " << iTyped;
  return run.out;
}

class ZshAtATerminal : public testing::Test
{
  void SetUp() override
  {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    if (terminal < 0)
      GTEST_SKIP() << "this system has no pseudo terminals (/dev/pts)";
    close(terminal);
  }
};

TEST(ZshCompletion, HasNoErrorInItsSyntax)
{
  const voxtest::ShellRun run = voxtest::RunShell("zsh -n " + voxtest::CompletionFile("zsh"));
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.code, 0);
}

TEST(ZshCompletion, SpecifiesTheOptionsThatEachHelpLists)
{
  const std::string script = voxtest::RunInProcess({"completion", "zsh"}).out;
  for (const auto& [command, options] : voxtest::OptionsOfHelp())
  {
    const std::size_t begin = script.find("\n  " + command + ")\n");
    ASSERT_NE(begin, std::string::npos) << command;
    const std::string part = script.substr(begin, script.find(";;\n", begin) - begin);
    for (const std::string& option : options)
      EXPECT_THAT(part, testing::ContainsRegex("[)'*]" + option + "[=+]?\\[")) << command;
  }
}

TEST_F(ZshAtATerminal, CompletesASubcommandAndAnOption)
{
  EXPECT_THAT(Shown("voxbench gro", "groups "), HasSubstr("voxbench groups "));
  EXPECT_THAT(Shown("voxbench groups bracket.inp --by", "--by-material"), HasSubstr("--by-material"));
}

TEST_F(ZshAtATerminal, OffersTheValuesOfAnOptionThatAreKnown)
{
  const std::string shown = Shown("voxbench groups --kind ", "NODE");
  EXPECT_THAT(shown, HasSubstr("EDGE"));
  EXPECT_THAT(shown, HasSubstr("ELEMENT"));
}

TEST_F(ZshAtATerminal, OffersTheFilesThatASubcommandOpens)
{
  const std::string shown = Shown("voxbench groups ", "with");
  EXPECT_THAT(shown, HasSubstr("bracket.inp"));
  EXPECT_THAT(shown, HasSubstr("kept.voxdoc"));
  EXPECT_THAT(shown, testing::Not(HasSubstr("notes.txt")));
}

} // namespace
