// SPDX-License-Identifier: MIT
#include "Reading.h"

#include "../Numbers.h"
#include "InpReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace voxbench::inp
{

namespace fs = std::filesystem;

Reading::Reading(const ReadOptions& iOptions, NeutralModel& ioModel) : model(ioModel), _Options(iOptions) {}

bool Reading::Open(const fs::path& iPath)
{
  const std::string problem = Push(iPath);
  if (!problem.empty())
    outcome = {false,
               iPath.string(),
               0,
               "",
               fmt::format("the file cannot be read: {}.", problem),
               "Check the path and the permissions."};
  return problem.empty();
}

std::string Reading::Push(const fs::path& iPath)
{
  OpenFile opened{std::make_unique<LineSource>(), iPath, {}, static_cast<std::int32_t>(model.files.size())};
  std::string problem = opened.source->Open(iPath);
  if (!problem.empty())
    return problem;
  std::error_code ignored;
  opened.identity = fs::canonical(iPath, ignored);
  model.files.push_back(iPath.string());
  _BytesKnown += opened.source->BytesInAll();
  _Open.push_back(std::move(opened));
  return {};
}

void Reading::Progress() const
{
  if (!_Options.progress || _Open.empty())
    return;
  std::uint64_t done = _BytesClosed;
  for (const OpenFile& file : _Open)
    done += file.source->BytesRead();
  _Options.progress(std::min(done, _BytesKnown), _BytesKnown);
}

void Reading::Finished() const
{
  if (_Options.progress)
    _Options.progress(_BytesKnown, _BytesKnown);
}

void Reading::LeaveFile()
{
  _BytesClosed += Source().BytesInAll();
  _Open.pop_back();
}

LineKind Reading::Peek(bool iBlankLinesCount)
{
  while (!Refused())
  {
    if (Source().Cursor() == Source().Limit())
      Progress();
    if (!Source().Ready())
    {
      if (!Source().Failure().empty())
        Refuse(Here(), Source().Failure() + ".", "Get an undamaged copy of the file.");
      if (_Open.size() == 1 || Refused())
        return LineKind::End;
      LeaveFile();
      continue;
    }
    const char* at = Source().Cursor();
    while (*at == ' ' || *at == '\t' || *at == '\r')
      ++at;
    const bool isBlank = *at == '\n';
    if ((isBlank && !iBlankLinesCount) || (at[0] == '*' && at[1] == '*'))
      Source().TakeLine();
    else if (*at != '*')
      return LineKind::Data;
    else if (!AtInclude(PeekedLine()))
      return LineKind::Keyword;
    else
      EnterInclude();
  }
  return LineKind::End;
}

std::string_view Reading::PeekedLine()
{
  const char* const start = Source().Cursor();
  const char* const limit = Source().Limit();
  const void* const end = memchr(start, '\n', static_cast<std::size_t>(limit - start));
  return {start, static_cast<std::size_t>((end == nullptr ? limit : static_cast<const char*>(end)) - start)};
}

bool Reading::AtInclude(std::string_view iLine) const
{
  std::string keyword;
  for (const char character : iLine.substr(0, iLine.find(',')))
    if (character != ' ' && character != '\t' && character != '\r')
      keyword += character;
  return Upper(keyword) == "*INCLUDE";
}

void Reading::EnterInclude()
{
  const Where where = Here();
  const std::string cardBefore = std::exchange(cardInForce, "*INCLUDE");
  const fs::path includer = _Open.back().path;
  CardRecord card;
  std::string_view line = Source().TakeLine();
  AddKeywordLine(line, card);
  while (!Trim(line).empty() && Trim(line).back() == ',' && Source().Ready() && ContinuesKeyword(PeekedLine()))
  {
    line = Source().TakeLine();
    AddKeywordLine(line, card);
  }
  const fs::path name = card.Get("INPUT");
  if (name.empty())
    return Refuse(where, "the card names no file.", "Write *INCLUDE,INPUT=file.");

  fs::path target = includer.parent_path() / name; // an absolute name stands for itself
  std::error_code ignored;
  if (!fs::exists(target, ignored))
  {
    fs::path packed = target;
    packed += ".gz";
    if (!fs::exists(packed, ignored))
      return Refuse(where, fmt::format("the included file {} does not exist.", target.string()),
                    "Put it beside the including file or correct the name.");
    target = packed;
  }
  const fs::path identity = fs::canonical(target, ignored);
  if (std::any_of(_Open.begin(), _Open.end(), [&](const OpenFile& iFile) { return iFile.identity == identity; }))
    return Refuse(where, fmt::format("the file {} includes itself.", target.string()),
                  "Remove one of the *INCLUDE cards.");
  if (const std::string problem = Push(target); !problem.empty())
    return Refuse(where, fmt::format("the included file {} cannot be read: {}.", target.string(), problem),
                  "Check the path and the permissions.");
  cardInForce = cardBefore;
}

bool Reading::TakeFields(DataLine& oLine, bool iBlankLinesCount)
{
  if (Peek(iBlankLinesCount) != LineKind::Data)
    return false;
  oLine.line = Source().Line();
  SplitFields(Source().TakeLine(), oLine.fields);
  return true;
}

bool Reading::TakeCard(CardRecord& oCard)
{
  oCard = CardRecord();
  if (Peek() != LineKind::Keyword)
    return false;
  oCard.where = Here();
  oCard.step = StepNow();
  std::string_view line = Trim(Source().TakeLine());
  bool continues = line.back() == ',';
  AddKeywordLine(line, oCard);
  const std::string shown = ShownKeyword(oCard.keyword);
  cardInForce = "*" + (shown == oCard.keyword ? Readable(KeywordAsWritten(line)) : shown);
  while (continues && Peek() == LineKind::Data && ContinuesKeyword(PeekedLine()))
  {
    line = Trim(Source().TakeLine());
    continues = line.back() == ',';
    AddKeywordLine(line, oCard);
  }
  return !Refused();
}

void Reading::TakeData(CardRecord& ioCard, bool iBlankLinesCount)
{
  DataLine line;
  while (TakeFields(line, iBlankLinesCount))
    ioCard.data.push_back(std::move(line));
  while (!ioCard.data.empty() && ioCard.data.back().fields.empty())
    ioCard.data.pop_back();
}

void Reading::TakeNumbers(CardRecord& ioCard)
{
  DataLine line;
  while (TakeFields(line))
  {
    double value = 0.;
    const auto odd =
        std::find_if(line.fields.begin(), line.fields.end(),
                     [&value](const std::string& iText) { return !iText.empty() && !ParseReal(iText, value); });
    if (odd != line.fields.end())
      Report(Severity::Error, {Here().file, line.line}, fmt::format("\"{}\" is no number.", *odd));
    if (!line.fields.empty())
      ioCard.data.push_back(std::move(line));
  }
}

void Reading::Refuse(Where iWhere, std::string iReason, std::string iAdvice)
{
  const auto file = static_cast<std::size_t>(std::max(iWhere.file, 0));
  outcome = {false,
             file < model.files.size() ? model.files[file] : std::string(),
             iWhere.line,
             cardInForce,
             std::move(iReason),
             std::move(iAdvice)};
}

void Reading::Report(Severity iSeverity, Where iWhere, const std::string& iMessage)
{
  model.diagnostics.Add(iSeverity, iWhere, cardInForce, Readable(iMessage));
}

std::int32_t Reading::NameIndex(const std::string& iName)
{
  const auto [found, isNew] = _NameIndexes.try_emplace(iName, static_cast<std::int32_t>(model.names.size()));
  if (isNew)
    model.names.push_back(iName);
  return found->second;
}

} // namespace voxbench::inp
