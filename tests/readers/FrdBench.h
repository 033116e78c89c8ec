// SPDX-License-Identifier: MIT
#pragma once
#include "InpBench.h"
#include "frd/FrdReader.h"

#include <cmath>
#include <cstdio>
#include <cstring>

namespace voxbench
{

//! Reads result files given as text; `outcome` and `records` hold what comes of it.
class FrdBench
{
public:
  ResultRecords& Read(std::string_view iText) { return ReadFile(_Files.Write("job.frd", iText)); }
  ResultRecords& ReadPacked(std::string_view iText) { return ReadFile(_Files.WritePacked("job.frd.gz", iText)); }

  ResultRecords& ReadFile(const std::filesystem::path& iPath)
  {
    outcome = ReadFrd(iPath, options, records);
    return records;
  }

  //! The reason of a refusal with its line, "read" when there is none.
  std::string Refusal() const
  {
    return outcome.ok ? "read" : std::to_string(outcome.line) + " " + outcome.card + ": " + outcome.reason;
  }

  std::vector<std::string> Findings() const
  {
    std::vector<std::string> findings;
    for (const Diagnostic& one : records.diagnostics.list)
      findings.push_back(one.card + " " + one.message);
    return findings;
  }

  ResultOptions options;
  ReadOutcome outcome;
  ResultRecords records;

private:
  InpBench _Files;
};

namespace frdtext
{

inline std::string Printed(const char* iFormat, auto... iValues)
{
  char text[256];
  std::snprintf(text, sizeof text, iFormat, iValues...);
  return text;
}

//! First lines of the three kinds of block, as the solver prints them.
inline std::string NodesHead(int iCount, int iForm = 1)
{
  return Printed("    2C%18s%12d%37s%1d\n", "", iCount, "", iForm);
}

inline std::string ElementsHead(int iCount, int iForm = 1)
{
  return Printed("    3C%18s%12d%37s%1d\n", "", iCount, "", iForm);
}

inline std::string ResultsHead(int iNumber, const char* iValue, int iCount, int iKind, int iForm = 1,
                               const char* iAnalysis = "")
{
  return Printed("  100CL  %3d%12s%12d%20s%2d%5d%-10s%2d\n", 100 + iNumber, iValue, iCount, "", iKind, iNumber,
                 iAnalysis, iForm);
}

inline std::string StepRecord(int iBlock, int iIncrement, int iStep)
{
  return Printed("    1PSTEP%26d%12d%12d          \n", iBlock, iIncrement, iStep);
}

//! Name and components; those whose name ends with '*' are derived and have no values.
inline std::string Names(const char* iName, const std::vector<std::string>& iComponents)
{
  std::string text = Printed(" -4  %-8s%5zu%5d\n", iName, iComponents.size(), 1);
  for (std::string name : iComponents)
  {
    const bool derived = name.ends_with('*');
    if (derived)
      name.pop_back();
    text += Printed(" -5  %-8s    1    2    1    0", name.c_str()) + (derived ? "    1" + name : "") + "\n";
  }
  return text;
}

//! A row in long or short form, six numbers to a line.
inline std::string Row(int iId, const std::vector<double>& iValues, int iWidth = 10)
{
  std::string text = Printed(" -1%*d", iWidth, iId);
  for (std::size_t at = 0; at < iValues.size(); ++at)
  {
    if (at > 0 && at % 6 == 0)
      text += "\n -2" + std::string(static_cast<std::size_t>(iWidth), ' ');
    text += Printed("%12.5E", iValues[at]);
  }
  return text + "\n";
}

constexpr const char* kHead = "    1C\n    1UUSER\n";
constexpr const char* kBlockEnd = " -3\n";
constexpr const char* kFileEnd = " 9999\n";

//! Four nodes at the corners of a tetrahedron, and that element.
inline std::string Mesh()
{
  return kHead + NodesHead(4) + Row(1, {0, 0, 0}) + Row(2, {1, 0, 0}) + Row(3, {0, 1, 0}) + Row(4, {0, 0, 1}) +
         kBlockEnd + ElementsHead(1) + " -1         1    3    0    1\n -2         1         2         3         4\n" +
         kBlockEnd;
}

//! Values of a quantity on the four nodes: node + component / 10.
inline std::string Block(const char* iName, const std::vector<std::string>& iComponents, const std::string& iHead)
{
  std::string text = iHead + Names(iName, iComponents);
  std::size_t count = 0;
  for (const std::string& name : iComponents)
    count += name.ends_with('*') ? 0 : 1;
  for (int node = 1; node <= 4; ++node)
  {
    std::vector<double> values;
    for (std::size_t at = 0; at < count; ++at)
      values.push_back(node + static_cast<double>(at) / 10.);
    text += Row(node, values);
  }
  return text + kBlockEnd;
}

//! A whole file with displacements and stresses of one static state.
inline std::string SmallFile()
{
  return Mesh() + StepRecord(1, 1, 1) +
         Block("DISP", {"D1", "D2", "D3", "ALL*"}, ResultsHead(1, " 1.000000000", 4, 0)) + StepRecord(2, 1, 1) +
         Block("STRESS", {"SXX", "SYY", "SZZ", "SXY", "SYZ", "SZX"}, ResultsHead(1, " 1.000000000", 4, 0)) + kFileEnd;
}

inline std::vector<double> Values(const ResultBlock& iBlock)
{
  return {iBlock.values.begin(), iBlock.values.end()};
}

inline std::vector<std::string> ComponentNames(const ResultBlock& iBlock)
{
  std::vector<std::string> names;
  for (const ResultComponent& component : iBlock.components)
    names.push_back(component.name);
  return names;
}

} // namespace frdtext

} // namespace voxbench
