// SPDX-License-Identifier: MIT
#include "Card.h"

#include <algorithm>
#include <utility>

namespace voxbench::inp
{

namespace
{
char UpperOf(char iCharacter)
{
  return iCharacter >= 'a' && iCharacter <= 'z' ? static_cast<char>(iCharacter - 'a' + 'A') : iCharacter;
}

bool IsBlank(char iCharacter)
{
  return iCharacter == ' ' || iCharacter == '\t' || iCharacter == '\r';
}

// Calls iPart for each stretch between commas that stand outside of quotes.
template <typename Part>
void ForEachPart(std::string_view iLine, Part iPart)
{
  bool quoted = false;
  std::size_t start = 0;
  for (std::size_t at = 0; at < iLine.size(); ++at)
  {
    quoted = quoted != (iLine[at] == '"');
    if (iLine[at] == ',' && !quoted)
    {
      iPart(iLine.substr(start, at - start));
      start = at + 1;
    }
  }
  iPart(iLine.substr(start));
}

std::string Clean(std::string_view iText)
{
  std::string clean;
  bool quoted = false;
  for (const char character : iText)
  {
    if (character == '"')
      quoted = !quoted;
    else if (quoted)
      clean += character;
    else if (!IsBlank(character))
      clean += UpperOf(character);
  }
  return clean;
}

std::string Unquoted(std::string_view iText)
{
  iText = Trim(iText);
  if (iText.size() >= 2 && iText.front() == '"' && iText.back() == '"')
    iText = iText.substr(1, iText.size() - 2);
  return std::string(iText);
}

// The first characters of a text, none of UTF-8 cut through; "..." stands for the others.
std::string Beginning(std::string_view iText, std::size_t iMost)
{
  if (iText.size() <= iMost)
    return std::string(iText);
  while (iMost > 0 && (static_cast<unsigned char>(iText[iMost]) & 0xC0) == 0x80)
    --iMost;
  return std::string(iText.substr(0, iMost)) + "...";
}

Parameter ParameterOf(std::string_view iPart)
{
  const std::size_t equals = iPart.find('=');
  if (equals == std::string_view::npos)
    return {Clean(iPart), {}};
  std::string key = Clean(iPart.substr(0, equals));
  const std::string_view value = iPart.substr(equals + 1);
  const bool isFile = key == "INPUT" || key == "FILENAME" || key == "OUTPUTFILE" || key == "FILE";
  return {std::move(key), isFile ? Unquoted(value) : Clean(value)};
}
} // namespace

std::string Upper(std::string_view iText)
{
  std::string upper(iText);
  std::transform(upper.begin(), upper.end(), upper.begin(), UpperOf);
  return upper;
}

std::string_view Trim(std::string_view iText)
{
  while (!iText.empty() && IsBlank(iText.front()))
    iText.remove_prefix(1);
  while (!iText.empty() && IsBlank(iText.back()))
    iText.remove_suffix(1);
  return iText;
}

void SplitFields(std::string_view iLine, std::vector<std::string>& oFields)
{
  oFields.clear();
  ForEachPart(iLine, [&](std::string_view iPart) { oFields.push_back(Clean(iPart)); });
  if (oFields.back().empty())
    oFields.pop_back();
}

bool IsCommentOrBlank(std::string_view iLine)
{
  const std::string_view text = Trim(iLine);
  return text.empty() || text.substr(0, 2) == "**";
}

bool IsKeyword(std::string_view iLine)
{
  const std::string_view text = Trim(iLine);
  return !text.empty() && text[0] == '*' && text.substr(0, 2) != "**";
}

void AddKeywordLine(std::string_view iLine, CardRecord& ioCard)
{
  bool atKeyword = IsKeyword(iLine);
  ForEachPart(Trim(iLine),
              [&](std::string_view iPart)
              {
                if (atKeyword)
                  ioCard.keyword = Clean(iPart.substr(1));
                else if (!Trim(iPart).empty())
                  ioCard.parameters.push_back(ParameterOf(iPart));
                atKeyword = false;
              });
}

std::string KeywordAsWritten(std::string_view iLine)
{
  iLine = Trim(iLine);
  iLine = iLine.substr(1, iLine.find(',') - 1);
  std::string keyword;
  for (const char character : Trim(iLine))
    if (!IsBlank(character))
      keyword += UpperOf(character);
    else if (!keyword.empty() && keyword.back() != ' ')
      keyword += ' ';
  return keyword;
}

std::string Readable(std::string_view iText)
{
  constexpr std::size_t kLongestWord = 80;
  constexpr std::size_t kLongestText = 500;
  std::string readable;
  for (std::size_t start = 0; start < iText.size() && readable.size() <= kLongestText;)
  {
    const std::size_t end = std::min(iText.find(' ', start), iText.size());
    readable += Beginning(iText.substr(start, end - start), kLongestWord);
    if (end < iText.size())
      readable += ' ';
    start = end + 1;
  }
  return Beginning(readable, kLongestText);
}

bool ContinuesKeyword(std::string_view iLine)
{
  static constexpr std::string_view kFlags[] = {"GENERATE",    "UNSORTED", "INTERNAL",  "NLGEOM",        "PERTURBATION",
                                                "STEADYSTATE", "DIRECT",   "EXPLICIT",  "USER",          "COMPOSITE",
                                                "FIXED",       "SUBMODEL", "NONLINEAR", "CYCLICSYMMETRY"};
  if (IsCommentOrBlank(iLine) || IsKeyword(iLine))
    return false;
  if (iLine.find('=') != std::string_view::npos)
    return true;
  bool onlyFlags = true;
  ForEachPart(Trim(iLine),
              [&](std::string_view iPart)
              {
                const std::string word = Clean(iPart);
                onlyFlags = onlyFlags &&
                            (word.empty() || std::find(std::begin(kFlags), std::end(kFlags), word) != std::end(kFlags));
              });
  return onlyFlags;
}

} // namespace voxbench::inp
