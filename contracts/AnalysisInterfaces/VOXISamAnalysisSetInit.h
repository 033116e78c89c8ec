// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

class VOXISamAnalysisScan;

inline constexpr IID IID_VOXISamAnalysisSetInit = VOXGuidOfName("VOXISamAnalysisSetInit");

//! What a set stands for in its model.
enum SAM_Quality : int
{
  SAM_QualityInput = 0, //!< data of the solver
  SAM_QualityGroup = 1  //!< gathers or measures what is there
};

//! Where an analysis set may stand. Implemented by: set feature types, usually by deriving from VOXEAnalysisSetInit.
//! Called by: the host.
class VOX_HOST_API VOXISamAnalysisSetInit : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamAnalysisSetInit)

  //! 1. The set was made. @return S_OK.
  virtual HRESULT Initialize() = 0;

  //! 2. Whether the set may go under a parent. @param iParent borrowed. @param oQuality left as it is when the set's
  //! quality is not worked out. @return 1 or 0.
  virtual int CheckAnalysisParent(const VOXBaseUnknown* iParent, SAM_Quality& oQuality) = 0;

  //! 3. The set was put under its parent. @param iParent borrowed. @return S_OK.
  virtual HRESULT InitWhenPositioned(const VOXBaseUnknown* iParent) = 0;

  //! 4. The set is about to be removed. @return S_OK.
  virtual HRESULT Remove(int iMode) = 0;

  //! 5. The set's place among the others changes. @param iScan borrowed. @return S_OK.
  virtual HRESULT ReorderInScan(const VOXISamAnalysisScan* iScan) = 0;
};

using VOXISamAnalysisSetInit_var = VOXHandle<VOXISamAnalysisSetInit>;
