// SPDX-License-Identifier: MIT
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace voxbench
{

//! What people call a quantity of a result file, "STRESS": "stresses". A name that is not known stands for itself.
std::string TitleOf(std::string_view iName);

//! The quantity of a result file that a person means: its name in any letters, or the label that a deck asks for it
//! with, such as U for DISP.
std::string QuantityMeant(std::string iText);

//! The quantities that have a title.
std::vector<std::string> KnownQuantities();

} // namespace voxbench
