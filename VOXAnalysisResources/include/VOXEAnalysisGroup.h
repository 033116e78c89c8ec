// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamGroup.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "VOXAnalysisResources.h"

//! A group whose content is read from the explicit model. The feature type supplies operations 1, 2, 3, 6 and 7.
//!
//! - The content comes from the group's children in the model while the feature is up to date and has children, and from
//!   operation 7 otherwise. With children of which none is of the kind's physical type the group is empty.
//! - A collector that is attached to the group's object is reused as long as it is up to date. A new one is attached
//!   while the feature is up to date.
//! - GetContent asks IsGroupOf through the virtual table and needs it to succeed, but does not look at its answer.
class VOX_ANALYSIS_API VOXEAnalysisGroup : public VOXISamGroup
{
public:
  VOXEAnalysisGroup();
  ~VOXEAnalysisGroup() override;

  //! 4. Whether the group serves a value kind and keyword, as operations 2 and 3 tell.
  //! @param iValue, iEntityType value kind and keyword. @param oIsGroupOf preset to 0. @return S_OK; the code of
  //! operation 2 or 3 when that failed, without a report.
  HRESULT IsGroupOf(VOXSamValue iValue, VOXString iEntityType, unsigned char& oIsGroupOf) const override;

  //! 5. The entities of one kind that the group gathers. @param iValue, iEntityType value kind and keyword.
  //! @param oCollector preset to null. On S_OK: one reference for the caller, or null when the group is empty.
  //! @return S_OK; E_FAIL after an error report.
  HRESULT GetContent(VOXSamValue iValue, VOXString iEntityType,
                     const VOXAnalysisEntityCollector*& oCollector) const override;

private:
  // The objects that the first child of the group's physical type applies to. oCount is preset to 0, the arrays to null;
  // they stay so when no child is of that type. Caller frees with array delete.
  HRESULT GetTheExplicitPtrFromModel(VOXAnalysisExplicitList& iChildren, VOXSamValue iValue, VOXString iEntityType,
                                     int& oCount, VOXSamModelDataRoot**& oPointers, int*& oIndices) const;
};
