// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEntityVisu.h"

static_assert(sizeof(VOXEAnalysisEntityVisu) == sizeof(VOXBaseUnknown), "deriving classes are laid out on this size");

VOXEAnalysisEntityVisu::VOXEAnalysisEntityVisu() = default;

VOXEAnalysisEntityVisu::~VOXEAnalysisEntityVisu() = default;

namespace
{

class EmptyBag : public VOX3DBagRep
{
public:
  ~EmptyBag() override = default;
};

} // namespace

VOXRep* VOXEAnalysisEntityVisu::BuildEntityRep(int /*iMode*/)
{
  return new (nullptr, nullptr, 0) EmptyBag;
}

HRESULT VOXEAnalysisEntityVisu::DecodeGraphic(const VOXPickPath& /*iPick*/, VOXPathElement& /*ioElement*/)
{
  return E_NOTIMPL;
}

HRESULT VOXEAnalysisEntityVisu::BuildHighlightLook(const VOXPathElement& /*iElement*/, VOXRepPath& /*ioHighlight*/)
{
  return S_OK;
}
