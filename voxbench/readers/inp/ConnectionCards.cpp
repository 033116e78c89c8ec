// SPDX-License-Identifier: MIT
#include "../Numbers.h"
#include "Handlers.h"

#include <fmt/format.h>

#include <utility>

namespace voxbench::inp
{

namespace
{
// One term's three fields. @return false if they are no term.
bool TakeTerm(const std::vector<std::string>& iFields, std::size_t iAt, EquationTable& ioEquations)
{
  std::int32_t node = 0;
  std::int32_t dof = 0;
  double coefficient = 0.;
  if (!ParseInteger(iFields[iAt], node) || node < 1 || !ParseInteger(iFields[iAt + 1], dof) ||
      !ParseReal(iFields[iAt + 2], coefficient))
    return false;
  ioEquations.nodes.push_back(node);
  ioEquations.dofs.push_back(dof);
  ioEquations.coefficients.push_back(coefficient);
  return true;
}

void TruncateTerms(EquationTable& ioEquations)
{
  const std::size_t kept = ioEquations.offsets.back();
  ioEquations.nodes.Truncate(kept);
  ioEquations.dofs.Truncate(kept);
  ioEquations.coefficients.Truncate(kept);
}

// The terms after a line with their number. @return false if they do not come whole.
bool TakeTerms(Reading& ioReading, std::int32_t iCount, EquationTable& ioEquations)
{
  DataLine line;
  std::int32_t taken = 0;
  while (taken < iCount)
  {
    if (!ioReading.TakeFields(line))
      return false;
    for (std::size_t at = 0; at + 2 < line.fields.size() && taken < iCount; at += 3, ++taken)
      if (!TakeTerm(line.fields, at, ioEquations))
        return false;
    if (line.fields.size() < 3)
      return false;
  }
  return true;
}

void ReadTerms(Reading& ioReading, const CardRecord& iCard)
{
  EquationTable& equations = ioReading.model.equations;
  if (equations.offsets.empty())
    equations.offsets.push_back(0);
  DataLine line;
  while (ioReading.TakeFields(line))
  {
    const Where where{ioReading.Here().file, line.line};
    std::int32_t count = 0;
    if (line.fields.empty() || !ParseInteger(line.fields[0], count) || count < 1 ||
        !TakeTerms(ioReading, count, equations))
    {
      ioReading.Report(Severity::Error, where,
                       "the number of terms or a term (node, freedom, factor) is wrong; the "
                       "equation is not used.");
      TruncateTerms(equations);
      continue;
    }
    equations.offsets.push_back(static_cast<std::uint32_t>(equations.nodes.size()));
    equations.wheres.push_back(where);
    equations.steps.push_back(iCard.step);
  }
}

std::int32_t NodeIn(Reading& ioReading, const CardRecord& iCard, const char* iKey)
{
  std::int32_t node = 0;
  const std::string& text = iCard.Get(iKey);
  if (!text.empty() && (!ParseInteger(text, node) || node < 1))
  {
    ioReading.Report(Severity::Error, iCard.where, fmt::format("{}={} is no node number.", iKey, text));
    return 0;
  }
  return node;
}

ConnectionKind ConnectionKindOf(const std::string& iKeyword)
{
  static constexpr std::pair<const char*, ConnectionKind> kKinds[] = {
      {"CONTACTPAIR", ConnectionKind::ContactPair},
      {"COUPLING", ConnectionKind::Coupling},
      {"DISTRIBUTINGCOUPLING", ConnectionKind::DistributingCoupling},
      {"RIGIDBODY", ConnectionKind::RigidBody},
      {"PRE-TENSIONSECTION", ConnectionKind::PreTension},
      {"CYCLICSYMMETRYMODEL", ConnectionKind::CyclicSymmetry},
      {"CLEARANCE", ConnectionKind::Clearance}};
  for (const auto& [keyword, kind] : kKinds)
    if (iKeyword == keyword)
      return kind;
  return ConnectionKind::Tie;
}

std::string FirstOf(const CardRecord& iCard, std::initializer_list<const char*> iKeys)
{
  for (const char* const key : iKeys)
    if (!iCard.Get(key).empty())
      return iCard.Get(key);
  return {};
}

void FillConnection(Reading& ioReading, Connection& ioConnection)
{
  const CardRecord& card = ioConnection.card;
  ioConnection.interaction = card.Get("INTERACTION");
  ioConnection.orientation = card.Get("ORIENTATION");
  ioConnection.name = FirstOf(card, {"CONSTRAINTNAME", "NAME", "TIE"});
  ioConnection.referenceNode = NodeIn(ioReading, card, card.Has("NODE") ? "NODE" : "REFNODE");
  ioConnection.rotationNode = NodeIn(ioReading, card, "ROTNODE");
  if (ioConnection.kind == ConnectionKind::Tie || ioConnection.kind == ConnectionKind::ContactPair)
  {
    ioConnection.dependent = card.Text(0, 0);
    ioConnection.independent = card.Text(0, 1);
    if (card.data.size() != 1 || ioConnection.dependent.empty())
      ioReading.Report(Severity::Error, card.where, "the card needs one line with its surfaces.");
    return;
  }
  if (ioConnection.kind == ConnectionKind::Clearance)
  {
    ioConnection.dependent = card.Get("SLAVE");
    ioConnection.independent = card.Get("MASTER");
    return;
  }
  ioConnection.dependent = FirstOf(card, {"SURFACE", "NSET", "ELSET", "ELEMENT"});
}
} // namespace

void ReadEquation(Reading& ioReading, CardRecord& ioCard)
{
  if (ioCard.keyword == "EQUATIONF" || ioCard.Has("REMOVE") || ioCard.Has("REMOVEALL"))
    return ReadOtherCard(ioReading, ioCard);
  ReportUnusedParameters(ioReading, ioCard, {});
  ReadTerms(ioReading, ioCard);
}

void ReadMultiPointConstraint(Reading& ioReading, CardRecord& ioCard)
{
  std::vector<MultiPointConstraint>& all = ioReading.model.multiPointConstraints;
  const std::size_t before = all.size();
  DataLine line;
  while (ioReading.TakeFields(line))
  {
    if (line.fields.empty())
      continue;
    const Where where{ioReading.Here().file, line.line};
    std::int32_t node = 0;
    const bool goesOn = line.fields[0].empty() || ParseInteger(line.fields[0], node);
    if (goesOn && all.size() == before)
    {
      ioReading.Report(Severity::Error, where,
                       "the line does not begin with the type of a constraint; it is not used.");
      continue;
    }
    if (!goesOn)
    {
      all.emplace_back();
      all.back().type = line.fields[0];
      all.back().where = where;
      all.back().step = ioCard.step;
    }
    for (std::size_t at = goesOn ? 0 : 1; at < line.fields.size(); ++at)
    {
      if (!ParseInteger(line.fields[at], node))
        all.back().nodeSets.push_back(line.fields[at]);
      else if (node > 0) // 0 only fills the first field of a line that goes on
        all.back().nodes.push_back(node);
    }
  }
}

void ReadConnection(Reading& ioReading, CardRecord& ioCard)
{
  const ConnectionKind kind = ConnectionKindOf(ioCard.keyword);
  ioReading.TakeData(ioCard);
  std::vector<CardRecord> parts;
  if (kind == ConnectionKind::ContactPair && ioCard.data.size() > 1)
    for (const DataLine& line : ioCard.data) // one connection per pair
    {
      CardRecord part = ioCard;
      part.data = {line};
      parts.push_back(std::move(part));
    }
  else
    parts.push_back(std::move(ioCard));
  for (CardRecord& part : parts)
  {
    Connection& connection = ioReading.model.connections.emplace_back();
    connection.kind = kind;
    connection.card = std::move(part);
    FillConnection(ioReading, connection);
  }
  ioReading.owner = kind == ConnectionKind::Coupling ? Reading::Owner::Connection : Reading::Owner::None;
}

void ReadCouplingBehavior(Reading& ioReading, CardRecord& ioCard)
{
  ioReading.TakeData(ioCard);
  if (ioReading.owner == Reading::Owner::Connection)
    return ioReading.model.connections.back().behavior.push_back(std::move(ioCard));
  ioReading.Report(Severity::Error, ioCard.where, "the card follows no *COUPLING.");
  ioReading.model.otherCards.push_back(std::move(ioCard));
}

} // namespace voxbench::inp
