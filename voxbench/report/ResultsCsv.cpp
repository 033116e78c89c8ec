// SPDX-License-Identifier: MIT
#include "voxbench/report/ResultsReport.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

//! A field with what separates fields is quoted.
std::string Field(const std::string& iText)
{
  if (iText.find_first_of(",\"\n") == std::string::npos)
    return iText;
  std::string quoted = "\"";
  for (const char character : iText)
    quoted += character == '"' ? std::string("\"\"") : std::string(1, character);
  return quoted + '"';
}

//! One head line, then rows alone: what is told about the collectors has no place here.
class CsvResults final : public ResultsReport
{
public:
  CsvResults(Output& ioOutput, bool iWithValues) : _Output(ioOutput), _WithValues(iWithValues) {}

  void List(const ResultsListing& iListing) override
  {
    _Output.Write("type,title,version,position,components\n");
    for (const ResultsListing::Type& type : iListing.types)
      for (const auto& available : type.available)
        for (const std::string& position : available.positions)
          _Output.Write(fmt::format("{},{},{},{},{}\n", Field(type.name), Field(type.title), available.version,
                                    position, fmt::join(type.components, " ")));
  }

  void Add(const ResultTable& iTable) override
  {
    if (_Tables++ == 0)
      WriteHead(iTable);
    const std::string start = fmt::format("{},{},{},{}", Field(iTable.type), iTable.version.name,
                                          NumberText(iTable.version.value), iTable.position);
    for (const ResultTable::Group& group : iTable.groups)
      if (_WithValues)
        WriteValues(start + "," + Field(group.name), group, iTable.components.size());
      else
        WriteExtremes(start + "," + Field(group.name), group, iTable.components);
  }

  void Tell(const ResultsDeleted& /*iDeleted*/) override {}
  void Close() override {}

private:
  void WriteHead(const ResultTable& iTable)
  {
    _Output.Write("type,version,value,position,group");
    if (_WithValues)
    {
      _Output.Write(",node,x,y,z");
      for (const std::string& component : iTable.components)
        _Output.Write(fmt::format(",{}", Field(component)));
    }
    else
      _Output.Write(",component,minimum,minimumNode,minimumX,minimumY,minimumZ"
                    ",maximum,maximumNode,maximumX,maximumY,maximumZ");
    _Output.Write("\n");
  }

  void WriteValues(const std::string& iStart, const ResultTable::Group& iGroup, std::size_t iComponents)
  {
    for (std::size_t row = 0; row < iGroup.nodes.size(); ++row)
    {
      std::string line = fmt::format("{},{}", iStart, iGroup.nodes[row]);
      for (std::size_t axis = 0; axis < 3; ++axis)
        line.append(1, ',').append(NumberText(iGroup.places[3 * row + axis]));
      for (std::size_t component = 0; component < iComponents; ++component)
        line.append(1, ',').append(NumberText(iGroup.numbers[row * iComponents + component]));
      _Output.Write(line + "\n");
    }
  }

  void WriteExtremes(const std::string& iStart, const ResultTable::Group& iGroup,
                     const std::vector<std::string>& iComponents)
  {
    for (std::size_t component = 0; component < iGroup.minima.size(); ++component)
      _Output.Write(fmt::format("{},{},{},{}\n", iStart, Field(iComponents[component]), Cells(iGroup.minima[component]),
                                Cells(iGroup.maxima[component])));
  }

  static std::string Cells(const ResultTable::Extreme& iExtreme)
  {
    if (iExtreme.node == 0)
      return ",,,,";
    return fmt::format("{},{},{},{},{}", NumberText(iExtreme.value), iExtreme.node, NumberText(iExtreme.place[0]),
                       NumberText(iExtreme.place[1]), NumberText(iExtreme.place[2]));
  }

  Output& _Output;
  bool _WithValues;
  int _Tables = 0;
};

} // namespace

std::unique_ptr<ResultsReport> ResultsReport::Csv(Output& ioOutput, bool iWithValues)
{
  return std::make_unique<CsvResults>(ioOutput, iWithValues);
}

} // namespace voxbench
