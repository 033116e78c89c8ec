// SPDX-License-Identifier: MIT
#pragma once
#include "AnalysisInterfaces/VOXISamFeatureUpgrade.h"
#include "VOXEAnalysisUpgrade.h"
#include "VOXEAnalysisUpgradeContainer.h"

#include <cstdint>
#include <string>
#include <vector>

namespace voxhost
{
class Document;
class Feature;
} // namespace voxhost

namespace voxbench
{

//! Upgrade of every feature, as the library's adaptor does it.
using FeatureUpgrade = VOXTieFeatureUpgrade<VOXEAnalysisUpgrade>;

//! Upgrade of the features of a container whose types the newest release has replaced by others.
class ContainerUpgrade final : public VOXEAnalysisUpgradeContainer
{
public:
  //! Upgrades every feature of the container. @return S_OK; E_FAIL when some could not be replaced.
  HRESULT UpgradeContainer() override;

  //! @param iVersion the release that wrote the document.
  bool NeedToUpgraded(int iVersion, int iRelease) override;

  //! Puts an instance of the start-up that replaced the feature's in the feature's place: in the father's attribute, and
  //! under its name. The feature is removed. @return S_OK; S_FALSE for a type that was not replaced; E_FAIL when no
  //! instance could be made: nothing changed.
  HRESULT UpgradeObject(const VOXISpecObject* iObject) override;
};

//! The type that takes the place of a feature's in the newest release; "" when it was not replaced.
std::string ReplacementOf(const voxhost::Feature& iFeature);

//! The features of a document above an identifier, start-ups left out.
std::vector<voxhost::Feature*> MadeSince(const voxhost::Document& iDocument, std::uint32_t iIdentifier);

} // namespace voxbench
