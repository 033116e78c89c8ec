// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <gtest/gtest.h>

//! A document of types that have every kind of attribute, and a balanced ledger at the end.
class SmallDocument : public testing::Test
{
protected:
  SmallDocument() : before(voxhost::Ledger::Read()), document(std::make_unique<voxhost::Document>(Types())) {}

  ~SmallDocument() override
  {
    voxhost::Faults::Disarm();
    document.reset();
    EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced");
  }

  static std::shared_ptr<const voxhost::TypeCatalogue> Types()
  {
    auto types = std::make_shared<voxhost::TypeCatalogue>();
    EXPECT_EQ(types->Declare(voxhost::AnalysisTypes()), "");
    EXPECT_EQ(types->Declare(voxhost::TypeDeclaration{
                  .name = "Bolt",
                  .base = "AnalysisLoad",
                  .attributes = {{.name = "Length", .type = VOXSpecReal, .value = 2.5},
                                 {.name = "Count", .type = VOXSpecInteger, .value = std::int32_t{4}},
                                 {.name = "Tight", .type = VOXSpecBoolean, .value = true},
                                 {.name = "Grade", .type = VOXSpecString, .value = std::string("8.8")},
                                 {.name = "Steps",
                                  .type = VOXSpecList,
                                  .elementType = VOXSpecReal,
                                  .value = std::vector<double>{1., 2.}},
                                 {.name = "Nut", .type = VOXSpecReference},
                                 {.name = "SonsList",
                                  .type = VOXSpecList,
                                  .elementType = VOXSpecComponent,
                                  .components = {{.name = "Force", .type = "SAMRealComponent"}}}}}),
              "");
    return types;
  }

  voxhost::Feature& New(const char* iType, const char* iName) { return *document->New(iType, iName); }
  static VOXISpecObject_var Spec(voxhost::Feature& iFeature)
  {
    return VOXISpecObject_var(static_cast<VOXBaseUnknown*>(&iFeature));
  }
  static VOXISpecAttrAccess_var Access(voxhost::Feature& iFeature)
  {
    return VOXISpecAttrAccess_var(static_cast<VOXBaseUnknown*>(&iFeature));
  }
  static VOXISpecAttrKey_var Key(voxhost::Feature& iFeature, const char* iName)
  {
    VOXISpecAttrKey* const key = Access(iFeature)->GetAttrKey(iName);
    const VOXISpecAttrKey_var handle(key);
    if (key != nullptr)
      key->Release();
    return handle;
  }

  voxhost::Ledger::Balance before;
  std::unique_ptr<voxhost::Document> document;
};
