// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamFeatureUpgrade.h"
#include "VOXEAnalysisUpgrade.h"
#include "host/AnalysisCore/TraceLog.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Faults.h"
#include "tests/adaptors/Face.h"
#include "tests/adaptors/ScriptedFeatureAttributes.h"
#include "tests/support/FatalErrorOf.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace voxtest
{

//! The adaptor as feature types carry it, through a tie; the tests reach what the tie does not forward as well.
class UpgradeTie : public VOXTieFeatureUpgrade<QueriedFace<VOXEAnalysisUpgrade, VOXISamFeatureUpgrade>>
{
public:
  using Carries = VOXISamFeatureUpgrade;

  //! The adaptor of a component, borrowed.
  static VOXEAnalysisUpgrade& AdaptorOf(const VOXBaseUnknown* iComponent)
  {
    return *static_cast<UpgradeTie*>(FaceOf<VOXISamFeatureUpgrade>(iComponent))->Tied();
  }
};

inline voxhost::TypeDeclaration LoadOf(const char* iName, std::vector<voxhost::ComponentDeclaration> iComponents)
{
  return {.name = iName,
          .base = "UpgradedLoad",
          .attributes = {{.name = "SonsList",
                          .type = VOXSpecList,
                          .elementType = VOXSpecComponent,
                          .components = std::move(iComponents)}}};
}

//! A layered component whose start-up has one value per name.
inline voxhost::TypeDeclaration LayersOf(const char* iName, std::vector<voxhost::ComponentDeclaration> iValues)
{
  return {
      .name = iName,
      .base = "SAMBasicComponent",
      .attributes = {
          {.name = "Values", .type = VOXSpecList, .elementType = VOXSpecComponent, .components = std::move(iValues)}}};
}

//! Loads and layered components that carry the adaptor, by what their start-ups hold.
inline std::shared_ptr<const voxhost::TypeCatalogue> CatalogueWithUpgrades()
{
  static const auto catalogue = []
  {
    const auto made = std::make_shared<voxhost::TypeCatalogue>();
    EXPECT_EQ(made->Declare(voxhost::AnalysisTypes()), "");
    EXPECT_EQ(made->Declare(voxhost::TypeDeclaration{.name = "UpgradedLoad", .base = "AnalysisLoad"}), "");
    EXPECT_EQ(made->Declare(LoadOf("LoadOfAB", {{"A", "SAMRealComponent"}, {"B", "SAMRealComponent"}})), "");
    EXPECT_EQ(made->Declare(LoadOf("LoadOfTwins", {{"A", "SAMRealComponent"}, {"A", "SAMRealComponent"}})), "");
    EXPECT_EQ(made->Declare(LoadOf("LoadOfMixed", {{"P", "AnalysisSensor"}, {"A", "SAMRealComponent"}})), "");
    EXPECT_EQ(made->Declare(voxhost::TypeDeclaration{.name = "SonlessFeature"}), "");
    EXPECT_EQ(made->Declare(LayersOf(
                  "LayersOfABE", {{"A", "SAMRealComponent"}, {"B", "SAMRealComponent"}, {"E", "SAMRealComponent"}})),
              "");
    for (const char* const type : {"UpgradedLoad", "SonlessFeature", "LayersOfABE"})
      EXPECT_EQ((VOXTieLateType<VOXISamFeatureUpgrade, UpgradeTie>(type)), S_OK);
    return std::shared_ptr<const voxhost::TypeCatalogue>(made);
  }();
  return catalogue;
}

//! A document of these types.
class UpgradeWorld
{
public:
  using Feature = voxhost::Feature;

  UpgradeWorld() : document(CatalogueWithUpgrades()) {}

  //! A feature as an older release left it: it holds none of its start-up's components.
  Feature& Old(const char* iType, const char* iName = "old")
  {
    return *document.New(iType, iName, nullptr, voxhost::Components::kNone);
  }

  //! A basic component of another making, put at the end of a list of features.
  Feature& Put(Feature& iOwner, const char* iName, const char* iAttribute = "SonsList",
               const char* iType = "SAMRealComponent")
  {
    Feature& made = *document.New(iType, iName);
    EXPECT_EQ(iOwner.Add(iAttribute, made), S_OK);
    return made;
  }

  //! An instance of a component that a start-up holds at a place, from 1, under a name.
  Feature& Copy(Feature& iOwner, int iPlace, const char* iName, const char* iAttribute = "SonsList")
  {
    Feature& prototype = *iOwner.StartUp()->Features(iAttribute)[static_cast<std::size_t>(iPlace - 1)];
    Feature& made = *document.New(prototype, iName);
    EXPECT_EQ(iOwner.Add(iAttribute, made), S_OK);
    return made;
  }

  static VOXBaseUnknown* Face(const Feature& iFeature) { return const_cast<Feature*>(&iFeature); }
  static VOXISamFeatureUpgrade* Upgrade(const Feature& iFeature)
  {
    return FaceOf<VOXISamFeatureUpgrade>(Face(iFeature));
  }
  static VOXEAnalysisUpgrade& Adaptor(const Feature& iFeature) { return UpgradeTie::AdaptorOf(Face(iFeature)); }
  static const VOXISamBasicComponent* Basic(const Feature& iFeature)
  {
    return FaceOf<VOXISamBasicComponent>(Face(iFeature));
  }

  //! Names of the features in a list, in order.
  static std::vector<std::string> Names(const Feature& iOwner, const char* iAttribute = "SonsList")
  {
    std::vector<std::string> names;
    for (const Feature* const feature : iOwner.Features(iAttribute))
      names.emplace_back(feature->Name().ConvertToChar());
    return names;
  }

  voxhost::Document document;
};

using Names = std::vector<std::string>;

//! Keeps what is put on the channel of upgrade messages, which is not active.
class UpgradeMessages
{
public:
  UpgradeMessages()
  {
    VOXTraceAccess::Clear(Tra_SAMTraceDebug);
    VOXTraceAccess::KeepEverything(Tra_SAMTraceDebug, true);
  }
  ~UpgradeMessages()
  {
    VOXTraceAccess::KeepEverything(Tra_SAMTraceDebug, false);
    VOXTraceAccess::Clear(Tra_SAMTraceDebug);
  }
  UpgradeMessages(const UpgradeMessages&) = delete;
  UpgradeMessages& operator=(const UpgradeMessages&) = delete;

  static std::string Text() { return VOXTraceAccess::Text(Tra_SAMTraceDebug); }
};

//! Notes every call of a trace channel in the call log.
class TracesNoted
{
public:
  TracesNoted() { VOXTraceAccess::Listen(&CallLog::Note); }
  ~TracesNoted() { VOXTraceAccess::Listen(nullptr); }
  TracesNoted(const TracesNoted&) = delete;
  TracesNoted& operator=(const TracesNoted&) = delete;
};

//! Calls a function with the name of every operation of the host that is called. One at a time, and not beside a CallLog.
class OnEachCall
{
public:
  explicit OnEachCall(std::function<void(const std::string&)> iDo)
  {
    Do() = std::move(iDo);
    voxhost::Faults::Listen([](const char* iOperation) { Do()(iOperation); });
  }
  ~OnEachCall() { voxhost::Faults::Listen(nullptr); }
  OnEachCall(const OnEachCall&) = delete;
  OnEachCall& operator=(const OnEachCall&) = delete;

private:
  static std::function<void(const std::string&)>& Do()
  {
    static std::function<void(const std::string&)> what;
    return what;
  }
};

//! A world under a ledger that is balanced at the end.
template <class World>
class InBalance : public testing::Test
{
protected:
  InBalance()
  {
    static_cast<void>(World()); // what the host makes once per process is made here
    voxhost::Ledger::TurnOn();
    before = voxhost::Ledger::Read();
    world = std::make_unique<World>();
  }
  ~InBalance() override
  {
    voxhost::Faults::Disarm();
    world.reset();
    EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced");
    voxhost::Ledger::TurnOff();
  }

  voxhost::Ledger::Balance before;
  std::unique_ptr<World> world;
};

} // namespace voxtest
