// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamAnalysisEntityInit.h"
#include "VOXAnalysisResources.h"

//! Where an analysis entity may stand: what the rules of its explicit model allow, and what its feature type says.
//! No operation reports an error; a query that fails answers no.
class VOX_ANALYSIS_API VOXEAnalysisEntityInit : public VOXISamAnalysisEntityInit
{
public:
  VOXEAnalysisEntityInit();
  ~VOXEAnalysisEntityInit() override;

  //! 1. to 3. @return S_OK, nothing done.
  HRESULT Initialize() override;
  HRESULT InitWhenPositioned() override;
  HRESULT Remove(int iMode) override;

  //! 4. Whether the entity may go into a set: the set's physical type authorises the entity's, or an imported entity
  //! meets a set of its category. An entity or a set that is not explicit answers 0. The set's model and its rules data
  //! must be there (asserted). @param iSet borrowed; null answers 0. @return 1 or 0.
  int CheckAnalysisSet(const VOXISamAnalysisSet* iSet) override;

  //! 5. The type of set that the entity belongs in, by its feature type. The component must be a feature (asserted).
  //! @param oSetType untouched when the answer is 0. @return 1 or 0.
  int GetAnalysisSetType(VOXUnicodeString& oSetType) override;

  //! 6. Whether the entity is aggregated in its set: sensors are. @return 1 or 0.
  unsigned char AggregateInSet() override;
};
