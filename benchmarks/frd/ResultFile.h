// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <string>

//! A result file in text form: a row of tetrahedra, and displacements and stresses of its nodes in as many states as make
//! the file about as big as asked for.
class ResultFile
{
public:
  explicit ResultFile(std::int64_t iMegabytes);

  std::int64_t NodeCount() const { return kNodes; }
  std::int64_t StateCount() const { return _States; }
  //! Numbers in the rows of nodes and results; ids are not counted.
  std::int64_t NumberCount() const { return 3 * kNodes + _States * 9 * kNodes; }

  //! @return false if the file cannot be written.
  bool Write(const std::string& iPath) const;

private:
  static constexpr std::int64_t kNodes = 50000;

  std::int64_t _States;
};
