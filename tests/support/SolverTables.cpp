// SPDX-License-Identifier: MIT
#include "tests/support/SolverTables.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <fstream>
#include <sstream>

namespace voxtest
{

std::vector<SolverTable> ReadSolverTables(const std::filesystem::path& iPath, const std::string& iTitle,
                                          std::size_t iIds)
{
  std::vector<SolverTable> tables;
  bool isWanted = false;
  std::ifstream file(iPath);
  for (std::string line; std::getline(file, line);)
  {
    const std::size_t forSet = line.find(" for set ");
    std::istringstream words(forSet == std::string::npos ? line : line.substr(forSet + 9));
    std::string word;
    if (forSet != std::string::npos)
    {
      isWanted = line.starts_with(" " + iTitle);
      SolverTable table{line.substr(1, forSet - 1), "", 0., {}};
      words >> table.set >> word >> word >> table.time;
      if (isWanted)
        tables.push_back(table);
      continue;
    }
    SolverTable::Row row;
    for (double number = 0.; words >> number;)
      if (row.ids.size() < iIds)
        row.ids.push_back(static_cast<int>(number));
      else
        row.numbers.push_back(number);
    const bool isText = !words.eof();
    isWanted = isWanted && !isText; // a heading of another kind ends the table
    if (isWanted && !row.numbers.empty())
      tables.back().rows.push_back(row);
  }
  return tables;
}

std::string WithoutPrints(const std::string& iDeck)
{
  std::istringstream lines(iDeck);
  std::string kept;
  bool isPrint = false;
  for (std::string line; std::getline(lines, line);)
  {
    std::string card = line;
    std::erase(card, ' ');
    std::transform(card.begin(), card.end(), card.begin(),
                   [](unsigned char iLetter) { return static_cast<char>(std::toupper(iLetter)); });
    if (card.starts_with('*') && !card.starts_with("**"))
      isPrint = card.starts_with("*NODEPRINT") || card.starts_with("*ELPRINT");
    if (!isPrint)
      kept += line + '\n';
  }
  return kept;
}

bool AgreeInSixDigits(double iSix, double iSeven)
{
  if (iSeven == 0.)
    return iSix == 0.;
  const double lastDigit = std::pow(10., std::floor(std::log10(std::abs(iSeven))) - 5.);
  return std::abs(iSix - iSeven) <= .55 * lastDigit; // each is rounded: half a digit of its own
}

} // namespace voxtest
