// SPDX-License-Identifier: MIT
#pragma once
#include "../NeutralModel.h"
#include "../ReadOutcome.h"

#include <filesystem>
#include <string>

namespace voxbench
{

//! Reads a keyword deck (`.inp` in the CalculiX dialect), plain or gzip-compressed, with all files that it includes.
//!
//! - A file that is no such deck, an included file that cannot be had, or damaged compressed data refuse the reading: the
//!   outcome tells file, line, card, reason and what to do; oModel then holds what was read so far and is of no use.
//! - Everything else that cannot be used is a finding in `oModel.diagnostics`, and the reading goes on.
//! - A set or surface in several cards is one; members may be named before they are defined; GENERATE over ids that do
//!   not exist makes one finding with their count.
//! - A node or element that is defined again takes its last definition.
//! @param oModel overwritten whole.
ReadOutcome ReadInp(const std::filesystem::path& iPath, const ReadOptions& iOptions, NeutralModel& oModel);

//! A keyword of a record (ENDSTEP) with its blanks (END STEP), as people know it. Others as they are.
std::string ShownKeyword(const std::string& iKeyword);

} // namespace voxbench
