// SPDX-License-Identifier: MIT
#include "Shell.h"
#include "RunProgram.h"
#include "voxbench/commands/Command.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>

namespace voxtest
{

ShellRun RunShell(const std::string& iLine)
{
  FILE* const pipe = popen(("{ " + iLine + "\n} 2>&1").c_str(), "r");
  if (pipe == nullptr)
    throw std::runtime_error("no shell");
  ShellRun run;
  std::array<char, 4096> part;
  while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe))
    run.out.append(part.data(), count);
  const int status = pclose(pipe);
  run.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return run;
}

std::string QuotedForShell(const std::string& iText)
{
  std::string quoted = "'";
  for (const char letter : iText)
    quoted += letter == '\'' ? "'\\''" : std::string(1, letter);
  return quoted + "'";
}

std::vector<std::string> LinesOf(const std::string& iText)
{
  std::istringstream stream(iText);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

std::map<std::string, std::set<std::string>> OptionsOfHelp()
{
  std::map<std::string, std::set<std::string>> options;
  for (const voxbench::CommandFactory make : voxbench::CommandTable())
  {
    const std::string name = make()->Describe().name;
    for (const std::string& line : LinesOf(RunInProcess({name, "--help"}).out))
    {
      std::smatch names;
      if (!std::regex_search(line, names, std::regex("^  (-[^ ]+)")))
        continue;
      const std::string text = names[1];
      const std::regex comma(",");
      const std::sregex_token_iterator first(text.begin(), text.end(), comma, -1);
      options[name].insert(first, std::sregex_token_iterator());
    }
  }
  return options;
}

const std::string& FolderOfModels()
{
  static const std::string folder = []
  {
    std::string file;
    for (const char* const name :
         {"bracket.inp", "packed.inp.gz", "kept.voxdoc", "bracket.frd", "notes.txt", "with blank.inp", "sub/other.inp"})
      file = TemporaryFile(std::string("models/") + name, "");
    return std::filesystem::path(file).parent_path().parent_path().string();
  }();
  return folder;
}

std::string CompletionFile(const std::string& iShell)
{
  const RunResult run = RunInProcess({"completion", iShell});
  if (run.code != 0)
    throw std::runtime_error(run.errors);
  return TemporaryFile("completion." + iShell, run.out);
}

} // namespace voxtest
