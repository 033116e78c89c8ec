// SPDX-License-Identifier: MIT
#include "voxbench/report/InfoReport.h"
#include "voxbench/report/TextTable.h"

#include <cmath>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

constexpr std::size_t kShownFindings = 10;
constexpr std::size_t kShownRows = 20;

std::string Size(std::uint64_t iBytes)
{
  if (iBytes < 1000)
    return fmt::format("{} bytes", iBytes);
  const auto size = static_cast<double>(iBytes);
  if (iBytes < 1000000)
    return fmt::format("{:.1f} kB", size / 1e3);
  return iBytes < 1000000000 ? fmt::format("{:.1f} MB", size / 1e6) : fmt::format("{:.2f} GB", size / 1e9);
}

//! "-5 to 10"; what is nothing but rounding beside the extent reads as 0.
std::string Range(double iFrom, double iTo)
{
  const double noise = 1e-12 * (iTo - iFrom);
  const auto rounded = [noise](double iValue) { return std::abs(iValue) < noise ? 0. : iValue; };
  return fmt::format("{:.6g} to {:.6g}", rounded(iFrom), rounded(iTo));
}

std::string At(const Place& iPlace)
{
  return iPlace.line > 0 ? fmt::format("{}:{}", iPlace.file, iPlace.line) : iPlace.file;
}

std::string Joined(const std::vector<std::string>& iTexts)
{
  return fmt::format("{}", fmt::join(iTexts, ", "));
}

//! The first `iShown` of the rows under a heading, and how many more there are.
template <class Row, class Cells>
void PrintRows(Output& ioOutput, std::string_view iHeading, const std::vector<Row>& iRows, std::size_t iShown,
               std::vector<Align> iColumns, Cells iCells)
{
  if (iRows.empty())
    return;
  ioOutput.Write(fmt::format("\n{}\n", iHeading));
  TextTable table(std::move(iColumns));
  for (std::size_t row = 0; row < iRows.size() && row < iShown; ++row)
    table.Add(iCells(iRows[row]));
  table.Print(ioOutput, 2);
  if (iRows.size() > iShown)
    ioOutput.Write(fmt::format("  ... and {} more: --all shows them\n", iRows.size() - iShown));
}

void PrintHead(Output& ioOutput, const InfoResult& iResult)
{
  TextTable table({Align::Left, Align::Left});
  table.Add({"File", fmt::format("{} ({})", iResult.file, Size(iResult.bytes))});
  for (const std::string& file : iResult.included)
    table.Add({"Included", file});
  for (const std::string& line : iResult.title)
    table.Add({"Title", line});
  table.Add({"Nodes", Grouped(iResult.nodes)});
  table.Add({"Elements", Grouped(iResult.elements)});
  if (iResult.box)
  {
    const auto& low = iResult.box->minimum;
    const auto& high = iResult.box->maximum;
    table.Add({"Bounding box", fmt::format("x {}, y {}, z {}", Range(low[0], high[0]), Range(low[1], high[1]),
                                           Range(low[2], high[2]))});
  }
  table.Add({"Sets", Counted(iResult.nodeSets, "node set", "node sets") + ", " +
                         Counted(iResult.elementSets, "element set", "element sets")});
  table.Add({"Surfaces", Grouped(iResult.surfaces)});
  for (const InfoResult::Counted& other : iResult.others)
    table.Add({other.what, Grouped(other.count)});
  table.Print(ioOutput);
}

std::vector<std::string> Cells(const InfoResult::AppliedRow& iRow)
{
  return {iRow.keyword, Counted(iRow.cards, "card", "cards"), Counted(iRow.rows, "row", "rows")};
}

std::vector<std::string> Cells(const InfoResult::StepRow& iRow)
{
  std::string traits = iRow.nonlinearGeometry ? "nonlinear geometry" : "";
  if (iRow.perturbation)
    traits += traits.empty() ? "perturbation" : ", perturbation";
  return {std::to_string(iRow.number),
          iRow.procedure.empty() ? "(no procedure)" : iRow.procedure,
          Counted(iRow.loads, "load", "loads"),
          Counted(iRow.restraints, "restraint", "restraints"),
          Counted(iRow.outputRequests, "output request", "output requests"),
          traits};
}

void PrintModel(Output& ioOutput, const InfoResult& iResult, std::size_t iShown)
{
  constexpr auto left = Align::Left;
  constexpr auto right = Align::Right;
  PrintRows(ioOutput, "Element types", iResult.elementTypes, iShown, {left, right, left},
            [](const InfoResult::ElementRow& iRow) -> std::vector<std::string> {
              return {iRow.type, Grouped(iRow.count), iRow.family};
            });
  PrintRows(ioOutput, "Materials", iResult.materials, iShown, {left, left},
            [](const InfoResult::MaterialRow& iRow) -> std::vector<std::string> {
              return {iRow.name, Joined(iRow.properties)};
            });
  PrintRows(ioOutput, "Sections", iResult.sections, iShown, {left, left, left, right},
            [](const InfoResult::SectionRow& iRow) -> std::vector<std::string> {
              return {iRow.kind, iRow.elementSet, iRow.material, iRow.value ? fmt::format("{:g}", *iRow.value) : ""};
            });
  const auto cells = [](const auto& iRow) { return Cells(iRow); };
  PrintRows(ioOutput, "Loads", iResult.loads, iShown, {left, right, right}, cells);
  PrintRows(ioOutput, "Restraints", iResult.restraints, iShown, {left, right, right}, cells);
  PrintRows(ioOutput, "Steps", iResult.steps, iShown, {right, left, right, right, right, left}, cells);
  PrintRows(ioOutput, "Read, but not in the feature tree", iResult.withoutFeature, iShown, {left, right},
            [](const InfoResult::Counted& iRow) -> std::vector<std::string> {
              return {iRow.what, Grouped(iRow.count)};
            });
}

void PrintFindings(Output& ioOutput, const InfoResult& iResult, std::size_t iShown)
{
  PrintRows(ioOutput, "Cards that are not understood", iResult.unknownCards, iShown,
            {Align::Left, Align::Right, Align::Left},
            [](const InfoResult::UnknownCard& iRow) -> std::vector<std::string> {
              return {iRow.card, Counted(iRow.count, "card", "cards"), "first at " + At(iRow.first)};
            });
  const std::string heading = fmt::format("Findings: {}, {}", Counted(iResult.errors, "error", "errors"),
                                          Counted(iResult.warnings, "warning", "warnings"));
  PrintRows(ioOutput, heading, iResult.findings, iShown, {Align::Left},
            [](const InfoResult::Finding& iRow) -> std::vector<std::string>
            {
              const std::string card = iRow.card.empty() ? "" : iRow.card + ": ";
              return {fmt::format("{}: {}: {}{}", At(iRow.place), iRow.severity, card, iRow.message)};
            });
  if (iResult.unlistedFindings > 0)
    ioOutput.Write(fmt::format("  ... and {} of the same cards that are only counted\n", iResult.unlistedFindings));
}

} // namespace

void PrintInfo(Output& ioOutput, const InfoResult& iResult, bool iAllFindings)
{
  constexpr std::size_t all = static_cast<std::size_t>(-1);
  PrintHead(ioOutput, iResult);
  PrintModel(ioOutput, iResult, iAllFindings ? all : kShownRows);
  PrintFindings(ioOutput, iResult, iAllFindings ? all : kShownFindings);
}

} // namespace voxbench
