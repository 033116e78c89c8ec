// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/manual/Syntax.h"

namespace voxbench
{

//! A page of section 1 of the manual, as man(7) source.
struct ManualPage
{
  std::string name; //!< "voxbench-groups"
  std::string text;
};

//! A page for the program, then one for each subcommand.
std::vector<ManualPage> ManualPages(const ProgramSyntax& iSyntax);

//! A text as the formatter of manual pages takes it: nothing in it is taken for a request or an escape, and what can be
//! copied to a command line keeps its hyphens and quotation marks.
std::string RoffText(const std::string& iText);

} // namespace voxbench
