// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <functional>
#include <string>

namespace voxbench
{

//! How a reading ended: the model stands, or the file is refused as a whole.
//!
//! A model that stands may still have findings in `NeutralModel::diagnostics`.
struct ReadOutcome
{
  bool ok = true;
  std::string file; //!< the refused file; an included one when that is the culprit
  std::int32_t line = 0;
  std::string card;   //!< keyword of the card in force, "" before the first
  std::string reason; //!< what is wrong, a sentence without the place
  std::string advice; //!< what to do about it, a sentence

  //! "file:line: *CARD: reason advice", or "read" when all went well.
  std::string Describe() const;
};

//! What the caller may choose.
struct ReadOptions
{
  //! Called now and then with the bytes read and the bytes known of (both on disk; the total grows with each included
  //! file), and once at the end with both equal. On the reader's thread.
  std::function<void(std::uint64_t iDone, std::uint64_t iTotal)> progress;
};

} // namespace voxbench
