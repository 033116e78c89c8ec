// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXSamRattrapMode.h"
#include "ObjectModeler/VOXIAlias.h"
#include "VOXEAnalysisUpgradeContainer.h"
#include "tests/adaptors/UpgradeWorld.h"

namespace voxtest
{

//! The upgrade of a container as a feature type derives it: rerouting is its tool, which is not open to others.
class Rerouting : public VOXEAnalysisUpgradeContainer
{
public:
  using Carries = VOXISamUpgradeContainer;
  HRESULT UpgradeContainer() override { return S_OK; }
  using VOXEAnalysisUpgradeContainer::RerouteInstance;
};

//! A restraint of an older making, and what takes its place: attributes of each type that both have, some with other
//! defaults, and some that the new type lacks or declares with another type.
inline std::shared_ptr<const voxhost::TypeCatalogue> CatalogueWithReroutes()
{
  static const auto catalogue = []
  {
    using voxhost::AttributeDeclaration;
    const auto list = [](const char* iName, int iElement, voxhost::Value iDefault = {})
    {
      return AttributeDeclaration{
          .name = iName, .type = VOXSpecList, .elementType = iElement, .value = std::move(iDefault)};
    };
    const auto made = std::make_shared<voxhost::TypeCatalogue>();
    EXPECT_EQ(made->Declare(voxhost::AnalysisTypes()), "");
    EXPECT_EQ(made->Declare(voxhost::TypeDeclaration{.name = "OldRestraint",
                                                     .base = "AnalysisRestraint",
                                                     .attributes = {{.name = "Dropped", .type = VOXSpecInteger},
                                                                    {.name = "Retyped", .type = VOXSpecInteger},
                                                                    list("Singled", VOXSpecInteger),
                                                                    list("ElementRetyped", VOXSpecInteger),
                                                                    {.name = "Real", .type = VOXSpecReal, .value = 2.5},
                                                                    {.name = "Flag", .type = VOXSpecBoolean},
                                                                    {.name = "Text", .type = VOXSpecString},
                                                                    {.name = "Count", .type = VOXSpecInteger},
                                                                    list("Reals", VOXSpecReal, std::vector<double>{4.}),
                                                                    list("Flags", VOXSpecBoolean),
                                                                    list("Texts", VOXSpecString),
                                                                    list("Counts", VOXSpecInteger),
                                                                    {.name = "Target", .type = VOXSpecReference},
                                                                    list("Targets", VOXSpecReference),
                                                                    {.name = "Part", .type = VOXSpecComponent},
                                                                    list("Parts", VOXSpecComponent)}}),
              "");
    AttributeDeclaration parts = list("Parts", VOXSpecComponent);
    parts.components = {{"D1", "SAMRealComponent"}, {"D2", "SAMRealComponent"}};
    EXPECT_EQ(
        made->Declare(
            {.name = "NewRestraint",
             .base = "AnalysisRestraint",
             .attributes = {list("Parts", VOXSpecComponent),
                            {.name = "Retyped", .type = VOXSpecReal, .value = 0.5},
                            {.name = "Singled", .type = VOXSpecInteger, .value = std::int32_t{6}},
                            list("ElementRetyped", VOXSpecReal, std::vector<double>{6.5}),
                            {.name = "Real", .type = VOXSpecReal, .value = 9.5},
                            {.name = "Flag", .type = VOXSpecBoolean},
                            {.name = "Text", .type = VOXSpecString, .value = std::string("default")},
                            {.name = "Count", .type = VOXSpecInteger},
                            list("Reals", VOXSpecReal, std::vector<double>{7., 8., 9.}),
                            list("Flags", VOXSpecBoolean, std::vector<bool>{true, true}),
                            list("Texts", VOXSpecString, std::vector<std::string>{"default"}),
                            list("Counts", VOXSpecInteger, std::vector<std::int32_t>{7}),
                            {.name = "Target", .type = VOXSpecReference},
                            list("Targets", VOXSpecReference),
                            {.name = "Part", .type = VOXSpecComponent, .components = {{"D", "SAMRealComponent"}}}}}),
        "");
    EXPECT_EQ(made->Declare(voxhost::TypeDeclaration{
                  .name = "RestraintWithParts", .base = "NewRestraint", .attributes = {parts}}),
              "");
    for (const char* const name : {"OldTagged", "NewTagged"})
      EXPECT_EQ(
          made->Declare(voxhost::TypeDeclaration{.name = name, .attributes = {list("ExplicitTag", VOXSpecInteger)}}),
          "");
    EXPECT_EQ(made->Declare(voxhost::TypeDeclaration{.name = "SpeechlessRestraint", .base = "NewRestraint"}), "");
    EXPECT_EQ(made->Declare(voxhost::TypeDeclaration{.name = "SealedRestraint", .base = "NewRestraint"}), "");
    const auto nobody = []() -> VOXBaseUnknown* { return nullptr; };
    VOXDeclareExtension("SpeechlessRestraint", IID_VOXIAlias, "VOXIAlias", nobody);
    VOXDeclareExtension("SealedRestraint", IID_VOXISpecAttrAccess, "VOXISpecAttrAccess", nobody);
    return std::shared_ptr<const voxhost::TypeCatalogue>(made);
  }();
  return catalogue;
}

//! A document of these types with an old restraint, up to date like everything else, and a container's upgrade.
class RerouteWorld
{
public:
  using Feature = voxhost::Feature;

  RerouteWorld()
      : document(CatalogueWithReroutes()),
        old(Made("OldRestraint", "old")),
        tested(static_cast<Rerouting*>(upgrade.Get()))
  {
    document.StartUp("RestraintWithParts");
    document.UpdateAll();
  }

  Feature& Made(const char* iType, const char* iName) { return *document.New(iType, iName); }
  Feature& Part(const char* iName) { return Made("SAMRealComponent", iName); }

  //! Reroutes the old restraint; null when there is no new one. The reference for the caller is given back.
  Feature* Reroute(const char* iStartUp = "NewRestraint") { return Reroute(old, iStartUp); }
  Feature* Reroute(Feature& iOld, const char* iStartUp)
  {
    VOXISpecObject* const made = tested->RerouteInstance(&iOld, iStartUp);
    Feature* const feature = Feature::Of(made);
    if (made != nullptr)
      made->Release();
    return feature;
  }

  voxhost::Document document;
  Feature& old;
  AdaptorBench<Rerouting> upgrade;
  Rerouting* tested;
};

} // namespace voxtest
