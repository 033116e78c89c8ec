// SPDX-License-Identifier: MIT
#include "Sniff.h"

#include "Card.h"
#include "Handlers.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

namespace voxbench::inp
{

namespace
{
constexpr int kStrayLinesAllowed = 3;
constexpr int kCardsLookedAt = 20;

bool HasAny(std::string_view iText, std::initializer_list<std::string_view> iWords)
{
  return std::any_of(iWords.begin(), iWords.end(),
                     [&](std::string_view iWord) { return iText.find(iWord) != std::string_view::npos; });
}

bool IsBinary(std::string_view iHead)
{
  const auto odd = std::count_if(iHead.begin(), iHead.end(),
                                 [](char iCharacter)
                                 {
                                   const auto code = static_cast<unsigned char>(iCharacter);
                                   return code < 32 && iCharacter != '\n' && iCharacter != '\r' && iCharacter != '\t' &&
                                          iCharacter != '\f';
                                 });
  return iHead.find('\0') != std::string_view::npos || 10 * odd > static_cast<std::ptrdiff_t>(iHead.size());
}

// "5 8 1 0 0": the counts in the first line of a UCD mesh.
bool IsFiveCounts(std::string_view iLine)
{
  int numbers = 0;
  bool inNumber = false;
  for (const char character : Trim(iLine))
  {
    const bool digit = character >= '0' && character <= '9';
    if (!digit && character != ' ' && character != '\t')
      return false;
    numbers += digit && !inNumber;
    inNumber = digit;
  }
  return numbers == 5;
}

// What a file without a card at its beginning looks like; "" if that is not certain.
std::string LookOf(std::string_view iHead, std::string_view iFirstLine)
{
  const std::string upper = Upper(iHead);
  const std::string first = Upper(Trim(iFirstLine));
  if (iHead.starts_with("\xFF\xFE") || iHead.starts_with("\xFE\xFF"))
    return "text in UTF-16";
  if (IsBinary(iHead))
    return "binary data";
  if (first.starts_with("<?XML") || first.starts_with("<"))
    return "XML";
  if (first.starts_with("{"))
    return "JSON";
  if (HasAny(upper, {"[SUBCATCHMENTS]", "[RAINGAGES]", "[CONDUITS]", "[OUTFALLS]"}))
    return "a SWMM drainage model";
  if (HasAny(upper, {"[JUNCTIONS]", "[PIPES]", "[RESERVOIRS]", "[TANKS]"}))
    return "an EPANET pipe network";
  if (first.starts_with("["))
    return "a file of bracketed sections";
  if (IsFiveCounts(iFirstLine))
    return "an AVS UCD mesh";
  if (HasAny(upper, {"IMP:N", "IMP:P", "IMP:E"}))
    return "an MCNP model";
  if (HasAny(upper, {"BEGIN BULK", "\nCEND"}))
    return "a bulk data deck";
  return first.starts_with("/PREP7") || first.starts_with("/BATCH") ? "a command script" : "";
}

NoDeck NotACard(std::string_view iHead, std::string_view iFirstLine, std::int32_t iLine)
{
  const std::string look = LookOf(iHead, iFirstLine);
  if (!look.empty())
    return {iLine, "", fmt::format("this is no keyword deck; it looks like {}.", look)};
  return {iLine, "",
          "this is no keyword deck: the first line is no card (a line that begins with a star and a keyword)."};
}

// The first lines that matter.
struct Beginning
{
  std::string_view firstLine;
  std::int32_t firstLineNumber = 0;
  int strayLines = 0; //!< before the first card
  std::vector<std::string> keywords;
  std::int32_t firstCardNumber = 0;
};

Beginning BeginningOf(std::string_view iHead)
{
  Beginning beginning;
  std::int32_t number = 0;
  while (!iHead.empty() && beginning.keywords.size() < kCardsLookedAt)
  {
    const std::size_t end = std::min(iHead.find('\n'), iHead.size());
    const std::string_view line = iHead.substr(0, end);
    iHead.remove_prefix(std::min(end + 1, iHead.size()));
    ++number;
    if (IsCommentOrBlank(line))
      continue;
    if (beginning.firstLineNumber == 0)
    {
      beginning.firstLine = line;
      beginning.firstLineNumber = number;
    }
    if (!IsKeyword(line))
    {
      beginning.strayLines += beginning.keywords.empty();
      continue;
    }
    CardRecord card;
    AddKeywordLine(line, card);
    if (beginning.keywords.empty())
      beginning.firstCardNumber = number;
    beginning.keywords.push_back(CanonicalKeyword(card.keyword));
  }
  return beginning;
}
} // namespace

std::optional<NoDeck> Sniff(std::string_view iHead)
{
  if (iHead.empty())
    return NoDeck{1, "", "the file is empty."};
  const Beginning beginning = BeginningOf(iHead);
  if (beginning.firstLineNumber == 0)
    return NoDeck{1, "", "the first lines hold no card, only comments and blank lines."};
  const std::vector<std::string>& keywords = beginning.keywords;
  const auto known = [](const std::string& iKeyword)
  { return iKeyword == "INCLUDE" || FindHandler(iKeyword) != nullptr; };
  const bool anyKnown = std::any_of(keywords.begin(), keywords.end(), known);
  if (beginning.strayLines > kStrayLinesAllowed || keywords.empty() || (beginning.strayLines > 0 && !anyKnown))
    return NotACard(iHead, beginning.firstLine, beginning.firstLineNumber);
  if (keywords.front() == "KEYWORD")
    return NoDeck{beginning.firstCardNumber, "*KEYWORD", "this is a keyword deck of another dialect."};
  if (!anyKnown)
    return NoDeck{beginning.firstCardNumber, "*" + keywords.front(),
                  fmt::format("none of the first {} card{} is known; this is another program's file.", keywords.size(),
                              keywords.size() == 1 ? "" : "s")};
  return std::nullopt;
}

} // namespace voxbench::inp
