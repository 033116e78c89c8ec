// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/TypeCatalogue.h"

#include <map>
#include <string>
#include <vector>

namespace voxbench
{

//! Releases count from 1. Each has a catalogue of start-ups: what the workbench's features are made from.
inline constexpr int kNewestRelease = 3;

//! A start-up catalogue. They stand in voxbench/catalogues, and are part of the program. That of a release never changes
//! once documents were written by it.
struct Release
{
  int number = 0;
  std::vector<voxhost::TypeDeclaration> types; //!< the workbench's own, bases first

  //! Types that this release no longer has, and the type whose start-up takes the place of theirs.
  std::map<std::string, std::string> replaced;
};

//! @param iNumber 1 to kNewestRelease.
const Release& ReleaseOf(int iNumber);

} // namespace voxbench
