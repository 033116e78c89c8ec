// SPDX-License-Identifier: MIT
#include "FrdReading.h"

#include "../Numbers.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <new>

namespace voxbench
{
namespace frd
{
namespace
{

constexpr std::size_t kLongestLine = 4096;
constexpr std::uint64_t kProgressStep = std::uint64_t{1} << 22;
constexpr const char* kGetACopy = "Get an undamaged copy of the file, or let the solver make it anew.";

//! Printable beginning of a line, for messages.
std::string Shown(std::string_view iLine)
{
  std::string shown;
  for (const char character : iLine.substr(0, 40))
    shown += std::isprint(static_cast<unsigned char>(character)) != 0 ? character : '?';
  return shown;
}

} // namespace

std::string_view Field(std::string_view iLine, std::size_t iFrom, std::size_t iTo)
{
  if (iLine.size() <= iFrom)
    return {};
  std::string_view field = iLine.substr(iFrom, iTo - iFrom);
  const std::size_t first = field.find_first_not_of(' ');
  if (first == std::string_view::npos)
    return {};
  return field.substr(first, field.find_last_not_of(' ') - first + 1);
}

bool FrdReading::Refuse(std::string iReason, std::string iAdvice)
{
  if (!outcome.ok)
    return false; // the first reason is the cause
  outcome.ok = false;
  outcome.file = _Records.file;
  outcome.line = _Uncounted ? 0 : _Line;
  outcome.card = _Force;
  outcome.reason = _Uncounted ? fmt::format("at byte {}: {}", _Window.Offset(), iReason) : std::move(iReason);
  outcome.advice = iAdvice.empty() ? kGetACopy : std::move(iAdvice);
  return false;
}

bool FrdReading::RefuseLine(std::string_view iLine, const char* iReason)
{
  return Refuse(fmt::format("{}: \"{}\".", iReason, Shown(iLine)));
}

bool FrdReading::RefuseEnd()
{
  if (!_Window.Failure().empty())
    return Refuse(_Window.Failure() + ".");
  return Refuse(fmt::format("the file ends at byte {} without its end record 9999.", _Window.Offset() + _Window.Left()),
                "Let the solver finish its work, or get a whole copy of the file.");
}

bool FrdReading::TakeLine(std::string_view& oLine)
{
  const void* end = std::memchr(_Window.Cursor(), '\n', _Window.Left());
  for (std::size_t wanted = 256; end == nullptr && wanted <= kLongestLine && _Window.Have(wanted); wanted *= 4)
    end = std::memchr(_Window.Cursor(), '\n', _Window.Left());
  const char* const start = _Window.Cursor();
  std::size_t size = 0;
  if (end != nullptr)
    size = static_cast<std::size_t>(static_cast<const char*>(end) - start);
  else if (_Window.Left() == 0 || !_Window.Failure().empty())
    return RefuseEnd();
  else
    size = _Window.Left(); // the last line may lack its end
  ++_Line;
  if (size > kLongestLine)
    return Refuse("the line is longer than any line of a result file.");
  oLine = {start, size};
  _Window.Skip(end == nullptr ? size : size + 1);
  if (oLine.ends_with('\r'))
    oLine.remove_suffix(1);
  return true;
}

void FrdReading::Progress()
{
  if (!_Options.progress || _Window.BytesRead() < _NextProgress)
    return;
  _Options.progress(std::min(_Window.BytesRead(), _Window.BytesInAll()), _Window.BytesInAll());
  _NextProgress = _Window.BytesRead() + kProgressStep;
}

bool FrdReading::BeginsAResultFile()
{
  _Window.Have(64);
  if (!_Window.Failure().empty())
    return RefuseEnd();
  if (LooksLikeFrd({_Window.Cursor(), std::min<std::size_t>(_Window.Left(), 64)}))
    return true;
  _Line = 1;
  return Refuse("this is no result file: it does not begin with a record \"1C\".",
                "Give the .frd file that the CalculiX solver wrote.");
}

bool FrdReading::ReadFile(const std::filesystem::path& iPath)
{
  _Records.file = iPath.string();
  if (const std::string failure = _Window.Open(iPath); !failure.empty())
    return Refuse(failure + ".", "Give the path of a result file that can be read.");
  if (!BeginsAResultFile() || !ReadBlocks())
    return false;
  PairImaginaryParts();
  NumberStates();
  if (_Options.progress)
    _Options.progress(_Window.BytesInAll(), _Window.BytesInAll());
  return true;
}

bool FrdReading::ReadBlocks()
{
  std::string_view line;
  while (TakeLine(line))
  {
    Progress();
    const std::string_view key = line.substr(0, 6);
    bool good = true;
    if (key == "    1C" || key == "    1U")
      _Records.header.emplace_back(line.substr(4));
    else if (key == "    1P")
      good = ReadParameter(line);
    else if (key == "    2C")
      good = ReadNodes(line);
    else if (key == "    3C")
      good = ReadElements(line);
    else if (key == "  100C")
      good = ReadResults(line);
    else if (line == " 9999")
      break;
    else
      good = RefuseLine(line, "the line begins no block of a result file");
    if (!good)
      return false;
    _Force.clear();
  }
  if (outcome.ok && _Window.Have(1))
    Refuse("the file goes on behind its end record 9999.");
  return outcome.ok;
}

//! "1PSTEP  6  1  2", "1PMODE  3": a name and whole numbers; a line of other numbers is of no use here.
bool FrdReading::ReadParameter(std::string_view iLine)
{
  const std::string_view text = iLine.substr(6);
  const std::size_t end = text.find(' ');
  const std::string name(text.substr(0, end));
  int place = 0;
  for (std::size_t at = end; at < text.size();)
  {
    const std::size_t first = text.find_first_not_of(' ', at);
    if (first == std::string_view::npos)
      break;
    at = std::min(text.find(' ', first), text.size());
    std::int32_t value = 0;
    if (ParseInteger(text.substr(first, at - first), value))
      _Parameters[fmt::format("{}{}", name, ++place)] = value;
  }
  return true;
}

bool FrdReading::ReadBlockHead(std::string_view iLine, std::size_t iFormColumn, BlockHead& oHead)
{
  oHead.line = _Line;
  const std::string_view count = Field(iLine, 24, 36);
  std::int32_t number = 0;
  if (!count.empty() && (!ParseInteger(count, number) || number < 0))
    return RefuseLine(iLine, "the number of rows cannot be read");
  oHead.count = count.empty() ? -1 : number;
  const std::string_view form = Field(iLine, iFormColumn, iLine.size());
  if (form.size() != 1 || form[0] < '0' || form[0] > '3')
    return RefuseLine(iLine, "the block has no form 0, 1, 2 or 3 at its end");
  oHead.form = static_cast<Form>(form[0] - '0');
  if (IsBinary(oHead.form) && oHead.count < 0)
    return RefuseLine(iLine, "a binary block must tell its number of rows");
  return true;
}

//! Some programs end binary blocks like those of text.
bool FrdReading::EndBinary()
{
  _Uncounted = true;
  if (!_Window.Have(4) || std::memcmp(_Window.Cursor(), " -3\n", 4) != 0)
    return true;
  _Window.Skip(4);
  return true;
}

} // namespace frd

ReadOutcome ReadFrd(const std::filesystem::path& iPath, const ResultOptions& iOptions, ResultRecords& oRecords)
{
  oRecords = ResultRecords();
  frd::FrdReading reading(iOptions, oRecords);
  try
  {
    reading.ReadFile(iPath);
  }
  catch (const std::bad_alloc&)
  {
    reading.outcome = {false,
                       iPath.string(),
                       0,
                       "",
                       "there is not enough memory for these results.",
                       "Ask for fewer of them, or read them on a bigger machine."};
  }
  return reading.outcome;
}

bool LooksLikeFrd(std::string_view iHead)
{
  return iHead.starts_with("    1C") || iHead.starts_with("    1U");
}

} // namespace voxbench
