// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXUnicodeString.h"

class VOXISamAnalysisSet;

inline constexpr IID IID_VOXISamAnalysisEntityInit = VOXGuidOfName("VOXISamAnalysisEntityInit");

//! Where an analysis entity may stand. Implemented by: entity feature types, usually by deriving from
//! VOXEAnalysisEntityInit. Called by: the host.
class VOX_HOST_API VOXISamAnalysisEntityInit : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamAnalysisEntityInit)

  //! 1. The entity was made. @return S_OK.
  virtual HRESULT Initialize() = 0;

  //! 2. The entity was put into its set. @return S_OK.
  virtual HRESULT InitWhenPositioned() = 0;

  //! 3. The entity is about to be removed. @return S_OK.
  virtual HRESULT Remove(int iMode) = 0;

  //! 4. Whether the entity may go into a set. @param iSet borrowed. @return 1 or 0.
  virtual int CheckAnalysisSet(const VOXISamAnalysisSet* iSet) = 0;

  //! 5. The type of set that the entity belongs in. @param oSetType untouched when it is not known. @return 1 or 0.
  virtual int GetAnalysisSetType(VOXUnicodeString& oSetType) = 0;

  //! 6. Whether the entity is aggregated in its set. @return 1 or 0.
  virtual unsigned char AggregateInSet() = 0;
};

using VOXISamAnalysisEntityInit_var = VOXHandle<VOXISamAnalysisEntityInit>;
