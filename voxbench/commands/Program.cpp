// SPDX-License-Identifier: MIT
#include "voxbench/commands/Program.h"
#include "voxbench/commands/Command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/format.h>
#include <new>

namespace voxbench
{
namespace
{

constexpr const char* kSummary = "Opens finite-element models as analysis documents and shows what is in them.";

//! What CLI11 does not print of itself: details, examples and exit codes.
std::string Footer(const CommandDescription& iCommand)
{
  std::string text = "Examples:\n";
  for (const auto& example : iCommand.examples)
    text += fmt::format("  {}\n      {}\n", example.line, example.meaning);
  text += "\nExit codes:\n";
  for (const auto& exit : iCommand.exits)
    text += fmt::format("  {}  {}\n", exit.code, exit.meaning);
  return text;
}

struct Program
{
  CLI::App parser{kSummary, "voxbench"};
  std::vector<std::unique_ptr<Command>> commands;
  std::vector<CLI::App*> parsers; //!< of the commands, in their order

  Program()
  {
    parser.set_version_flag("--version", "voxbench " VOXBENCH_VERSION);
    parser.set_help_flag("-h,--help", "Print this help and exit");
    parser.require_subcommand(1);
    parser.get_formatter()->column_width(34);
    for (const CommandFactory make : CommandTable())
      Add(make());
    parser.footer("voxbench COMMAND --help tells more about a command, with examples.\n");
  }

  void Add(std::unique_ptr<Command> iCommand)
  {
    const CommandDescription description = iCommand->Describe();
    CLI::App* const sub = parser.add_subcommand(description.name, description.summary);
    sub->footer(Footer(description));
    sub->set_help_flag("-h,--help", "Print this help and exit");
    iCommand->DeclareOptions(*sub);
    commands.push_back(std::move(iCommand));
    parsers.push_back(sub);
  }

  Command* Chosen() const
  {
    for (std::size_t place = 0; place < parsers.size(); ++place)
      if (parsers[place]->parsed())
        return commands[place].get();
    return nullptr;
  }

  //! The help of the program, or of the subcommand that was named.
  std::string Help() const
  {
    for (std::size_t place = 0; place < parsers.size(); ++place)
      if (parsers[place]->parsed())
        return HelpOf(*parsers[place], commands[place]->Describe());
    return parser.help();
  }

  std::string HelpOf(CLI::App& ioParser, const CommandDescription& iDescription) const
  {
    ioParser.description(iDescription.summary + "\n\n" + iDescription.details + "\n");
    return ioParser.help("voxbench");
  }
};

//! A first argument that is neither an option nor a command; null when there is none.
const std::string* UnknownCommand(const std::vector<std::string>& iArguments, const Program& iProgram)
{
  if (iArguments.empty() || iArguments.front().starts_with('-'))
    return nullptr;
  const auto isNamed = [&iArguments](const CLI::App* iParser) { return iParser->get_name() == iArguments.front(); };
  const bool known = std::any_of(iProgram.parsers.begin(), iProgram.parsers.end(), isNamed);
  return known ? nullptr : &iArguments.front();
}

std::string NamesOf(const Program& iProgram)
{
  std::string names;
  for (const CLI::App* const parser : iProgram.parsers)
    names += (names.empty() ? "" : ", ") + parser->get_name();
  return names;
}

} // namespace

int RunProgram(const std::vector<std::string>& iArguments, Console& ioConsole)
{
  if (!iArguments.empty() && iArguments.front() == "help") // as people type it: help, help groups
  {
    std::vector<std::string> asked(iArguments.begin() + 1, iArguments.end());
    asked.push_back("--help");
    return RunProgram(asked, ioConsole);
  }
  Program program;
  if (iArguments.empty())
  {
    ioConsole.errors << program.Help();
    return kExitWrongUsage;
  }
  if (const std::string* const unknown = UnknownCommand(iArguments, program))
  {
    ioConsole.errors << fmt::format("voxbench: there is no command {}; there are {}\nSee: voxbench --help\n", *unknown,
                                    NamesOf(program));
    return kExitWrongUsage;
  }
  try
  {
    std::vector<std::string> arguments(iArguments.rbegin(), iArguments.rend()); // the parser takes them from the back
    program.parser.parse(std::move(arguments));
    return program.Chosen()->Run(ioConsole);
  }
  catch (const CLI::CallForHelp&)
  {
    ioConsole.out << program.Help();
    return kExitDone;
  }
  catch (const CLI::CallForVersion& version)
  {
    ioConsole.out << version.what() << '\n';
    return kExitDone;
  }
  catch (const CLI::ParseError& wrong)
  {
    const Command* const chosen = program.Chosen();
    const std::string place = chosen != nullptr ? " " + chosen->Describe().name : "";
    ioConsole.errors << fmt::format("voxbench{}: {}\nSee: voxbench{} --help\n", place, wrong.what(), place);
    return kExitWrongUsage;
  }
  catch (const std::bad_alloc&)
  {
    ioConsole.errors
        << "voxbench: there is not enough memory for this model: close other programs or use a larger machine\n";
    return kExitSomeFailed;
  }
}

} // namespace voxbench
