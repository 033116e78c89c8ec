// SPDX-License-Identifier: MIT
#include "voxbench/manual/ManualPages.h"

#include <cctype>
#include <fmt/format.h>
#include <string_view>

namespace voxbench
{
namespace
{

//! Where a word that contains iPlace begins.
std::size_t WordStart(const std::string& iText, std::size_t iPlace)
{
  constexpr std::string_view kBefore = " \n\t([|'";
  while (iPlace > 0 && kBefore.find(iText[iPlace - 1]) == std::string_view::npos)
    --iPlace;
  return iPlace;
}

bool IsLetter(const std::string& iText, std::size_t iPlace)
{
  return iPlace < iText.size() && std::isalpha(static_cast<unsigned char>(iText[iPlace])) != 0;
}

//! Between two letters of an ordinary word a hyphen may be set as one; everywhere else it is part of what is typed.
bool IsTyped(const std::string& iText, std::size_t iHyphen)
{
  const bool joinsLetters = iHyphen > 0 && IsLetter(iText, iHyphen - 1) && IsLetter(iText, iHyphen + 1);
  return !joinsLetters || iText[WordStart(iText, iHyphen)] == '-';
}

std::string Escaped(const std::string& iText, std::size_t iPlace)
{
  const char letter = iText[iPlace];
  const bool isFirst = iPlace == 0 || iText[iPlace - 1] == '\n';
  switch (letter)
  {
  case '\\':
    return "\\e";
  case '-':
    return IsTyped(iText, iPlace) ? "\\-" : "-";
  case '\'':
    return "\\(aq";
  case '`':
    return "\\(ga";
  case '^':
    return "\\(ha";
  case '~':
    return "\\(ti";
  case '.':
    return isFirst ? "\\&." : ".";
  default:
    return std::string(1, letter);
  }
}

std::string Bold(const std::string& iText)
{
  return "\\fB" + RoffText(iText) + "\\fR";
}

std::string Italic(const std::string& iText)
{
  return "\\fI" + RoffText(iText) + "\\fR";
}

//! "a, b and c"
std::string Listed(const std::vector<std::string>& iNames)
{
  std::string text;
  for (std::size_t place = 0; place < iNames.size(); ++place)
  {
    const bool isLast = place + 1 == iNames.size();
    text += (place == 0 ? "" : isLast ? " and " : ", ") + Bold(iNames[place]);
  }
  return text;
}

//! The title is the only place of the version: a date would make every build another one.
std::string Head(const std::string& iName, const std::string& iSummary, const std::string& iVersion)
{
  std::string title = iName;
  for (char& letter : title)
    letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
  std::string summary = iSummary;
  summary.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(summary.front())));
  if (summary.ends_with('.'))
    summary.pop_back();
  return fmt::format(".TH {} 1 \"\" \"{}\" \"User Commands\"\n.SH NAME\n{} \\- {}\n", RoffText(title), iVersion,
                     RoffText(iName), RoffText(summary));
}

std::string Synopsis(const CommandSyntax& iCommand)
{
  std::string text =
      ".SH SYNOPSIS\n" + Bold("voxbench " + iCommand.description.name) + "\n[" + Italic("OPTIONS") + "]\n";
  for (const ArgumentSyntax& argument : iCommand.arguments)
  {
    if (!argument.hasPlace)
      continue;
    const std::string name = Italic(argument.names.front()) + (argument.isRepeated ? "..." : "");
    text += argument.isRequired ? name + "\n" : "[" + name + "]\n";
  }
  return text;
}

std::string Description(const CommandDescription& iDescription)
{
  return ".SH DESCRIPTION\n" + RoffText(iDescription.details) + "\n";
}

std::string Names(const ArgumentSyntax& iArgument)
{
  if (iArgument.hasPlace)
    return Italic(iArgument.names.front());
  std::string text;
  for (const std::string& name : iArgument.names)
    text += (text.empty() ? "" : ", ") + Bold(name);
  return iArgument.value.empty() ? text : text + " " + Italic(iArgument.value);
}

std::string Options(const CommandSyntax& iCommand)
{
  std::string text = ".SH OPTIONS\n";
  for (const ArgumentSyntax& argument : iCommand.arguments)
  {
    text += ".TP\n" + Names(argument) + "\n" + RoffText(argument.description) + ".\n";
    if (!argument.words.empty())
      text += "Known values: " + Listed(argument.words) + ".\n";
    if (!argument.excludes.empty())
      text += "Not along with " + Listed(argument.excludes) + ".\n";
    if (argument.isRequired && !argument.hasPlace)
      text += "Required.\n";
  }
  return text;
}

std::string Examples(const CommandDescription& iDescription)
{
  std::string text = ".SH EXAMPLES\n";
  for (const auto& example : iDescription.examples)
    text += ".TP\n" + Bold(example.line) + "\n" + RoffText(example.meaning) + "\n";
  return text;
}

std::string ExitStatus(const CommandDescription& iDescription)
{
  std::string text = ".SH EXIT STATUS\n";
  for (const auto& exit : iDescription.exits)
    text += fmt::format(".TP\n{}\n{}\n", Bold(std::to_string(exit.code)), RoffText(exit.meaning));
  return text;
}

//! "voxbench-groups (1)" as pages refer to each other.
std::string Reference(const std::string& iPage, const char* iBehind)
{
  return fmt::format(".BR {} (1){}\n", RoffText(iPage), iBehind);
}

std::string PageName(const CommandSyntax& iCommand)
{
  return "voxbench-" + iCommand.description.name;
}

ManualPage ProgramPage(const ProgramSyntax& iSyntax)
{
  const CommandDescription& description = iSyntax.program.description;
  std::string text = Head(description.name, description.summary, iSyntax.version);
  text += ".SH SYNOPSIS\n" + Bold("voxbench") + "\n" + Italic("COMMAND") + "\n[" + Italic("ARGUMENT") + "...]\n.br\n";
  text += Bold("voxbench help") + "\n[" + Italic("COMMAND") + "]\n.br\n" + Bold("voxbench --version") + "\n";
  text += Description(description) + ".SS Commands\n";
  for (const CommandSyntax& command : iSyntax.commands)
    text += ".TP\n" + Reference(PageName(command), "") + RoffText(command.description.summary) + ".\n";
  text += Options(iSyntax.program) + Examples(description) + ExitStatus(description) + ".SH SEE ALSO\n";
  for (const CommandSyntax& command : iSyntax.commands)
    text += Reference(PageName(command), &command == &iSyntax.commands.back() ? "" : ",");
  return {description.name, text};
}

ManualPage CommandPage(const CommandSyntax& iCommand, const std::string& iVersion)
{
  const CommandDescription& description = iCommand.description;
  const std::string name = PageName(iCommand);
  return {name, Head(name, description.summary, iVersion) + Synopsis(iCommand) + Description(description) +
                    Options(iCommand) + Examples(description) + ExitStatus(description) + ".SH SEE ALSO\n" +
                    Reference("voxbench", "")};
}

} // namespace

std::string RoffText(const std::string& iText)
{
  std::string text;
  for (std::size_t place = 0; place < iText.size(); ++place)
    text += Escaped(iText, place);
  return text;
}

std::vector<ManualPage> ManualPages(const ProgramSyntax& iSyntax)
{
  std::vector<ManualPage> pages{ProgramPage(iSyntax)};
  for (const CommandSyntax& command : iSyntax.commands)
    pages.push_back(CommandPage(command, iSyntax.version));
  return pages;
}

} // namespace voxbench
