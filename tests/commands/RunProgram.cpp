// SPDX-License-Identifier: MIT
#include "RunProgram.h"
#include "voxbench/commands/Program.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace voxtest
{
namespace
{

class TemporaryFolder
{
public:
  TemporaryFolder()
  {
    std::string pattern = (std::filesystem::temp_directory_path() / "voxbench-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
      throw std::runtime_error("no temporary folder");
    path = pattern;
  }
  ~TemporaryFolder()
  {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }

  std::filesystem::path path;
};

const std::filesystem::path& Folder()
{
  static const TemporaryFolder folder;
  return folder.path;
}

std::string Quoted(const std::string& iArgument)
{
  std::string quoted(1, '\'');
  for (const char character : iArgument)
    if (character == '\'')
      quoted.append("'\\''");
    else
      quoted.push_back(character);
  quoted.push_back('\'');
  return quoted;
}

} // namespace

RunResult RunBuiltProgram(const std::vector<std::string>& iArguments, const std::string& iBefore)
{
  const std::string out = (Folder() / "out").string();
  const std::string errors = (Folder() / "errors").string();
  std::string line = iBefore + " " + Quoted(VOXBENCH_PROGRAM);
  for (const std::string& argument : iArguments)
    line.append(" ").append(Quoted(argument));
  const int status = std::system((line + " >" + Quoted(out) + " 2>" + Quoted(errors)).c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), ReadText(out), ReadText(errors)};
}

RunResult RunInProcess(const std::vector<std::string>& iArguments)
{
  std::ostringstream out;
  std::ostringstream errors;
  voxbench::Console console{out, errors, false};
  const int code = voxbench::RunProgram(iArguments, console);
  return {code, out.str(), errors.str()};
}

std::string DataFile(const std::string& iName)
{
  return VOX_SOURCE_DIR "/tests/data/" + iName;
}

std::string ReadText(const std::string& iPath)
{
  std::ifstream file(iPath, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

std::string DifferenceToGolden(const std::string& iName, const std::string& iText)
{
  const std::string folder = DataFile("");
  std::string text = iText;
  for (std::size_t place = text.find(folder); place != std::string::npos; place = text.find(folder, place))
    text.erase(place, folder.size());

  const std::string path = VOX_SOURCE_DIR "/tests/golden/" + iName;
  if (std::getenv("VOX_UPDATE_GOLDEN") != nullptr)
    std::ofstream(path, std::ios::binary) << text;
  const std::string expected = ReadText(path);
  return text == expected ? "" : "--- " + path + "\n" + expected + "--- this run\n" + text;
}

std::string TemporaryFile(const std::string& iName, const std::string& iText)
{
  const std::filesystem::path path = Folder() / iName;
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << iText;
  return path.string();
}

} // namespace voxtest
