// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"
#include "voxbench/report/ParamsReport.h"

namespace voxbench
{

//! Asks a choice of a feature through VOXISamSelectionList.
ParameterRow AskSelection(const voxhost::Feature& iFeature, voxhost::Feature& iChoice);

//! Selects an entry, by name in any case or by index, and tells what that did to the components below.
//! @return as AskSelection afterwards, with the change; its failure when there is no such entry.
ParameterRow Select(const voxhost::Feature& iFeature, voxhost::Feature& iChoice, const std::string& iValue);

} // namespace voxbench
