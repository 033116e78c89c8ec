// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "Visualization/VOXRep.h"

inline constexpr IID IID_VOXISamEntityVisu = VOXGuidOfName("VOXISamEntityVisu");

//! Graphic side of an analysis entity. Implemented by: feature types. Called by: the host's visualisation.
class VOX_HOST_API VOXISamEntityVisu : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamEntityVisu)

  //! 1. Makes the representation of the entity. @param iMode display mode of the host.
  //! @return caller deletes; null when there is none.
  virtual VOXRep* BuildEntityRep(int iMode) = 0;

  //! 2. Finds what was picked. @param iPick the pick. @param ioElement path that the answer is put into. @return S_OK;
  //! a failure.
  virtual HRESULT DecodeGraphic(const VOXPickPath& iPick, VOXPathElement& ioElement) = 0;

  //! 3. Makes the highlight of a path. @param iElement the path. @param ioHighlight path that the representations are
  //! added to. @return S_OK.
  virtual HRESULT BuildHighlightLook(const VOXPathElement& iElement, VOXRepPath& ioHighlight) = 0;
};

using VOXISamEntityVisu_var = VOXHandle<VOXISamEntityVisu>;
