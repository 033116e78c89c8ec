// SPDX-License-Identifier: MIT
#include "tests/support/Solver.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <unistd.h>
#include <zlib.h>

namespace voxtest
{
namespace
{

std::string FromEnvironment(const char* iName, const char* iDefault)
{
  const char* const given = std::getenv(iName);
  return given != nullptr && *given != '\0' ? given : iDefault;
}

std::string TextOf(const std::filesystem::path& iPath)
{
  std::ostringstream text;
  text << std::ifstream(iPath, std::ios::binary).rdbuf();
  return text.str();
}

std::string UpperCase(std::string iText)
{
  std::transform(iText.begin(), iText.end(), iText.begin(),
                 [](unsigned char iLetter) { return static_cast<char>(std::toupper(iLetter)); });
  return iText;
}

} // namespace

std::string PackagedDeck(const std::string& iName)
{
  const std::filesystem::path folder = FromEnvironment("VOX_DECKS", VOX_DECKS_DIR);
  for (const char* const ending : {".inp", ".inp.gz"})
  {
    gzFile file = gzopen((folder / (iName + ending)).c_str(), "rb"); // reads plain files too
    if (file == nullptr)
      continue;
    std::string text;
    char part[65536];
    for (int got = gzread(file, part, sizeof part); got > 0; got = gzread(file, part, sizeof part))
      text.append(part, static_cast<std::size_t>(got));
    gzclose(file);
    return text;
  }
  return {};
}

std::string WithCardsInEachStep(const std::string& iDeck, const std::string& iCards)
{
  std::istringstream lines(iDeck);
  std::string changed;
  for (std::string line; std::getline(lines, line);)
  {
    if (UpperCase(line).starts_with("*END STEP"))
      changed += iCards;
    changed += line + '\n';
  }
  return changed;
}

std::string WithBinaryResults(std::string iDeck)
{
  for (const auto& [card, other] : {std::pair{"*NODE FILE", "*NODE OUTPUT"}, std::pair{"*EL FILE", "*ELEMENT OUTPUT"}})
    for (std::size_t at = iDeck.find(card); at != std::string::npos; at = iDeck.find(card, at + 1))
      iDeck.replace(at, std::string(card).size(), other);
  return iDeck;
}

Solved::Solved(const std::string& iDeck)
{
  std::string pattern = (std::filesystem::temp_directory_path() / "solver-test-XXXXXX").string();
  _Folder = mkdtemp(pattern.data());
  std::ofstream(Deck(), std::ios::binary) << iDeck;
  const std::string solver = FromEnvironment("VOX_SOLVER", "ccx");
  const int status =
      std::system(("cd '" + _Folder.string() + "' && OMP_NUM_THREADS=1 '" + solver + "' job >log 2>&1").c_str());
  _Ran = status == 0;
  _Log = TextOf(_Folder / "log");
  if (_Log.find("not found") != std::string::npos)
    _Log = "the solver " + solver + " is not installed: install the package calculix-ccx";
}

Solved::~Solved()
{
  std::error_code ignored;
  std::filesystem::remove_all(_Folder, ignored);
}

} // namespace voxtest
