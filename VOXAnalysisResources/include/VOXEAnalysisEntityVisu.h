// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamEntityVisu.h"
#include "VOXAnalysisResources.h"

//! Default graphic side of an entity: an empty bag, nothing to pick, nothing to highlight.
class VOX_ANALYSIS_API VOXEAnalysisEntityVisu : public VOXISamEntityVisu
{
public:
  VOXEAnalysisEntityVisu();
  ~VOXEAnalysisEntityVisu() override;

  //! 1. @return a new, empty bag, caller deletes; null when there is no memory.
  VOXRep* BuildEntityRep(int iMode) override;

  //! 2. @return E_NOTIMPL.
  HRESULT DecodeGraphic(const VOXPickPath& iPick, VOXPathElement& ioElement) override;

  //! 3. @return S_OK.
  HRESULT BuildHighlightLook(const VOXPathElement& iElement, VOXRepPath& ioHighlight) override;
};
