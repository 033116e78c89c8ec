// SPDX-License-Identifier: MIT
#include "voxbench/report/ResultsReport.h"
#include "voxbench/report/TextTable.h"

#include <cmath>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

std::string Joined(const std::vector<std::string>& iParts, const char* iBetween)
{
  return fmt::format("{}", fmt::join(iParts, iBetween));
}

//! "1-3, 5, 1i-3i": names of versions, runs of one part in one.
std::string Runs(const std::vector<ResultsListing::Type::Available>& iAvailable, const std::string& iSuffix)
{
  std::string runs;
  std::int64_t first = 0;
  std::int64_t last = 0;
  const auto close = [&]
  {
    if (first != 0)
      runs += (runs.empty() ? "" : ", ") + (first == last ? fmt::format("{}{}", first, iSuffix)
                                                          : fmt::format("{0}{2}-{1}{2}", first, last, iSuffix));
  };
  for (const auto& available : iAvailable)
  {
    if (available.version.ends_with('i') != (iSuffix == "i"))
      continue;
    const std::int64_t number = std::stoll(available.version);
    if (first != 0 && number == last + 1)
    {
      last = number;
      continue;
    }
    close();
    first = last = number;
  }
  close();
  return runs;
}

std::string VersionsOf(const ResultsListing::Type& iType)
{
  const std::string real = Runs(iType.available, "");
  const std::string imaginary = Runs(iType.available, "i");
  return real + (real.empty() || imaginary.empty() ? "" : ", ") + imaginary;
}

std::string OrBlank(std::int32_t iNumber, std::int32_t iNone)
{
  return iNumber == iNone ? "" : std::to_string(iNumber);
}

std::string Sentence(const ResultVersion& iVersion)
{
  std::string text = fmt::format("version {}: {}", iVersion.name, iVersion.kind);
  if (iVersion.step > 0)
    text += fmt::format(", step {}", iVersion.step);
  if (iVersion.increment > 0)
    text += fmt::format(", increment {}", iVersion.increment);
  if (iVersion.mode > 0)
    text += fmt::format(", mode {}", iVersion.mode);
  if (iVersion.nodalDiameter >= 0)
    text += fmt::format(", nodal diameter {}", iVersion.nodalDiameter);
  text += fmt::format(", value {}", NumberText(iVersion.value));
  return text + (iVersion.isImaginary ? ", imaginary part" : "");
}

std::string Cell(double iNumber)
{
  return std::isnan(iNumber) ? "-" : fmt::format("{:.6e}", iNumber);
}

class TextResults final : public ResultsReport
{
public:
  TextResults(Output& ioOutput, bool iWithValues) : _Output(ioOutput), _WithValues(iWithValues) {}

  void List(const ResultsListing& iListing) override
  {
    _Output.Write(fmt::format("{}: {}, {}\n", iListing.file, Counted(iListing.nodes, "node", "nodes"),
                              Counted(iListing.elements, "element", "elements")));
    if (!iListing.deck.empty())
      _Output.Write(fmt::format("Groups of {}: {}\n", iListing.deck,
                                iListing.groups.empty() ? "none" : Joined(iListing.groups, " ")));
    if (iListing.types.empty())
      return _Output.Write("No results.\n");
    _Output.Write("\n");
    TextTable versions(
        {Align::Right, Align::Left, Align::Right, Align::Right, Align::Right, Align::Right, Align::Right});
    versions.Add({"VERSION", "KIND", "STEP", "INCREMENT", "MODE", "DIAMETER", "VALUE"});
    for (const ResultVersion& version : iListing.versions)
      versions.Add({version.name, version.kind, OrBlank(version.step, 0), OrBlank(version.increment, 0),
                    OrBlank(version.mode, 0), OrBlank(version.nodalDiameter, -1), NumberText(version.value)});
    versions.Print(_Output);
    _Output.Write("\n");
    TextTable types({Align::Left, Align::Left, Align::Left, Align::Left, Align::Left});
    types.Add({"TYPE", "TITLE", "COMPONENTS", "VERSIONS", "POSITIONS"});
    for (const ResultsListing::Type& type : iListing.types)
      types.Add({type.name, type.title, Joined(type.components, " "), VersionsOf(type),
                 type.available.empty() ? "" : Joined(type.available.front().positions, " ")});
    types.Print(_Output);
  }

  void Add(const ResultTable& iTable) override
  {
    _Output.Write(_Tables++ > 0 ? "\n" : "");
    _Output.Write(
        fmt::format("{} ({}) at {}, {}\n", iTable.type, iTable.title, iTable.position, Sentence(iTable.version)));
    if (!iTable.failure.empty())
      return _Output.Write(fmt::format("  failed: {}\n", iTable.failure));
    _Output.Write(fmt::format("  collector: {}, {}; {}; archiver: {}\n", Counted(iTable.entities, "entity", "entities"),
                              iTable.whole == iTable.entities ? "all with values"
                                                              : fmt::format("{} with values", Grouped(iTable.whole)),
                              iTable.isUpToDate ? "up to date" : "out of date", iTable.archiver));
    for (const ResultTable::Group& group : iTable.groups)
      WriteGroup(iTable, group);
  }

  void Tell(const ResultsDeleted& iDeleted) override
  {
    _Output.Write(fmt::format("\n{}: {} deleted, {} left; the file stays as it is.\n", iDeleted.operation,
                              Counted(iDeleted.deleted, "collector", "collectors"), iDeleted.left));
  }

  void Close() override {}

private:
  void WriteGroup(const ResultTable& iTable, const ResultTable::Group& iGroup)
  {
    const auto nodes = static_cast<long long>(iGroup.nodes.size());
    if (iGroup.name.empty())
      _Output.Write(fmt::format("\nAll nodes: {}\n", Grouped(nodes)));
    else
      _Output.Write(fmt::format("\nGroup {}, {}: {}, {} with results\n", iGroup.name, iGroup.kind,
                                Counted(iGroup.entities, "entity", "entities"), Counted(nodes, "node", "nodes")));
    if (!iGroup.failure.empty())
      return _Output.Write(fmt::format("  failed: {}\n", iGroup.failure));
    if (iGroup.nodes.empty())
      return;
    TextTable extremes(std::vector<Align>(11, Align::Right));
    extremes.Add({"", "MINIMUM", "NODE", "X", "Y", "Z", "MAXIMUM", "NODE", "X", "Y", "Z"});
    for (std::size_t component = 0; component < iTable.components.size(); ++component)
    {
      std::vector<std::string> cells{iTable.components[component]};
      AddExtreme(iGroup.minima[component], cells);
      AddExtreme(iGroup.maxima[component], cells);
      extremes.Add(std::move(cells));
    }
    extremes.Print(_Output, 2);
    if (_WithValues)
      WriteValues(iTable, iGroup);
  }

  static void AddExtreme(const ResultTable::Extreme& iExtreme, std::vector<std::string>& ioCells)
  {
    if (iExtreme.node == 0)
      return ioCells.insert(ioCells.end(), 5, "-"), void();
    ioCells.push_back(Cell(iExtreme.value));
    ioCells.push_back(std::to_string(iExtreme.node));
    for (const double coordinate : iExtreme.place)
      ioCells.push_back(NumberText(coordinate));
  }

  //! Columns of fixed width, so that no more than a line is held.
  void WriteValues(const ResultTable& iTable, const ResultTable::Group& iGroup)
  {
    std::string line = fmt::format("\n  {:>10}", "NODE");
    for (const std::string& component : iTable.components)
      line += fmt::format("  {:>13}", component);
    _Output.Write(line + "\n");
    const double* number = iGroup.numbers.data();
    for (const std::int32_t node : iGroup.nodes)
    {
      line = fmt::format("  {:>10}", node);
      for (std::size_t component = 0; component < iTable.components.size(); ++component)
        line += fmt::format("  {:>13}", Cell(*number++));
      _Output.Write(line + "\n");
    }
  }

  Output& _Output;
  bool _WithValues;
  int _Tables = 0;
};

} // namespace

std::unique_ptr<ResultsReport> ResultsReport::Text(Output& ioOutput, bool iWithValues)
{
  return std::make_unique<TextResults>(ioOutput, iWithValues);
}

std::string NumberText(double iNumber)
{
  if (std::isnan(iNumber))
    return "";
  const auto single = static_cast<float>(iNumber);
  return static_cast<double>(single) == iNumber ? fmt::format("{}", single) : fmt::format("{}", iNumber);
}

} // namespace voxbench
