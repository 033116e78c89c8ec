// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"

inline constexpr IID IID_VOXISamBasicComponentManager = VOXGuidOfName("VOXISamBasicComponentManager");

//! Whether a panel hides a basic component.
enum SAMHiddenState : int
{
  SAMHidden = 0,
  SAMShown = 1,
  SAMHiddenUndefined = 2
};

//! Whether a panel shows a basic component read-only.
enum SAMReadOnlyState : int
{
  SAMReadOnly = 0,
  SAMReadWrite = 1,
  SAMReadOnlyUndefined = 2
};

//! Manages the basic components of a feature in its panel. Implemented by: feature types. Called by: the host.
class VOX_HOST_API VOXISamBasicComponentManager : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamBasicComponentManager)

  //! 1. Number of optional components. @return S_OK.
  virtual HRESULT GetNbOptionalBC(int& oNb) = 0;

  //! 2. The optional components: their names, their types and the kinds of their values, at the same positions.
  //! @return S_OK.
  virtual HRESULT GetOptionalBCList(VOXListValVOXUnicodeString& ioNames, VOXListValVOXUnicodeString& ioTypes,
                                    VOXListValVOXBaseUnknown_var& ioKinds) = 0;

  //! 3. Whether the component is hidden. @param iComponent borrowed.
  virtual SAMHiddenState IsBasicComponentHidden(const VOXISamBasicComponent* iComponent) = 0;

  //! 4. Whether the component is read-only. @param iComponent borrowed.
  virtual SAMReadOnlyState IsBasicComponentReadOnly(const VOXISamBasicComponent* iComponent) = 0;

  //! 5. Whether changes of the component are recorded in macros. @param iComponent borrowed.
  virtual bool IsBasicComponentRecordable(const VOXISamBasicComponent* iComponent) = 0;
};

using VOXISamBasicComponentManager_var = VOXHandle<VOXISamBasicComponentManager>;
