// SPDX-License-Identifier: MIT
#include "voxbench/commands/ProgramParser.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

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

std::string HelpOf(CLI::App& ioParser, const CommandDescription& iDescription)
{
  ioParser.description(iDescription.summary + "\n\n" + iDescription.details + "\n");
  return ioParser.help("voxbench");
}

} // namespace

CommandDescription DescribeProgram()
{
  return {"voxbench",
          "Opens finite-element models as analysis documents and shows what is in them.",
          "A model is a keyword deck of the CalculiX dialect (.inp), plain or compressed (.inp.gz), or a document\n"
          "(.voxdoc) that voxbench import made of one. What the solver made of it is a result file (.frd, .frd.gz),\n"
          "which voxbench results opens. Files are only read, but for what import and upgrade are told to write.",
          {{"voxbench --help", "all subcommands"},
           {"voxbench help groups", "the options of one, with examples and exit codes"},
           {"voxbench tree bracket.inp", "the features that a deck becomes"}},
          {{kExitDone, "all went well"},
           {kExitSomeFailed, "done, but something asked for failed: the output tells what"},
           {kExitWrongUsage, "the command line makes no sense"},
           {kExitUnreadable, "the file cannot be read"},
           {kExitNotWritten, "the file cannot or must not be written: it is as it was"}}};
}

ProgramParser::ProgramParser() : parser(DescribeProgram().summary, "voxbench")
{
  parser.set_version_flag("--version", "voxbench " VOXBENCH_VERSION);
  parser.set_help_flag("-h,--help", "Print this help and exit");
  parser.require_subcommand(1);
  parser.get_formatter()->column_width(34);
  for (const CommandFactory make : CommandTable())
    Add(make());
  parser.footer("voxbench COMMAND --help tells more about a command, with examples.\n");
}

void ProgramParser::Add(std::unique_ptr<Command> iCommand)
{
  const CommandDescription description = iCommand->Describe();
  CLI::App* const sub = parser.add_subcommand(description.name, description.summary);
  sub->footer(Footer(description));
  sub->set_help_flag("-h,--help", "Print this help and exit");
  iCommand->DeclareOptions(*sub);
  commands.push_back(std::move(iCommand));
  parsers.push_back(sub);
}

Command* ProgramParser::Chosen() const
{
  for (std::size_t place = 0; place < parsers.size(); ++place)
    if (parsers[place]->parsed())
      return commands[place].get();
  return nullptr;
}

std::string ProgramParser::Help() const
{
  for (std::size_t place = 0; place < parsers.size(); ++place)
    if (parsers[place]->parsed())
      return HelpOf(*parsers[place], commands[place]->Describe());
  return parser.help();
}

} // namespace voxbench
