// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"

inline constexpr IID IID_VOXISamBasicComponent = VOXGuidOfName("VOXISamBasicComponent");

//! Basic component: one input of an analysis feature (a pressure, a thickness, a list of supports), a feature itself.
//! Implemented by: the host. Called by: adaptors and feature types.
class VOX_HOST_API VOXISamBasicComponent : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamBasicComponent)

  //! 1. Completes a component that was just made and put into its feature. @return S_OK.
  virtual HRESULT InitializeAfterCreation() = 0;

  //! 2. Name of the component.
  virtual VOXUnicodeString GetName() const = 0;

  //! 3. Size of the component's values. @param oValues value kinds. @param oRows rows of each. @param oLayers layers.
  //! All set on S_OK, untouched otherwise. @param iQualifier always empty. @return S_OK; E_FAIL.
  virtual HRESULT GetDimensions(int& oValues, int& oRows, int& oLayers, const VOXUnicodeString& iQualifier) const = 0;

  //! 4. The value, a knowledge parameter or another object. @param oValue emptied when there is none; on S_OK the handle
  //! holds its own reference. @param iQualifier always empty. @param iValue, iRow, iLayer always 0. @return S_OK; E_FAIL.
  virtual HRESULT GetValue(VOXBaseUnknown_var& oValue, const VOXUnicodeString& iQualifier, int iValue, int iRow,
                           int iLayer) const = 0;

  //! 5. Creates a sub-component. @param iType its start-up. @param iQualifier passed to it. @param iKind the kind of its
  //! value (a VOXICkeType), may be empty. The new one's identifying string is iType, or iType, a point and more.
  //! @return S_OK; E_FAIL.
  virtual HRESULT CreateSubComponent(const VOXUnicodeString& iType, const VOXUnicodeString& iQualifier,
                                     const VOXBaseUnknown_var& iKind) = 0;

  //! 6. The sub-components. @param oComponents on S_OK a new list, caller deletes; null when there is none; untouched on
  //! failure. @param iFilter always empty: all of them. @return S_OK; E_FAIL.
  virtual HRESULT ListSubComponents(VOXListValVOXBaseUnknown_var*& oComponents,
                                    const VOXUnicodeString& iFilter) const = 0;

  //! 7. Removes a sub-component. @return S_OK; E_FAIL when it is none of this component's.
  virtual HRESULT RemoveSubComponent(const VOXBaseUnknown_var& iComponent) = 0;
};

using VOXISamBasicComponent_var = VOXHandle<VOXISamBasicComponent>;
