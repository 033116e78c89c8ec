// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"

#include <string>

namespace voxtest
{

//! All of a document in lines: every feature with its states and with every attribute, local or inherited, every object
//! of the explicit model, the mesh. Two documents are the same when their texts are.
std::string TextOfDocument(const voxbench::LoadedModel& iModel);

//! One feature of it.
std::string TextOfFeature(const voxhost::Feature& iFeature);

//! Opens a deck of tests/data.
void OpenDeck(const std::string& iName, voxbench::LoadedModel& oModel);

} // namespace voxtest
