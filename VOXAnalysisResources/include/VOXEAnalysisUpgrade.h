// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "VOXAnalysisResources.h"

//! Upgrade of an analysis feature whose start-up has gained components since: carries the operations of
//! VOXISamFeatureUpgrade and is reached through a tie. Components are those of the attribute "SonsList".
//!
//! - Upgrade only adds. What could not be made or written is not reported: ask again afterwards.
//! - A start-up, both attribute accesses and the attribute itself must be there (asserted).
class VOX_ANALYSIS_API VOXEAnalysisUpgrade : public VOXBaseUnknown
{
public:
  VOXEAnalysisUpgrade();
  ~VOXEAnalysisUpgrade() override;

  //! 1. Whether the start-up has a basic component that the feature lacks; false for what is no feature.
  virtual bool NeedToUpgrade();

  //! 2. Adds every component that is lacking, as an instance of the start-up's, in the feature's container (asserted).
  //! @return S_OK after the pass; S_FALSE for what is no feature.
  virtual HRESULT Upgrade();

  //! Whether a list holds the component of a name: one called so, or so and a point and more, or one whose related
  //! object is called so. Elements that are no basic components are passed over.
  bool FindInList(const VOXUnicodeString& iName, const VOXListValVOXBaseUnknown_var& iList);

  //! The components in the attribute "Values". Attribute and access to it must be there (asserted).
  //! @param iOnStartup whether those of the start-up are meant. @param iSpec borrowed; null answers null.
  //! @return caller deletes; null when there is no start-up or no list.
  VOXListValVOXBaseUnknown_var* GetValuesOnInstanceOrStartup(bool iOnStartup, const VOXISpecObject* iSpec);

  //! Removes a basic component from the feature and marks it for rebuild if it was up to date.
  //! @param ipiBasicComp borrowed. @return E_INVALIDARG for null; else S_OK, whatever the removal gave, and when there
  //! is no feature.
  HRESULT RemoveBasicComp(const VOXISamBasicComponent* ipiBasicComp);

  //! Whether the values of a layered component no longer fit: its start-up counts other value kinds, or there are not
  //! layers x kinds of them. @param ipiBasicComp borrowed; null answers false.
  bool CheckMultiLayer(const VOXISamBasicComponent* ipiBasicComp);

  //! Adds to a layered component, once per layer, the values that its start-up has and it lacks, and writes the number of
  //! value kinds into "ValuesDim". What is a feature must be in a container, with access to its attributes, and its
  //! start-up must have the attribute "Values" (asserted). @param ipiBasicComp borrowed, not null (asserted).
  //! @return S_OK.
  HRESULT UpgradeMultiLayer(const VOXISamBasicComponent* ipiBasicComp);
};
