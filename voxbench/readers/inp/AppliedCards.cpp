// SPDX-License-Identifier: MIT
#include "../Numbers.h"
#include "Handlers.h"

#include <fmt/format.h>

#include <utility>

namespace voxbench::inp
{

namespace
{
// How the fields of a data line follow each other after the target.
struct Layout
{
  bool label = false;   //!< a label such as P1
  bool freedom = false; //!< a degree of freedom
  bool range = false;   //!< a last degree of freedom
};

class RowReader
{
public:
  RowReader(Reading& ioReading, AppliedCard& ioCard, Layout iLayout)
      : _Reading(ioReading),
        _Card(ioCard),
        _Layout(iLayout)
  {
  }

  void TakeAll()
  {
    while (_Reading.TakeFields(_Line))
      TakeRow();
  }

private:
  void TakeRow()
  {
    AppliedRow row;
    row.line = _Line.line;
    row.firstValue = static_cast<std::uint32_t>(_Card.values.size());
    std::size_t field = 0;
    bool good = TakeTarget(row, field++);
    if (_Layout.label)
      good = good && TakeLabel(row, field++);
    if (_Layout.freedom)
      good = good && TakeFreedom(row.firstDof, field++);
    row.lastDof = row.firstDof;
    if (_Layout.range && field < _Line.fields.size())
    {
      good = good && (_Line.fields[field].empty() || TakeFreedom(row.lastDof, field));
      ++field;
    }
    good = good && TakeValues(field);
    row.valueCount = static_cast<std::uint32_t>(_Card.values.size()) - row.firstValue;
    if (good)
      _Card.rows.push_back(row);
    else
      _Card.values.Truncate(row.firstValue);
  }

  bool Complain(std::size_t iField, const char* iWhat)
  {
    const std::string text = iField < _Line.fields.size() ? _Line.fields[iField] : std::string();
    _Reading.Report(Severity::Error, {_Reading.Here().file, _Line.line},
                    fmt::format("\"{}\" is no {}; the line is not used.", text, iWhat));
    return false;
  }

  bool TakeTarget(AppliedRow& ioRow, std::size_t iField)
  {
    if (_Line.fields.empty())
      return Complain(iField, "node, element, set or surface");
    const std::string& text = _Line.fields[iField];
    if (text.empty()) // the whole model
      return true;
    if (ParseInteger(text, ioRow.id))
      return ioRow.id > 0 || Complain(iField, "node or element number");
    ioRow.name = _Reading.NameIndex(text);
    return true;
  }

  bool TakeLabel(AppliedRow& ioRow, std::size_t iField)
  {
    if (iField >= _Line.fields.size() || _Line.fields[iField].empty())
      return Complain(iField, "label");
    ioRow.label = _Reading.NameIndex(_Line.fields[iField]);
    return true;
  }

  bool TakeFreedom(std::int32_t& oFreedom, std::size_t iField)
  {
    return (iField < _Line.fields.size() && ParseInteger(_Line.fields[iField], oFreedom)) ||
           Complain(iField, "degree of freedom");
  }

  bool TakeValues(std::size_t iField)
  {
    for (; iField < _Line.fields.size(); ++iField)
    {
      double value = 0.;
      if (!_Line.fields[iField].empty() && !ParseReal(_Line.fields[iField], value))
        return Complain(iField, "number");
      _Card.values.push_back(value);
    }
    return true;
  }

  Reading& _Reading;
  AppliedCard& _Card;
  Layout _Layout;
  DataLine _Line;
};

void ReadApplied(Reading& ioReading, CardRecord& ioCard, Layout iLayout, std::vector<AppliedCard>& oCards)
{
  AppliedCard& applied = oCards.emplace_back();
  applied.type = ioCard.Get("TYPE");
  applied.amplitude = ioCard.Get("AMPLITUDE");
  applied.replaces = ioCard.Get("OP") == "NEW";
  applied.keyword = ioCard.keyword;
  applied.where = ioCard.where;
  applied.step = ioCard.step;
  applied.parameters = std::move(ioCard.parameters);
  RowReader(ioReading, applied, iLayout).TakeAll();
  applied.values.ReleaseSlack();
}
} // namespace

void ReadLoad(Reading& ioReading, CardRecord& ioCard)
{
  const std::string& keyword = ioCard.keyword;
  Layout layout;
  layout.freedom = keyword == "CLOAD" || keyword == "CFLUX";
  layout.label = !layout.freedom && keyword != "TEMPERATURE";
  ReadApplied(ioReading, ioCard, layout, ioReading.model.loads);
}

void ReadRestraint(Reading& ioReading, CardRecord& ioCard)
{
  Layout layout;
  layout.label = ioCard.keyword == "BOUNDARYF";
  layout.freedom = true;
  layout.range = true;
  ReadApplied(ioReading, ioCard, layout, ioReading.model.restraints);
}

void ReadInitialConditions(Reading& ioReading, CardRecord& ioCard)
{
  const std::string& type = ioCard.Get("TYPE");
  Layout layout;
  layout.freedom = type == "VELOCITY" || type == "DISPLACEMENT" || type == "FLUIDVELOCITY";
  ReadApplied(ioReading, ioCard, layout, ioReading.model.initialConditions);
}

void ReadNodalThickness(Reading& ioReading, CardRecord& ioCard)
{
  ReadApplied(ioReading, ioCard, {}, ioReading.model.nodalThicknesses);
}

} // namespace voxbench::inp
