// SPDX-License-Identifier: MIT
#include "Handlers.h"

#include <fmt/format.h>

#include <utility>

namespace voxbench::inp
{

void ReadHeading(Reading& ioReading, CardRecord&)
{
  while (ioReading.Peek() == LineKind::Data)
    ioReading.model.title.emplace_back(Trim(ioReading.Source().TakeLine()));
}

void ReadStep(Reading& ioReading, CardRecord& ioCard)
{
  if (ioReading.inStep)
    ioReading.Report(Severity::Warning, ioCard.where, "the step before has no *END STEP.");
  ioReading.inStep = true;
  Step& step = ioReading.model.steps.emplace_back();
  ioCard.step = ioReading.StepNow();
  ioReading.TakeData(ioCard);
  step.perturbation = ioCard.Has("PERTURBATION");
  step.nonlinearGeometry = ioCard.Has("NLGEOM") && ioCard.Get("NLGEOM") != "NO";
  step.card = std::move(ioCard);
  ioReading.owner = Reading::Owner::None;
}

void ReadEndStep(Reading& ioReading, CardRecord& ioCard)
{
  if (!ioReading.inStep)
    return ioReading.Report(Severity::Warning, ioCard.where, "there is no step to end.");
  ioReading.model.steps.back().end = ioCard.where;
  ioReading.inStep = false;
  ioReading.owner = Reading::Owner::None;
}

void ReadProcedure(Reading& ioReading, CardRecord& ioCard)
{
  ioReading.TakeData(ioCard);
  if (ioReading.inStep && ioReading.model.steps.back().procedure.keyword.empty())
  {
    ioReading.model.steps.back().procedure = std::move(ioCard);
    return;
  }
  ioReading.Report(Severity::Warning, ioCard.where,
                   ioReading.inStep ? fmt::format("the step has the procedure *{} already.",
                                                  ioReading.model.steps.back().procedure.keyword)
                                    : std::string("the procedure stands outside of a step."));
  ioReading.model.otherCards.push_back(std::move(ioCard));
}

void ReadOutputRequest(Reading& ioReading, CardRecord& ioCard)
{
  ioReading.TakeData(ioCard);
  OutputRequest& request = ioReading.model.outputRequests.emplace_back();
  request.card = std::move(ioCard);
  request.keyword = request.card.keyword;
  for (const char* const key : {"NSET", "ELSET", "SURFACE", "SET"})
    if (request.set.empty())
      request.set = request.card.Get(key);
  for (const DataLine& line : request.card.data)
    for (const std::string& variable : line.fields)
      if (!variable.empty())
        request.variables.push_back(variable);
}

void ReadOtherCard(Reading& ioReading, CardRecord& ioCard)
{
  ioReading.TakeData(ioCard);
  ioReading.model.otherCards.push_back(std::move(ioCard));
}

void RefuseAssembly(Reading& ioReading, CardRecord& ioCard)
{
  ioReading.Refuse(ioCard.where, "the deck is made of parts and instances, whose numbers repeat.",
                   "Write the model without parts and assemblies (a flat deck).");
}

} // namespace voxbench::inp
