// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "ComponentRuntime/VOXTie.h"

inline constexpr IID IID_VOXISamFeatureUpgrade = VOXGuidOfName("VOXISamFeatureUpgrade");

//! Upgrade of one feature to its current start-up. Implemented by: feature types, by VOXEAnalysisUpgrade and a tie
//! (VOXTieFeatureUpgrade below). Called by: the host's upgrade machinery.
class VOX_HOST_API VOXISamFeatureUpgrade : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamFeatureUpgrade)

  //! 1. Whether the start-up has a component that the feature lacks.
  virtual bool NeedToUpgrade() = 0;

  //! 2. Adds what is missing. @return S_OK after the pass; S_FALSE when the component is no feature.
  virtual HRESULT Upgrade() = 0;

  //! 3. Whether the values of a layered basic component no longer fit its start-up. @param iComponent borrowed.
  virtual bool CheckMultiLayer(const VOXISamBasicComponent* iComponent) = 0;

  //! 4. Adds the values that a layered basic component lacks. @param iComponent borrowed. @return S_OK.
  virtual HRESULT UpgradeMultiLayer(const VOXISamBasicComponent* iComponent) = 0;
};

using VOXISamFeatureUpgrade_var = VOXHandle<VOXISamFeatureUpgrade>;

//! Tie of VOXISamFeatureUpgrade over an adaptor with the same operations.
template <class Adaptor>
class VOXTieFeatureUpgrade : public VOXTieBase<VOXISamFeatureUpgrade, Adaptor>
{
public:
  bool NeedToUpgrade() override { return this->Tied()->NeedToUpgrade(); }
  HRESULT Upgrade() override { return this->Tied()->Upgrade(); }
  bool CheckMultiLayer(const VOXISamBasicComponent* iComponent) override
  {
    return this->Tied()->CheckMultiLayer(iComponent);
  }
  HRESULT UpgradeMultiLayer(const VOXISamBasicComponent* iComponent) override
  {
    return this->Tied()->UpgradeMultiLayer(iComponent);
  }
};
