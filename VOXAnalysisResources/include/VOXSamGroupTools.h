// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXString.h"
#include "ExplicitModel/VOXAnalysisExplicitModel.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "VOXAnalysisResources.h"

//! Services for group features.
class VOX_ANALYSIS_API VOXSamGroupTools
{
public:
  //! Copies nothing.
  VOXSamGroupTools& operator=(const VOXSamGroupTools& iOther);

  //! The physical type of groups of a kind: "NODE" of value 8; "EDGE", "FACE" and "ELEMENT" of value 9.
  //! @param iModel borrowed; its rules data number the types. @param iValue, iEntityType the kind. @param oPhysicalType
  //! preset to VOXSamPhysicalTypeNone, which it stays for any other keyword of value 8.
  //! @return S_OK; E_FAIL after an error report: no model or rules, another value, an unknown keyword of value 9, or a
  //! type that the rules do not know.
  static HRESULT GetExplicitGroupType(VOXAnalysisExplicitModel* iModel, VOXSamValue iValue, VOXString iEntityType,
                                      int& oPhysicalType);

  //! Records on a set or entity which feature made it, and the visualisation object to find it by.
  //! @param iFeature borrowed; nothing is done for null. @param iSource where the visualisation object is taken from
  //! first; may be empty. @param ioTarget what is written to; nothing is done for the empty handle.
  static void MakeReadyForVisu(const VOXISpecObject* iFeature, VOXAnalysisExplicitParent& iSource,
                               VOXAnalysisExplicitParent& ioTarget);
};
