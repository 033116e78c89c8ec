// SPDX-License-Identifier: MIT
#include "VOXEAnalysisGroup.h"

#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "ErrorFrame.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "VOXSamGroupTools.h"

#include <new>

VOX_SOURCE_OF(VOXEAnalysisGroup);

static_assert(sizeof(VOXEAnalysisGroup) == sizeof(VOXBaseUnknown), "deriving classes are laid out on this size");

using voxframe::ReportAndFail;

namespace
{

class GroupCollector : public VOXAnalysisEntityCollector
{
public:
  ~GroupCollector() override = default;
};

// What a group gathers, as the model hands it out: owned, freed here at the latest.
struct ExplicitPointers
{
  ExplicitPointers() = default;
  ~ExplicitPointers() { Free(); }
  ExplicitPointers(const ExplicitPointers&) = delete;
  ExplicitPointers& operator=(const ExplicitPointers&) = delete;

  int count = 0;
  VOXSamModelDataRoot** objects = nullptr;
  int* indices = nullptr;

  bool AreMissing() const { return objects == nullptr || count <= 0; }
  void Free()
  {
    delete[] objects;
    delete[] indices;
    objects = nullptr;
    indices = nullptr;
  }
};

void Retire(VOXAnalysisEntityCollector* ioCollector)
{
  ioCollector->RequestDelayedDestruction(1);
  ioCollector->Release();
}

// Hands the collector that is attached to a group out with a reference if it is up to date, else retires it.
bool HandOutOrRetire(VOXAnalysisEntityCollector* ioAttached, const VOXAnalysisEntityCollector*& oCollector)
{
  if (!ioAttached->IsUpToDate())
  {
    Retire(ioAttached);
    return false;
  }
  ioAttached->AddRef();
  oCollector = ioAttached;
  return true;
}

HRESULT Fill(VOXAnalysisEntityCollector& ioCollector, const VOXAnalysisExplicitEntity& iContext, VOXSamValue iValue,
             const VOXString& iEntityType, const ExplicitPointers& iPointers)
{
  HRESULT result = ioCollector.SetContext(iContext, 1);
  if (SUCCEEDED(result))
    result = ioCollector.SetDefinition(iValue, iEntityType);
  if (SUCCEEDED(result))
    result = ioCollector.SetExplicitPointers(iPointers.count, iPointers.objects, iPointers.indices);
  return result;
}

bool IsKeywordIn(const VOXString* iKeywords, int iCount, const VOXString& iEntityType)
{
  for (int i = 0; i < iCount; ++i)
    if (iKeywords[i] == iEntityType)
      return true;
  return false;
}

} // namespace

VOXEAnalysisGroup::VOXEAnalysisGroup() = default;

VOXEAnalysisGroup::~VOXEAnalysisGroup() = default;

HRESULT VOXEAnalysisGroup::IsGroupOf(VOXSamValue iValue, VOXString iEntityType, unsigned char& oIsGroupOf) const
{
  oIsGroupOf = 0;
  int valueCount = 0;
  const VOXSamValue* values = nullptr;
  const HRESULT valuesResult = GetValueKinds(valueCount, values);
  if (FAILED(valuesResult))
    return valuesResult;

  // Kept: the scan goes on after a match, so that the keywords are asked for once per equal value kind.
  for (int i = 0; i < valueCount; ++i)
  {
    if (values[i] != iValue)
      continue;
    int keywordCount = 0;
    const VOXString* keywords = nullptr;
    const HRESULT keywordsResult = GetKeywords(iValue, keywordCount, keywords);
    if (FAILED(keywordsResult))
      return keywordsResult;
    if (IsKeywordIn(keywords, keywordCount, iEntityType))
      oIsGroupOf = 1;
  }
  return S_OK;
}

HRESULT VOXEAnalysisGroup::GetContent(VOXSamValue iValue, VOXString iEntityType,
                                      const VOXAnalysisEntityCollector*& oCollector) const
{
  const ErrorDepthHandler errorDepth;
  oCollector = nullptr;
  ExplicitPointers pointers;
  VOXAnalysisEntityCollector* collector = nullptr;
  const auto cleanUp = [&]
  {
    pointers.Free();
    if (collector != nullptr)
      Retire(collector);
    return S_OK;
  };
  static voxframe::LoopGuard loopGuard{VOX_SITE};
  const voxframe::GuardedExit exit(loopGuard, cleanUp);

  unsigned char isGroupOf = 0; // Kept: not looked at; a kind that the group does not serve gets a content all the same
  if (FAILED(IsGroupOf(iValue, iEntityType, isGroupOf)))
    return exit.ReportAndFail(VOX_FAILED_CALL);

  const VOXISamExplicit_var spExplicit(GetImpl(0));
  const VOXISpecObject_var spSpec(GetImpl(0));
  VOXAnalysisExplicitEntity entity;
  if (!!spExplicit && FAILED(spExplicit->GetExplicitParent(entity, 1)))
    return exit.ReportAndFail(VOX_FAILED_CALL);

  VOXAnalysisEntityCollector* attached = nullptr;
  if (entity != NULL_exp && FAILED(entity.FindEntityCollector(iValue, iEntityType, attached)))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  if (attached != nullptr && HandOutOrRetire(attached, oCollector))
    return S_OK;

  // Kept: being up to date is enough to have the new collector attached, with children or without.
  const bool attaches = entity != NULL_exp && !!spSpec && spSpec->IsUpToDate(VOXIDomain_var());
  VOXAnalysisExplicitList children;
  if (attaches && FAILED(entity.GetChildrenList(children)))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  const VOXAnalysisExplicitEntity firstChild(children != NULL_exp ? *children.First() : VOXAnalysisExplicitChild());
  const HRESULT filled =
      firstChild != NULL_exp
          ? GetTheExplicitPtrFromModel(children, iValue, iEntityType, pointers.count, pointers.objects,
                                       pointers.indices)
          : GetExplicitPointers(iValue, iEntityType, pointers.count, pointers.objects, pointers.indices);
  if (FAILED(filled))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  if (pointers.AreMissing())
    return S_OK;

  collector = new (std::nothrow) GroupCollector;
  if (collector == nullptr)
    return exit.ReportAndFail(VOX_MISSING("Collector"));
  collector->AddRef();
  if (FAILED(Fill(*collector, entity, iValue, iEntityType, pointers)))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  if (attaches && !collector->IsAttachedToModel())
    collector->SetAttachedToModel(1, nullptr, 0);
  oCollector = collector;
  return S_OK;
}

HRESULT VOXEAnalysisGroup::GetTheExplicitPtrFromModel(VOXAnalysisExplicitList& iChildren, VOXSamValue iValue,
                                                      VOXString iEntityType, int& oCount,
                                                      VOXSamModelDataRoot**& oPointers, int*& oIndices) const
{
  const ErrorDepthHandler errorDepth;
  int groupType = VOXSamPhysicalTypeNone;
  oCount = 0;
  oPointers = nullptr;
  oIndices = nullptr;

  VOXAnalysisExplicitModel* const pModel = iChildren.GetModel();
  if (pModel == nullptr)
    return ReportAndFail(VOX_MISSING("ExpModel"));
  VOXSamPosition position = VOXSamPositionUnknown;
  if (FAILED(VOXSamIdentityEnum(iEntityType, position)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (FAILED(VOXSamGroupTools::GetExplicitGroupType(pModel, iValue, iEntityType, groupType)))
    return ReportAndFail(VOX_FAILED_CALL);

  VOXAnalysisExplicitEntity child;
  for (child = *iChildren.First(); child != NULL_exp; child = *iChildren.Next())
  {
    int childType = VOXSamPhysicalTypeNone;
    if (FAILED(child.GetPhysicalType(childType)))
      return ReportAndFail(VOX_FAILED_CALL);
    if (childType == groupType)
      break;
  }
  if (child == NULL_exp)
    return S_OK;

  VOXSamApplyQualifier* qualifiers = nullptr;
  if (FAILED(child.GetApplyTo(oCount, oPointers, position, oIndices, qualifiers, 0)))
    return ReportAndFail(VOX_FAILED_CALL);
  delete[] qualifiers;
  return S_OK;
}
