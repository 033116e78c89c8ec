// SPDX-License-Identifier: MIT
#include "VOXESamConnectionDesignAdaptor.h"

#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisSupport.h"
#include "AnalysisInterfaces/VOXISamMeshPartFilter.h"
#include "AssertionFrame.h"

#include <memory>

VOX_SOURCE_OF(VOXESamConnectionDesignAdaptor);

static_assert(sizeof(VOXESamConnectionDesignAdaptor) == sizeof(VOXBaseUnknown),
              "deriving classes are laid out on this size");

namespace
{

constexpr char kRole1[] = "SAMConnectionDesigner1";
constexpr char kRole2[] = "SAMConnectionDesigner2";

// The objects that play a side's role. A list that comes is owned, whatever the result.
struct Side
{
  HRESULT result;
  std::unique_ptr<VOXListValVOXBaseUnknown_var> objects;

  Side(const VOXISamAnalysisEntity_var& iConnection, const char* iRole)
  {
    VOXListValVOXBaseUnknown_var* listed = nullptr;
    result = iConnection->ListByRole(listed, iRole);
    objects.reset(listed);
  }

  bool HasOneDesigner() const { return objects != nullptr && objects->Size() == 1; }
  const VOXBaseUnknown_var& Designer() const { return (*objects)[1]; }
};

// Kept: what the query for the objects answered does not matter, and the supports go straight into the caller's list.
void ListSupports(const Side& iSide, VOXListValVOXBaseUnknown_var& oSupports)
{
  if (!iSide.HasOneDesigner())
    return;
  const VOXISamAnalysisSupport_var spSupport(iSide.Designer());
  if (!!spSupport)
    spSupport->ListSupports(oSupports, CLSID_VOXBaseUnknown);
}

// Kept: here the supports replace the caller's.
void ListDesign(const VOXISamAnalysisSupport_var& iSupport, const VOXISamMeshPartFilter_var& iFilter,
                VOXListValVOXBaseUnknown_var& oSupports, VOXListValVOXISpecObject_var*& opDesigners)
{
  VOXListValVOXBaseUnknown_var supports;
  iSupport->ListSupports(supports, CLSID_VOXBaseUnknown);
  oSupports = supports;
  iFilter->ListDesigners(opDesigners);
}

} // namespace

VOXESamConnectionDesignAdaptor::VOXESamConnectionDesignAdaptor() = default;

VOXESamConnectionDesignAdaptor::~VOXESamConnectionDesignAdaptor() = default;

HRESULT VOXESamConnectionDesignAdaptor::GetConnectedSupports(VOXListValVOXBaseUnknown_var& oSupports1,
                                                             VOXListValVOXBaseUnknown_var& oSupports2)
{
  const VOXISamAnalysisEntity_var spEnt(GetImpl(0));
  VOX_ASSERT(!!spEnt);
  ListSupports(Side(spEnt, kRole1), oSupports1);
  const Side side2(spEnt, kRole2);
  ListSupports(side2, oSupports2);
  return side2.result;
}

HRESULT VOXESamConnectionDesignAdaptor::GetConnectionDesigners(VOXListValVOXBaseUnknown_var& oSupports1,
                                                               VOXListValVOXISpecObject_var*& opDesigners1,
                                                               VOXListValVOXBaseUnknown_var& oSupports2,
                                                               VOXListValVOXISpecObject_var*& opDesigners2)
{
  opDesigners1 = nullptr;
  opDesigners2 = nullptr;
  const VOXISamAnalysisEntity_var spEnt(GetImpl(0));
  VOX_ASSERT(!!spEnt);

  Side side1(spEnt, kRole1);
  if (SUCCEEDED(side1.result) && side1.HasOneDesigner())
  {
    const VOXISamAnalysisSupport_var spSupport(side1.Designer());
    VOX_ASSERT(!!spSupport);
    const VOXISamMeshPartFilter_var spMeshPartFilter(side1.Designer());
    VOX_ASSERT(!!spMeshPartFilter);
    ListDesign(spSupport, spMeshPartFilter, oSupports1, opDesigners1);
  }
  side1.objects.reset();

  const Side side2(spEnt, kRole2);
  if (SUCCEEDED(side2.result) && side2.HasOneDesigner())
  {
    const VOXISamAnalysisSupport_var spSupport(side2.Designer());
    VOX_ASSERT(!!spSupport);
    const VOXISamMeshPartFilter_var spMeshPartFilter2(side2.Designer());
    VOX_ASSERT(!!spMeshPartFilter2);
    ListDesign(spSupport, spMeshPartFilter2, oSupports2, opDesigners2);
  }
  return side2.result;
}
