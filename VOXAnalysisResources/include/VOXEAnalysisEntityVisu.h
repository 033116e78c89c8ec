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

  //! 1. @param iMode not looked at. @return a new, empty bag, caller deletes; null when there is no memory.
  VOXRep* BuildEntityRep(int iMode) override;

  //! 2. @param iPick not looked at. @param ioElement left as it is. @return E_NOTIMPL.
  HRESULT DecodeGraphic(const VOXPickPath& iPick, VOXPathElement& ioElement) override;

  //! 3. @param iElement not looked at. @param ioHighlight left as it is. @return S_OK.
  HRESULT BuildHighlightLook(const VOXPathElement& iElement, VOXRepPath& ioHighlight) override;
};
