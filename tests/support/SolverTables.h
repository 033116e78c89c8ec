// SPDX-License-Identifier: MIT
#pragma once
#include <filesystem>
#include <string>
#include <vector>

namespace voxtest
{

//! A table that the solver printed: values of a set at one time.
struct SolverTable
{
  struct Row
  {
    std::vector<int> ids; //!< of a node; or of an element and its integration point
    std::vector<double> numbers;
  };

  std::string title; //!< "displacements (vx,vy,vz)"
  std::string set;
  double time = 0.;
  std::vector<Row> rows;
};

//! The tables of a file of printed tables (.dat) whose title begins so, in the order of the file.
//! @param iIds how many of the first numbers of a row are ids.
std::vector<SolverTable> ReadSolverTables(const std::filesystem::path& iPath, const std::string& iTitle,
                                          std::size_t iIds = 1);

//! A deck without its own requests for printed tables.
std::string WithoutPrints(const std::string& iDeck);

//! Whether a number with six digits and one with seven are the same, to the digits that both have.
bool AgreeInSixDigits(double iSix, double iSeven);

} // namespace voxtest
