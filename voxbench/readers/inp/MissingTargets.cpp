// SPDX-License-Identifier: MIT
#include "../Numbers.h"
#include "Handlers.h"
#include "IdPresence.h"
#include "InpReader.h"

#include <fmt/format.h>

namespace voxbench::inp
{

namespace
{
// The numbers of one card that are no node, or no element.
class Absent
{
public:
  Absent(const IdPresence& iPresent, const char* iWhat) : _Present(iPresent), _What(iWhat) {}

  void Look(std::int32_t iId)
  {
    if (iId > 0 && !_Present.Has(iId) && _Count++ == 0)
      _First = iId;
  }

  // A text that may as well be the name of a set.
  void LookAt(const std::string& iText)
  {
    std::int32_t id = 0;
    if (ParseInteger(iText, id))
      Look(id);
  }

  void Report(Reading& ioReading, const std::string& iKeyword, Where iWhere) const
  {
    if (_Count == 0)
      return;
    ioReading.cardInForce = "*" + ShownKeyword(iKeyword);
    ioReading.Report(Severity::Error, iWhere,
                     fmt::format("the card names {} {}{} that the deck does not define, {} first.", _Count, _What,
                                 _Count == 1 ? "" : "s", _First));
  }

private:
  const IdPresence& _Present;
  const char* _What;
  std::int64_t _Count = 0;
  std::int32_t _First = 0;
};

// A card that was kept as it stands, and the field of its data lines that names a node or an element (or a set).
struct NumberField
{
  const char* keyword;
  std::size_t field;
  bool isElement;
};

constexpr NumberField kNumberFields[] = {{"EQUATION", 0, false}, // that removes equations
                                         {"DISTRIBUTINGCOUPLING", 0, false},
                                         {"RETAINEDNODALDOFS", 0, false},
                                         {"INITIALSTRAININCREASE", 0, true},
                                         {"MODELCHANGE", 0, true},
                                         {"NORMAL", 0, true},
                                         {"NORMAL", 1, false}};

bool Names(const NumberField& iField, const CardRecord& iCard)
{
  return iCard.keyword == iField.keyword && (iCard.keyword != "MODELCHANGE" || iCard.Get("TYPE") == "ELEMENT");
}

bool IsOfElements(const AppliedCard& iCard)
{
  return !ActsOnNodes(iCard) || iCard.type == "STRESS" || iCard.type == "PLASTICSTRAIN" || iCard.type == "SOLUTION";
}

// Looks for the numbers of the model's cards among the nodes and elements of the deck.
class Targets
{
public:
  Targets(Reading& ioReading, const IdPresence& iNodes, const IdPresence& iElements)
      : _Reading(ioReading),
        _Nodes(iNodes),
        _Elements(iElements)
  {
  }

  void Look(const AppliedCard& iCard)
  {
    Absent absent = IsOfElements(iCard) ? AbsentElements() : AbsentNodes();
    for (const AppliedRow& row : iCard.rows)
      absent.Look(row.id);
    absent.Report(_Reading, iCard.keyword, iCard.where);
  }

  void Look(const EquationTable& iEquations)
  {
    for (std::size_t row = 0; row < iEquations.size(); ++row)
    {
      Absent absent = AbsentNodes();
      for (std::size_t term = iEquations.offsets[row]; term < iEquations.offsets[row + 1]; ++term)
        absent.Look(iEquations.nodes[term]);
      absent.Report(_Reading, "EQUATION", iEquations.wheres[row]);
    }
  }

  void Look(const MultiPointConstraint& iConstraint)
  {
    Absent absent = AbsentNodes();
    for (const std::int32_t node : iConstraint.nodes)
      absent.Look(node);
    absent.Report(_Reading, "MPC", iConstraint.where);
  }

  void Look(const Connection& iConnection)
  {
    const CardRecord& card = iConnection.card;
    Absent nodes = AbsentNodes();
    nodes.Look(iConnection.referenceNode);
    nodes.Look(iConnection.rotationNode);
    nodes.Report(_Reading, card.keyword, card.where);
    Absent elements = AbsentElements();
    elements.LookAt(card.Get("ELEMENT"));
    elements.Report(_Reading, card.keyword, card.where);
    Look(card);
  }

  void Look(const CardRecord& iCard)
  {
    for (const NumberField& field : kNumberFields)
    {
      if (!Names(field, iCard))
        continue;
      Absent absent = field.isElement ? AbsentElements() : AbsentNodes();
      for (std::size_t line = 0; line < iCard.data.size(); ++line)
        absent.LookAt(iCard.Text(line, field.field));
      absent.Report(_Reading, iCard.keyword, iCard.where);
    }
  }

private:
  Absent AbsentNodes() const { return {_Nodes, "node"}; }
  Absent AbsentElements() const { return {_Elements, "element"}; }

  Reading& _Reading;
  const IdPresence& _Nodes;
  const IdPresence& _Elements;
};
} // namespace

void ReportMissingTargets(Reading& ioReading, const IdPresence& iNodes, const IdPresence& iElements)
{
  const NeutralModel& model = ioReading.model;
  Targets targets(ioReading, iNodes, iElements);
  for (const auto* const cards : {&model.loads, &model.restraints, &model.initialConditions, &model.nodalThicknesses})
    for (const AppliedCard& card : *cards)
      targets.Look(card);
  targets.Look(model.equations);
  for (const MultiPointConstraint& constraint : model.multiPointConstraints)
    targets.Look(constraint);
  for (const Connection& connection : model.connections)
    targets.Look(connection);
  for (const CardRecord& card : model.otherCards)
    targets.Look(card);
}

} // namespace voxbench::inp
