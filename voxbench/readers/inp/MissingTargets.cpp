// SPDX-License-Identifier: MIT
#include "../Numbers.h"
#include "Handlers.h"
#include "IdPresence.h"

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

  void Report(Reading& ioReading, const std::string& iKeyword, Where iWhere) const
  {
    if (_Count == 0)
      return;
    ioReading.cardInForce = "*" + iKeyword;
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

bool IsOfElements(const AppliedCard& iCard)
{
  return !ActsOnNodes(iCard) || iCard.type == "STRESS" || iCard.type == "PLASTICSTRAIN" || iCard.type == "SOLUTION";
}
} // namespace

void ReportMissingTargets(Reading& ioReading, const IdPresence& iNodes, const IdPresence& iElements)
{
  const NeutralModel& model = ioReading.model;
  for (const auto* const cards : {&model.loads, &model.restraints, &model.initialConditions, &model.nodalThicknesses})
    for (const AppliedCard& card : *cards)
    {
      const bool ofElements = IsOfElements(card);
      Absent absent(ofElements ? iElements : iNodes, ofElements ? "element" : "node");
      for (const AppliedRow& row : card.rows)
        absent.Look(row.id);
      absent.Report(ioReading, card.keyword, card.where);
    }
  const EquationTable& equations = model.equations;
  for (std::size_t row = 0; row < equations.size(); ++row)
  {
    Absent absent(iNodes, "node");
    for (std::size_t term = equations.offsets[row]; term < equations.offsets[row + 1]; ++term)
      absent.Look(equations.nodes[term]);
    absent.Report(ioReading, "EQUATION", equations.wheres[row]);
  }
  for (const MultiPointConstraint& constraint : model.multiPointConstraints)
  {
    Absent absent(iNodes, "node");
    for (const std::int32_t node : constraint.nodes)
      absent.Look(node);
    absent.Report(ioReading, "MPC", constraint.where);
  }
  for (const Connection& connection : model.connections)
  {
    Absent absent(iNodes, "node");
    absent.Look(connection.referenceNode);
    absent.Look(connection.rotationNode);
    absent.Report(ioReading, connection.card.keyword, connection.card.where);
  }
}

} // namespace voxbench::inp
