// SPDX-License-Identifier: MIT
#pragma once
#include "inp/InpReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zlib.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace voxbench
{

//! A folder of its own for one test, removed at its end, and decks written into it.
class InpBench
{
public:
  InpBench()
  {
    std::string pattern = (std::filesystem::temp_directory_path() / "inp_bench_XXXXXX").string();
    _Folder = mkdtemp(pattern.data());
  }
  InpBench(const InpBench&) = delete;
  InpBench& operator=(const InpBench&) = delete;
  ~InpBench() { std::filesystem::remove_all(_Folder); }

  std::filesystem::path Path(const std::string& iName) const { return _Folder / iName; }

  std::filesystem::path Write(const std::string& iName, std::string_view iText) const
  {
    std::filesystem::create_directories(Path(iName).parent_path());
    std::ofstream(Path(iName), std::ios::binary) << iText;
    return Path(iName);
  }

  std::filesystem::path WritePacked(const std::string& iName, std::string_view iText) const
  {
    gzFile file = gzopen(Path(iName).c_str(), "wb");
    gzwrite(file, iText.data(), static_cast<unsigned>(iText.size()));
    gzclose(file);
    return Path(iName);
  }

  //! Reads a deck given as text; `outcome` and `model` hold what comes of it.
  NeutralModel& Read(std::string_view iText) { return ReadFile(Write("deck.inp", iText)); }

  NeutralModel& ReadFile(const std::filesystem::path& iPath)
  {
    outcome = ReadInp(iPath, {}, model);
    return model;
  }

  //! The findings as "line severity message", severities as E, W, N.
  std::vector<std::string> Findings() const
  {
    std::vector<std::string> findings;
    for (const Diagnostic& one : model.diagnostics.list)
      findings.push_back(std::to_string(one.where.line) + " " + "NWE"[static_cast<int>(one.severity)] + " " + one.card +
                         " " + one.message);
    return findings;
  }

  ReadOutcome outcome;
  NeutralModel model;

private:
  std::filesystem::path _Folder;
};

inline std::vector<int> Ids(const Column<std::int32_t>& iColumn)
{
  return {iColumn.begin(), iColumn.end()};
}

//! The members of a set, {-1} if there is no such set.
inline std::vector<int> Members(const NamedSet* iSet)
{
  return iSet == nullptr ? std::vector<int>{-1} : Ids(iSet->members);
}

//! The members of a surface as "member.side".
inline std::vector<std::string> Sides(const Surface* iSurface)
{
  if (iSurface == nullptr)
    return {"no such surface"};
  std::vector<std::string> sides;
  for (std::size_t at = 0; at < iSurface->members.size(); ++at)
    sides.push_back(std::to_string(iSurface->members[at]) + "." + std::to_string(iSurface->sides[at]));
  return sides;
}

//! Nodes 1 to iCount on a line, as the beginning of a deck.
inline std::string NodesUpTo(int iCount)
{
  std::string text = "*NODE\n";
  for (int id = 1; id <= iCount; ++id)
    text += std::to_string(id) + ", " + std::to_string(id) + ".5, 0., 0.\n";
  return text;
}

} // namespace voxbench
