// SPDX-License-Identifier: MIT
#include "voxbench/commands/Program.h"
#include "voxbench/commands/OpenFile.h"
#include "voxbench/commands/ProgramParser.h"

#include <algorithm>
#include <fmt/format.h>
#include <new>

namespace voxbench
{
namespace
{

//! A first argument that is neither an option nor a command; null when there is none.
const std::string* UnknownCommand(const std::vector<std::string>& iArguments, const ProgramParser& iProgram)
{
  if (iArguments.empty() || iArguments.front().starts_with('-'))
    return nullptr;
  const auto isNamed = [&iArguments](const CLI::App* iParser) { return iParser->get_name() == iArguments.front(); };
  const bool known = std::any_of(iProgram.parsers.begin(), iProgram.parsers.end(), isNamed);
  return known ? nullptr : &iArguments.front();
}

std::string NamesOf(const ProgramParser& iProgram)
{
  std::string names;
  for (const CLI::App* const parser : iProgram.parsers)
    names += (names.empty() ? "" : ", ") + parser->get_name();
  return names;
}

int Print(const std::string& iText, Console& ioConsole)
{
  Output output(ioConsole.out);
  output.Write(iText);
  return FinishOutput(output, ioConsole, kExitDone);
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
  ProgramParser program;
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
    return Print(program.Help(), ioConsole);
  }
  catch (const CLI::CallForVersion& version)
  {
    return Print(version.what() + std::string("\n"), ioConsole);
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
