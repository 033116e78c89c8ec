// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"
#include "ComponentRuntime/VOXTie.h"

inline constexpr IID IID_VOXISamSelectionList = VOXGuidOfName("VOXISamSelectionList");

//! How a value is chosen.
enum VOXSamSelectionMode : int
{
  VOXSamSelectFromList = 0,
  VOXSamSelectFree = 1
};

//! The values that a person chooses from. Implemented by: basic components of late type "SAMListManager", by deriving
//! from VOXESamEnumManager and a tie (VOXTieSelectionList below). Called by: the host's panels.
//! - Values are counted from 1; 0 is none of them.
class VOX_HOST_API VOXISamSelectionList : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamSelectionList)

  //! 1. How the value is chosen. @param oMode untouched on failure. @return S_OK; E_FAIL.
  virtual HRESULT GetMode(VOXSamSelectionMode& oMode) = 0;

  //! 2. The values to choose from. @param oList emptied first. @return S_OK; E_FAIL.
  virtual HRESULT GetList(VOXListValVOXUnicodeString& oList) = 0;

  //! 3. The selected value. @param oValue untouched when nothing is selected. @param oIndex preset to 0. @return S_OK;
  //! E_FAIL.
  virtual HRESULT GetSelected(VOXUnicodeString& oValue, int& oIndex) = 0;

  //! 4. Selects a value by its index. @return S_OK; E_FAIL.
  virtual HRESULT SetSelected(int iIndex) = 0;

  //! 5. The sub-components that a value needs: their start-ups, their qualifiers and the kinds of their values, at the
  //! same positions of three empty lists. @return S_OK.
  virtual HRESULT GetResult(const VOXUnicodeString& iValue, VOXListValVOXUnicodeString& oFeatureType,
                            VOXListValVOXUnicodeString& oSecond, VOXListValVOXBaseUnknown_var& oListOfVOXICkeType) = 0;
};

using VOXISamSelectionList_var = VOXHandle<VOXISamSelectionList>;

//! Tie of VOXISamSelectionList over an adaptor with the same operations.
template <class Adaptor>
class VOXTieSelectionList : public VOXTieBase<VOXISamSelectionList, Adaptor>
{
public:
  HRESULT GetMode(VOXSamSelectionMode& oMode) override { return this->Tied()->GetMode(oMode); }
  HRESULT GetList(VOXListValVOXUnicodeString& oList) override { return this->Tied()->GetList(oList); }
  HRESULT GetSelected(VOXUnicodeString& oValue, int& oIndex) override
  {
    return this->Tied()->GetSelected(oValue, oIndex);
  }
  HRESULT SetSelected(int iIndex) override { return this->Tied()->SetSelected(iIndex); }
  HRESULT GetResult(const VOXUnicodeString& iValue, VOXListValVOXUnicodeString& oFeatureType,
                    VOXListValVOXUnicodeString& oSecond, VOXListValVOXBaseUnknown_var& oListOfVOXICkeType) override
  {
    return this->Tied()->GetResult(iValue, oFeatureType, oSecond, oListOfVOXICkeType);
  }
};
