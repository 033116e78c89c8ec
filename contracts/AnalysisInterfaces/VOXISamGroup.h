// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "ExplicitModel/VOXAnalysisEntityCollector.h"

inline constexpr IID IID_VOXISamGroup = VOXGuidOfName("VOXISamGroup");

//! A group: entities of the model gathered under a name.
//!
//! Implemented by: group feature types, usually by deriving from VOXEAnalysisGroup. Called by: the host and its commands.
//! - A group serves value kinds (VOXSamValueNode, VOXSamValueElement), and for each of them keywords: "NODE" for nodes;
//!   "EDGE", "FACE" and "ELEMENT" for elements.
//! - The arrays of operations 2 and 3 are borrowed: the feature owns them.
class VOX_HOST_API VOXISamGroup : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamGroup)

  //! 1. How the group is defined. @param oDefinition a word for it, of the feature type's choice. @return S_OK; E_FAIL.
  virtual HRESULT GetDefinitionType(VOXUnicodeString& oDefinition) const = 0;

  //! 2. The value kinds that the group serves. @param oCount their number. @param oValues borrowed array.
  //! @return S_OK; a failure leaves both untouched.
  virtual HRESULT GetValueKinds(int& oCount, const VOXSamValue*& oValues) const = 0;

  //! 3. The keywords that the group serves for one value kind. @param iValue the kind. @param oCount their number.
  //! @param oKeywords borrowed array. @return S_OK; a failure leaves both untouched.
  virtual HRESULT GetKeywords(VOXSamValue iValue, int& oCount, const VOXString*& oKeywords) const = 0;

  //! 4. Whether the group serves a value kind and keyword. @param iValue, iEntityType the two. @param oIsGroupOf preset
  //! to 0; 1 when it does. @return S_OK; the code of operation 2 or 3 when that failed.
  virtual HRESULT IsGroupOf(VOXSamValue iValue, VOXString iEntityType, unsigned char& oIsGroupOf) const = 0;

  //! 5. The entities of one kind that the group gathers. A kind that the group does not serve is no error.
  //! @param iValue, iEntityType value kind and keyword.
  //! @param oCollector preset to null. On S_OK: one reference for the caller, or null when the group is empty.
  //! @return S_OK; E_FAIL after an error report.
  virtual HRESULT GetContent(VOXSamValue iValue, VOXString iEntityType,
                             const VOXAnalysisEntityCollector*& oCollector) const = 0;

  //! 6. The features that the group stands on. @param oSupports emptied, then filled. @return S_OK; E_FAIL.
  virtual HRESULT GetSupports(VOXListValVOXBaseUnknown_var& oSupports) const = 0;

  //! 7. The entities of one kind when the group has no object in the model to read them from.
  //! @param iValue, iEntityType value kind and keyword. @param oCount number of entities. @param oPointers array of
  //! oCount model objects, caller frees with array delete.
  //! @param oIndices sides of faces and edges, from 1, caller frees with array delete; null when whole objects are meant.
  //! All three are preset by the caller to 0 and null, and may be left so: an empty group. @return S_OK; E_FAIL.
  virtual HRESULT GetExplicitPointers(VOXSamValue iValue, VOXString iEntityType, int& oCount,
                                      VOXSamModelDataRoot**& oPointers, int*& oIndices) const = 0;
};

using VOXISamGroup_var = VOXHandle<VOXISamGroup>;
