// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisExplicitData.h"

class VOXAnalysisExplicitRulesData;

//! The solver-facing data model of one analysis. Implemented by: the host, in a class of its own that derives from it.
class VOX_HOST_API VOXAnalysisExplicitModel
{
public:
  VOXAnalysisExplicitModel(const VOXAnalysisExplicitModel&) = delete;
  VOXAnalysisExplicitModel& operator=(const VOXAnalysisExplicitModel&) = delete;

  //! The rules that the model obeys, borrowed; null when the model has none.
  const VOXAnalysisExplicitRulesData* GetRulesData() const;

  //! The model's global axis system. @param oAxis untouched on failure. @return S_OK; E_FAIL when there is none.
  HRESULT GetGlobalRefFrame(VOXAnalysisExplicitAxis& oAxis) const;

  //! Switches the display of the explicit model's errors, for all models. @return the previous setting.
  static unsigned char DisplayErrors(unsigned char iDisplay);

protected:
  VOXAnalysisExplicitModel();
  ~VOXAnalysisExplicitModel();
};

//! The rules of a model: its physical types. Implemented by: the host, in a class of its own that derives from it.
class VOX_HOST_API VOXAnalysisExplicitRulesData
{
public:
  VOXAnalysisExplicitRulesData(const VOXAnalysisExplicitRulesData&) = delete;
  VOXAnalysisExplicitRulesData& operator=(const VOXAnalysisExplicitRulesData&) = delete;

  //! Number of a named physical type. The adaptors ask for "MESH", the parent of nodes and elements, and for what stands
  //! under a group: "NODE_GROUP", "EDGE_GROUP", "FACE_GROUP" and "ELEMENT_GROUP"; and for the names that VOXISamExplicit
  //! answers. @param iName its name. @param oNumber untouched on failure. @return S_OK; E_FAIL for an unknown name.
  HRESULT GetPhysicalTypeNumber(const char* iName, int& oNumber) const;

  //! Category of a physical type. @param iType its number. @param oCategory untouched on failure. @return S_OK; E_FAIL
  //! for an unknown number.
  HRESULT GetPhysicalTypeCategory(int iType, VOXSamValue& oCategory) const;

  //! Physical types that are allowed under a type. An entry may be negative: its absolute value is the type, and the
  //! sign says that at most one is allowed.
  //! @param iType the type above. @param oCount number of entries; untouched on failure. @param oTypes caller frees
  //! with array delete; null when there is none; untouched on failure. @return S_OK; E_FAIL for an unknown number or no
  //! memory.
  HRESULT GetPhysicalTypeAuthorizedChildren(int iType, int& oCount, int*& oTypes) const;

protected:
  VOXAnalysisExplicitRulesData();
  ~VOXAnalysisExplicitRulesData();
};
