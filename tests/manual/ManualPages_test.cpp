// SPDX-License-Identifier: MIT
// The manual pages as a formatter of manual pages takes them.
#include "RunProgram.h"
#include "Shell.h"
#include "voxbench/manual/ManualPages.h"

#include <filesystem>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using voxbench::ManualPage;

namespace
{

std::vector<ManualPage> Pages()
{
  return voxbench::ManualPages(voxbench::ReadSyntax());
}

const ManualPage& PageOf(const std::vector<ManualPage>& iPages, const std::string& iCommand)
{
  for (const ManualPage& page : iPages)
    if (page.name == "voxbench-" + iCommand)
      return page;
  throw std::runtime_error("no page for " + iCommand);
}

//! What a reader sees, each paragraph on one line and every run of blanks as one.
std::string Shown(const std::string& iSource)
{
  const std::string file = voxtest::TemporaryFile("page.1", iSource);
  const std::string text = voxtest::RunShell("mandoc -T ascii -O width=1000 " + file + " 2>/dev/null").out;
  std::string shown;
  for (const char letter : text)
    if (letter == '\b')
      shown.pop_back(); // bold and underlined letters are struck twice
    else if (letter != ' ' || shown.empty() || shown.back() != ' ')
      shown += letter;
  return shown;
}

std::vector<std::string> SectionsOf(const std::string& iSource)
{
  std::vector<std::string> sections;
  for (const std::string& line : voxtest::LinesOf(iSource))
    if (line.starts_with(".SH "))
      sections.push_back(line.substr(4));
  return sections;
}

TEST(ManualPages, ThereIsOneForTheProgramAndOneForEachSubcommand)
{
  std::vector<std::string> names;
  for (const ManualPage& page : Pages())
    names.push_back(page.name);
  std::vector<std::string> expected{"voxbench"};
  for (const voxbench::CommandFactory make : voxbench::CommandTable())
    expected.push_back("voxbench-" + make()->Describe().name);
  EXPECT_EQ(names, expected);
}

TEST(ManualPages, EachHasTheUsualSections)
{
  for (const ManualPage& page : Pages())
    EXPECT_THAT(SectionsOf(page.text),
                ElementsAre("NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "EXAMPLES", "EXIT STATUS", "SEE ALSO"))
        << page.name;
}

TEST(ManualPages, TheFormatterHasNothingToComplainAboutButTheDateThatIsLeftOut)
{
  for (const ManualPage& page : Pages())
  {
    const std::string file = voxtest::TemporaryFile(page.name + ".1", page.text);
    const auto complaints = voxtest::LinesOf(voxtest::RunShell("mandoc -T lint -W warning " + file).out);
    EXPECT_THAT(complaints, ElementsAre(HasSubstr("missing date"))) << page.name;
  }
}

TEST(ManualPages, EachShowsTheOptionsThatTheHelpLists)
{
  const auto pages = Pages();
  for (const auto& [command, options] : voxtest::OptionsOfHelp())
  {
    const std::string shown = Shown(PageOf(pages, command).text);
    for (const std::string& option : options)
      EXPECT_THAT(shown, testing::ContainsRegex("\n *(-., )?" + option + "[ ,\n]")) << command;
  }
}

TEST(ManualPages, ExamplesAndExitCodesAreShownLetterForLetter)
{
  const auto pages = Pages();
  for (const voxbench::CommandFactory make : voxbench::CommandTable())
  {
    const voxbench::CommandDescription command = make()->Describe();
    const std::string shown = Shown(PageOf(pages, command.name).text);
    for (const auto& example : command.examples)
      EXPECT_THAT(shown, HasSubstr("\n " + example.line + "\n " + example.meaning)) << command.name;
    for (const auto& exit : command.exits)
      EXPECT_THAT(shown, HasSubstr("\n " + std::to_string(exit.code) + " " + exit.meaning)) << command.name;
  }
}

TEST(ManualPages, TheProgramsPageLeadsToAllOthers)
{
  const auto pages = Pages();
  const std::string shown = Shown(pages.front().text);
  for (std::size_t place = 1; place < pages.size(); ++place)
    EXPECT_THAT(shown, HasSubstr("\n " + pages[place].name + "(1)"));
}

TEST(ManualPages, ATextIsShownAsItIsWhateverStandsInIt)
{
  for (const std::string text : {".inp is no request", "'quoted' text", "back\\slash \\fBbold\\fR", "--by-material -o",
                                 "finite-element `run` ~/.bashrc ^a", "\"double\" quotes"})
    EXPECT_THAT(Shown(".TH A 1 \"\"\n.SH NAME\n" + voxbench::RoffText(text) + "\n"), HasSubstr(text));
}

// A hyphen that is typed must not become a typographic one when it is copied out of a page.
TEST(ManualPages, HyphensThatAreTypedStayHyphens)
{
  EXPECT_EQ(voxbench::RoffText("--by-material"), "\\-\\-by\\-material");
  EXPECT_EQ(voxbench::RoffText("(--json)"), "(\\-\\-json)");
  EXPECT_EQ(voxbench::RoffText("FILE.backup-1"), "FILE.backup\\-1");
  EXPECT_EQ(voxbench::RoffText("a finite-element model"), "a finite-element model");
}

TEST(ManualPages, TheBuildWritesThemAndTheCompletionsAlwaysTheSame)
{
  const std::string again = std::filesystem::path(voxtest::TemporaryFile("share/x", "")).parent_path().string();
  std::filesystem::remove(again + "/x");
  EXPECT_EQ(voxtest::RunShell(VOX_WRITE_MANUAL " " + again).out, "");
  const auto run = voxtest::RunShell("diff -r --exclude=manual.written " VOX_MANUAL_DIR " " + again);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(voxtest::RunShell("zcat " + again + "/man/man1/voxbench.1.gz").out, Pages().front().text);
  EXPECT_EQ(voxtest::ReadText(again + "/bash-completion/completions/voxbench"),
            voxtest::RunInProcess({"completion", "bash"}).out);
}

TEST(ManualPages, AFolderThatCannotBeWrittenIsNamed)
{
  const std::string file = voxtest::TemporaryFile("no-folder", "");
  const auto run = voxtest::RunShell(VOX_WRITE_MANUAL " " + file);
  EXPECT_EQ(run.code, 1);
  EXPECT_THAT(run.out, HasSubstr(file));
}

} // namespace
