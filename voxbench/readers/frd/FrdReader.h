// SPDX-License-Identifier: MIT
#pragma once
#include "../ReadOutcome.h"
#include "../ResultRecords.h"

#include <filesystem>
#include <string_view>

namespace voxbench
{

//! What the caller of ReadFrd may choose.
struct ResultOptions : ReadOptions
{
  //! Whether the values of a block are wanted; asked when its components are known. All by default. Values that are not
  //! wanted are read and checked all the same, and forgotten.
  std::function<bool(const ResultRecords& iSoFar, const ResultBlock& iBlock)> wants;
};

//! Reads a result file of the CalculiX solver (.frd): text in short or long form, binary in single or double precision,
//! each of them plain or gzip-compressed.
//!
//! - Kept: mesh, states, and every block of values by its name, known or not. Imaginary parts are paired with their real
//!   parts. Not kept: materials of elements, derived components that the file names without values.
//! - One pass through a window: memory is what is kept, plus one block.
//! - A file that is damaged anywhere is refused as a whole, with line or byte and reason. Whatever a solver is known to
//!   write is no damage: unannounced numbers of elements, values that are no numbers, results of some nodes
//!   only or of nodes without a place.
//! @param oRecords emptied first; of no use when the file is refused.
ReadOutcome ReadFrd(const std::filesystem::path& iPath, const ResultOptions& iOptions, ResultRecords& oRecords);

//! Whether a file begins like a result file; iHead is its beginning, unpacked.
bool LooksLikeFrd(std::string_view iHead);

} // namespace voxbench
