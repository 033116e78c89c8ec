// SPDX-License-Identifier: MIT
#include "VOXECharacCollector.h"

#include "AnalysisCore/VOXTrace.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "Counted.h"
#include "ErrorFrame.h"
#include "ObjectModeler/VOXIAlias.h"

// The storage area of the archivers is in VOXECharacCollectorArchivers.cpp.

VOX_SOURCE_OF(VOXECharacCollector);

static_assert(sizeof(VOXECharacCollector) == sizeof(VOXBaseUnknown) + 48, "deriving classes are laid out on this size");

using voxframe::ReportAndFail;

namespace
{

template <class Value>
bool Contains(const Value* iValues, int iCount, const Value& iWanted)
{
  for (int i = 0; i < iCount && iValues != nullptr; ++i)
    if (iValues[i] == iWanted)
      return true;
  return false;
}

// A feature without an alias interface is told about nowhere.
void TraceContextOf(const VOXBaseUnknown* iFeature)
{
  const auto piAlias = voxframe::QueryFor<VOXIAlias>(iFeature);
  if (!piAlias)
    return;
  const VOXUnicodeString alias = piAlias->GetAlias();
  if (!Tra_SAMTraceExpDbg.IsActive())
    return;
  Tra_SAMTraceExpDbg.TraPutLN("===================================================");
  Tra_SAMTraceExpDbg.TraPut("#### GetContext on FEATURE :: ");
  Tra_SAMTraceExpDbg.TraPutLN(alias.ConvertToChar());
  Tra_SAMTraceExpDbg.TraPutLN("===================================================");
}

} // namespace

VOXECharacCollector::VOXECharacCollector()
    : _NbPhysicalTypes(0),
      _NbVersionSlots(nullptr),
      _NbPositions(nullptr),
      _Archivers(nullptr),
      _ContextModel(nullptr),
      _PreviousContextModel(nullptr)
{
}

VOXECharacCollector::~VOXECharacCollector()
{
  const ErrorDepthHandler errorDepth;
  _ContextModel = nullptr;
  _PreviousContextModel = nullptr;
  if (FAILED(ResetCollectorArchiversStorageArea()))
    ReportAndFail(VOX_FAILED_CALL); // reported, and destruction goes on
}

HRESULT VOXECharacCollector::GetAvailableEntityPhysicalTypes(int /*iPhysicalType*/, int& oNb, const int*& oTypes)
{
  oNb = 0;
  oTypes = nullptr;
  return S_OK;
}

HRESULT VOXECharacCollector::IsAnAvailableDefinition(int iPhysicalType, const VOXSamCharacVersion& iVersion,
                                                     const VOXString& iPosition, unsigned char& oAvailable)
{
  const ErrorDepthHandler errorDepth;
  VOXSamCharacVersion version = iVersion;
  oAvailable = 0;

  int count = 0;
  const int* types = nullptr;
  const void* reserved = nullptr;
  if (FAILED(GetAvailablePhysicalTypes(count, types, reserved)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (!Contains(types, count, iPhysicalType))
    return S_OK;

  version._Variant = 0;
  const VOXSamCharacVersion* versions = nullptr;
  if (FAILED(GetAvailableVersions(iPhysicalType, count, versions)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (!Contains(versions, count, version))
  {
    if (iVersion._Variant != 1) // Kept: exactly 1, whereas the storage area takes any flag that is not 0
      return S_OK;
    version._Variant = 1;
    if (!Contains(versions, count, version))
      return S_OK;
  }

  const VOXString* positions = nullptr;
  if (FAILED(GetAvailablePositions(iPhysicalType, version, count, positions)))
    return ReportAndFail(VOX_FAILED_CALL);
  oAvailable = Contains(positions, count, iPosition) ? 1 : 0;
  return S_OK;
}

HRESULT VOXECharacCollector::GetCharacCollectorsForOccurrences(int& oNb,
                                                               const VOXAnalysisCharacCollector* const*& oCollectors,
                                                               unsigned char /*iFlag*/)
{
  oNb = 0;
  oCollectors = nullptr;
  return S_OK;
}

HRESULT VOXECharacCollector::DeleteCharacCollector(const VOXAnalysisCharacCollector*& ioCollector)
{
  const ErrorDepthHandler errorDepth;
  VOXAnalysisExplicitParent context;
  if (FAILED(GetContext(context)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (context == NULL_exp)
    return ReportAndFail(VOX_TRACED_CONDITION("Current Context is Null...", "Context == NULL_exp"));
  if (FAILED(context.DeleteCharacCollector(ioCollector)))
    return ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}

HRESULT VOXECharacCollector::DeleteAll()
{
  const ErrorDepthHandler errorDepth;
  VOXAnalysisExplicitParent context;
  if (FAILED(GetContext(context)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (context == NULL_exp)
    return ReportAndFail(VOX_TRACED_CONDITION("Current Context is Null...", "Context == NULL_exp"));
  if (FAILED(context.DeleteAll()))
    return ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}

HRESULT VOXECharacCollector::Update(unsigned char /*iFlag*/)
{
  const ErrorDepthHandler errorDepth;
  if (FAILED(ResetCollectorArchiversStorageArea()))
    return ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}

HRESULT VOXECharacCollector::SetContextModel(const VOXAnalysisExplicitModel* iModel)
{
  const ErrorDepthHandler errorDepth;
  if (iModel == nullptr)
  {
    _ContextModel = nullptr; // Kept: the previous model stays
    return S_OK;
  }
  if (iModel == _ContextModel)
    return S_OK;

  const bool isThirdModel = _PreviousContextModel != nullptr && iModel != _PreviousContextModel;
  unsigned char authorized = 0;
  if (isThirdModel && FAILED(IsAuthorizedToArchiveCollectors(authorized)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (authorized == 1 && FAILED(ResetCollectorArchiversStorageArea()))
    return ReportAndFail(VOX_FAILED_CALL);
  _PreviousContextModel = _ContextModel;
  _ContextModel = iModel;
  return S_OK;
}

HRESULT VOXECharacCollector::GetContextModel(const VOXAnalysisExplicitModel*& oModel)
{
  const ErrorDepthHandler errorDepth;
  oModel = nullptr;
  if (_ContextModel != nullptr)
  {
    oModel = _ContextModel;
    return S_OK;
  }

  VOXAnalysisExplicitParent context;
  if (FAILED(GetContext(context)))
    return ReportAndFail(VOX_FAILED_CALL);
  oModel = context.GetModel();
  if (FAILED(SetContextModel(oModel)))
    return ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}

HRESULT VOXECharacCollector::GetContext(VOXAnalysisExplicitParent& oContext)
{
  const ErrorDepthHandler errorDepth;
  TraceContextOf(this);
  oContext = NULL_exp;

  auto piExplicit = voxframe::QueryFor<VOXISamExplicit>(this);
  VOXAnalysisExplicitListUsr list;
  const auto cleanUp = [&]
  {
    piExplicit.GiveBack();
    if (list != NULL_exp)
      list.Delete();
    return S_OK;
  };
  static voxframe::LoopGuard loopGuard{VOX_SITE};
  const voxframe::GuardedExit exit(loopGuard, cleanUp);

  if (!piExplicit)
    return exit.ReportAndFail(VOX_MISSING("Explicit"));
  const VOXAnalysisExplicitModel* const pCurrentModel = piExplicit->GetExplicitModel();
  if (pCurrentModel == nullptr)
    return exit.ReportAndFail(VOX_MISSING("CurrentModel = Explicit->GetExplicitModel()"));
  if (FAILED(list.CreateList(pCurrentModel)))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  if (FAILED(piExplicit->ListParents(list)))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  if (list.GetLength(0) != 0)
    oContext = *list.First(1);
  if (oContext == NULL_exp)
    return exit.ReportAndFail(VOX_TRACED_CONDITION("Bad number of tags in Feature", "oContext == NULL_exp"));
  if (FAILED(list.Delete()))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}

unsigned char VOXECharacCollector::GetActivity()
{
  const auto piExplicit = voxframe::QueryFor<VOXISamExplicit>(this);
  return piExplicit ? piExplicit->GetActivity() : 0;
}

HRESULT VOXECharacCollector::IsAuthorizedToArchiveCollectors(unsigned char& oAuthorized) const
{
  oAuthorized = 0;
  return S_OK;
}
