// SPDX-License-Identifier: MIT
#pragma once

#include "host/FeatureModeler/Document.h"
#include "host/FeatureModeler/TypeCatalogue.h"
#include "tests/adaptors/GroupWorld.h"

#include <memory>

#include <gtest/gtest.h>

namespace voxtest
{

//! The types of an analysis document, and "GroupUnderTest": an analysis entity that carries the scripted group.
//! Asked for before a test makes late types of the same names by hand: a late type keeps its base.
inline std::shared_ptr<const voxhost::TypeCatalogue> CatalogueWithGroup()
{
  static const auto catalogue = []
  {
    const auto made = std::make_shared<voxhost::TypeCatalogue>();
    EXPECT_EQ(made->Declare(voxhost::AnalysisTypes()), "");
    EXPECT_EQ(made->Declare({.name = "GroupUnderTest", .base = "AnalysisEntity", .physicalType = "GROUP"}), "");
    EXPECT_EQ((VOXExtendLateType<VOXISamGroup, ScriptedGroup>("GroupUnderTest")), S_OK);
    return std::shared_ptr<const voxhost::TypeCatalogue>(made);
  }();
  return catalogue;
}

} // namespace voxtest
