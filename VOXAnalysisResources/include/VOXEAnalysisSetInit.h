// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamAnalysisSetInit.h"
#include "VOXAnalysisResources.h"

//! Where an analysis set may stand, and what it stands for. No operation reports an error; a query that fails answers no.
class VOX_ANALYSIS_API VOXEAnalysisSetInit : public VOXISamAnalysisSetInit
{
public:
  VOXEAnalysisSetInit();
  ~VOXEAnalysisSetInit() override;

  //! 1. @return S_OK, nothing done.
  HRESULT Initialize() override;

  //! 2. Whether the set may go under a parent: the parent's physical type authorises the set's, or an imported set meets
  //! a parent of its category. A set or a parent that is not explicit answers 0. The parent's model and its rules data
  //! must be there (asserted).
  //! @param iParent borrowed; null answers 0. @param oQuality not preset. Set to 0 or 1 by the set's type, whatever the
  //! answer, once the authorised children were asked for; untouched for any other type and in all other cases.
  //! @return 1 or 0.
  int CheckAnalysisParent(const VOXBaseUnknown* iParent, SAM_Quality& oQuality) override;

  //! 3. to 5. @return S_OK, nothing done.
  HRESULT InitWhenPositioned(const VOXBaseUnknown* iParent) override;
  HRESULT Remove(int iMode) override;
  HRESULT ReorderInScan(const VOXISamAnalysisScan* iScan) override;
};
