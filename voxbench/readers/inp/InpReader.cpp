// SPDX-License-Identifier: MIT
#include "InpReader.h"

#include "Handlers.h"
#include "Reading.h"
#include "Sniff.h"

#include <fmt/format.h>

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

namespace voxbench
{

namespace
{
using inp::LineKind;
using inp::Reading;

constexpr std::size_t kHead = std::size_t{1} << 16;

// Refuses a file that is no deck.
bool BeginsADeck(Reading& ioReading)
{
  inp::LineSource& source = ioReading.Source();
  source.Ready();
  if (!source.Failure().empty() && source.Cursor() == source.Limit())
  {
    ioReading.Refuse(ioReading.Here(), source.Failure() + ".", "Get an undamaged copy of the file.");
    return false;
  }
  const auto size = std::min(kHead, static_cast<std::size_t>(source.Limit() - source.Cursor()));
  std::optional<inp::NoDeck> noDeck = inp::Sniff({source.Cursor(), size});
  if (!noDeck)
    return true;
  ioReading.cardInForce = noDeck->card;
  ioReading.Refuse({0, noDeck->line}, std::move(noDeck->reason), "Give a deck of the CalculiX dialect.");
  return false;
}

// Takes the data lines that no card had use for.
void PassOver(Reading& ioReading)
{
  if (ioReading.Peek() != LineKind::Data)
    return;
  const Where first = ioReading.Here();
  std::int64_t count = 0;
  for (; ioReading.Peek() == LineKind::Data; ++count)
    ioReading.Source().TakeLine();
  ioReading.Report(Severity::Error, first,
                   fmt::format("{} data line{} from here on could not be used.", count, count == 1 ? "" : "s"));
}

void ReadUnknownCard(Reading& ioReading, const CardRecord& iCard)
{
  std::int64_t count = 0;
  for (; ioReading.Peek() == LineKind::Data; ++count)
    ioReading.Source().TakeLine();
  ++ioReading.model.diagnostics.unknownCards[ioReading.cardInForce];
  ioReading.Report(Severity::Warning, iCard.where,
                   fmt::format("the card is not understood; it is passed over with its {} data line{}.", count,
                               count == 1 ? "" : "s"));
}

void ReadCards(Reading& ioReading)
{
  PassOver(ioReading);
  CardRecord card;
  while (ioReading.TakeCard(card))
  {
    card.keyword = inp::CanonicalKeyword(card.keyword);
    if (const inp::Handler handler = inp::FindHandler(card.keyword))
      handler(ioReading, card);
    else
      ReadUnknownCard(ioReading, card);
    PassOver(ioReading);
  }
  if (ioReading.inStep && !ioReading.Refused())
  {
    ioReading.cardInForce = "*STEP";
    ioReading.Report(Severity::Warning, ioReading.model.steps.back().card.where, "the step has no *END STEP.");
  }
}
} // namespace

ReadOutcome ReadInp(const std::filesystem::path& iPath, const ReadOptions& iOptions, NeutralModel& oModel)
{
  oModel = NeutralModel();
  Reading reading(iOptions, oModel);
  try
  {
    if (!reading.Open(iPath) || !BeginsADeck(reading))
      return reading.outcome;
    ReadCards(reading);
    if (reading.Refused())
      return reading.outcome;
    inp::FinishMesh(reading);
    inp::FinishSets(reading);
    reading.Finished();
  }
  catch (const std::bad_alloc&)
  {
    reading.Refuse({0, 0}, "there is not enough memory for this deck.", "Read it on a bigger machine.");
  }
  return reading.outcome;
}

} // namespace voxbench
