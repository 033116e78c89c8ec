// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "ExplicitModel/VOXAnalysisExplicitData.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "ObjectModeler/VOXIContainer.h"
#include "VOXAnalysisResources.h"

//! Services for code that translates features into the explicit model.
class VOX_ANALYSIS_API VOXSamToolsForExplicitation
{
public:
  //! Copies nothing.
  VOXSamToolsForExplicitation& operator=(const VOXSamToolsForExplicitation& iOther);

  //! The feature of a container that produced an object of the explicit model; for a node or an element (categories 8
  //! and 9) the one that produced the mesh directly above it. Reports no error.
  //! @param iParent the object; the empty handle answers null. @param iContainer borrowed; null answers null.
  //! @return one reference for the caller; null when no member of the container reports the object's tag.
  static VOXISpecObject* GetParentFeature(const VOXAnalysisExplicitParent& iParent, const VOXIContainer* iContainer);

  //! Records an axis on the entity "AllImplicitAxis" of a set, with the axes that no entity of the set produced. The
  //! entity is made, and the global frame recorded, when the set has none yet; axes that are gone are dropped.
  //! @param piAxisSet borrowed: a feature that is explicit and has a model. @param iAxis always recorded.
  //! @return S_OK; E_FAIL after an error report: an entity that was made by then stays.
  static HRESULT LogImplicitAxis(const VOXISamAnalysisSet* piAxisSet, const VOXAnalysisExplicitAxis& iAxis);

private:
  VOXSamToolsForExplicitation();
};
