// SPDX-License-Identifier: MIT
#include "VOXECharacCollector.h"

#include "AnalysisInterfaces/VOXICharacCollector.h"
#include "ErrorFrame.h"
#include "ExplicitModel/VOXAnalysisExplicitModel.h"
#include "FeatureModeler/VOXISpecObject.h"

#include <cstdlib>
#include <cstring>
#include <new>

// The storage area of the archivers: the second half of the class.

VOX_SOURCE_OF(VOXECharacCollector);

using voxframe::ReportAndFail;

namespace
{

constexpr char kCannotLocate[] = "Can't Locate Archiver ...";
constexpr char kNoPlace[] = "oPhysicalTypeIndex == -1 || oVersionIndex == -1 || oPositionIndex == -1";
constexpr int kFirstDerivedVersion = 8; // kind codes from here on are never archived

// Never null for want of elements: the area counts as built when its arrays are there.
template <class Value>
Value* NewZeroedArray(int iCount)
{
  const std::size_t size = static_cast<std::size_t>(iCount < 1 ? 1 : iCount) * sizeof(Value);
  return static_cast<Value*>(std::memset(std::malloc(size), 0, size));
}

template <class Value>
void FreeArray(Value*& ioArray)
{
  std::free(ioArray);
  ioArray = nullptr;
}

void CountNegativeAsNone(std::int32_t& ioCount)
{
  if (ioCount < 0)
    ioCount = 0;
}

// The three levels as far as they are built.
struct Area
{
  const std::int32_t* nbVersionSlots;
  std::int32_t* const* nbPositions;
  VOXAnalysisCollectorArchiver*** const* archivers;

  int Slots(int iType) const { return nbVersionSlots == nullptr ? 0 : nbVersionSlots[iType]; }

  VOXAnalysisCollectorArchiver** Leaf(int iType, int iSlot) const
  {
    return archivers[iType] == nullptr ? nullptr : archivers[iType][iSlot];
  }

  int Positions(int iType, int iSlot) const
  {
    const bool counted = nbPositions != nullptr && nbPositions[iType] != nullptr;
    return counted && Leaf(iType, iSlot) != nullptr ? nbPositions[iType][iSlot] : 0;
  }

  // Plain versions have the first half of the slots: one that the feature offers only now has no place among the variants.
  bool Holds(int iType, int iSlot, int iPosition, bool iIsVariant) const
  {
    const int end = iIsVariant ? Slots(iType) : Slots(iType) / 2;
    return iSlot < end && iPosition < Positions(iType, iSlot);
  }
};

// Place of a definition within its physical type.
struct Place
{
  int slot = -1;
  int position = -1;

  bool IsFound() const { return position >= 0; }
};

// Stops at the first failure.
HRESULT ResetNumberingDependant(VOXAnalysisCollectorArchiver* const* iKept, int iCount)
{
  HRESULT result = S_OK;
  for (int p = 0; p < iCount && SUCCEEDED(result); ++p)
    if (iKept[p] != nullptr && iKept[p]->IsNumberingDependant())
      result = iKept[p]->ResetStorage();
  return result;
}

// What a collector holds values of; name, components and frame are not looked at.
struct Definition
{
  int type = VOXSamPhysicalTypeNone;
  VOXString name;
  VOXSamCharacVersion version;
  VOXString position;
  int components = 0;
  int frame = 0;
};

// Place of the next equal value from iFrom on; iCount or more when there is none. A loop of its own, since fetching an
// archiver costs little else.
template <class Value>
int NextPlaceOf(const Value& iValue, const Value* iValues, int iFrom, int iCount)
{
  int place = iFrom;
  while (place < iCount && !(iValues[place] == iValue))
    ++place;
  return place;
}

// Of numbers: blocks that the compiler compares at once.
int NextPlaceOf(int iValue, const int* iValues, int iFrom, int iCount)
{
  constexpr int kBlock = 8;
  int place = iFrom;
  for (bool isInBlock = false; place + kBlock <= iCount; place += kBlock)
  {
    for (int i = 0; i < kBlock; ++i)
      isInBlock |= iValues[place + i] == iValue;
    if (isInBlock)
      break;
  }
  while (place < iCount && iValues[place] != iValue)
    ++place;
  return place;
}

// First match in version order, then in position order. The variant flag takes no part in the comparison of versions:
// Kept: any flag that is not 0 selects the second half of the slots, which begins behind the versions offered now, not
// behind those that the area was built for.
HRESULT LocateInType(VOXICharacCollector& iFeature, int iPhysicalType, const VOXSamCharacVersion& iVersion,
                     const VOXString& iPosition, Place& oPlace)
{
  VOXSamCharacVersion plainVersion = iVersion;
  plainVersion._Variant = 0;
  int nbVersions = 0;
  const VOXSamCharacVersion* versions = nullptr;
  const HRESULT versionsResult = iFeature.GetAvailableVersions(iPhysicalType, nbVersions, versions);
  if (FAILED(versionsResult))
    return versionsResult;

  int j = -1;
  while (!oPlace.IsFound() && (j = NextPlaceOf(plainVersion, versions, j + 1, nbVersions)) < nbVersions)
  {
    int nbPositions = 0;
    const VOXString* positions = nullptr;
    const HRESULT result = iFeature.GetAvailablePositions(iPhysicalType, versions[j], nbPositions, positions);
    if (FAILED(result))
      return result;
    const int k = NextPlaceOf(iPosition, positions, 0, nbPositions);
    if (k < nbPositions)
      oPlace = {iVersion._Variant != 0 ? j + nbVersions : j, k};
  }
  return S_OK;
}

} // namespace

HRESULT VOXECharacCollector::InitCollectorArchiversStorageArea()
{
  if (_Archivers != nullptr)
    return S_OK;
  const ErrorDepthHandler errorDepth;
  const auto cleanUp = [this] { return ResetCollectorArchiversStorageArea(); };
  static voxframe::LoopGuard loopGuard{VOX_SITE};
  const voxframe::GuardedExit exit(loopGuard, cleanUp);

  const VOXICharacCollector_var spFeature(GetImpl(0));
  if (!spFeature)
    return exit.ReportAndFail(VOX_CONDITION("(aVOXICharacCollector = GetImpl()) == NULL_var"));
  const int* types = nullptr;
  const void* reserved = nullptr;
  if (FAILED(spFeature->GetAvailablePhysicalTypes(_NbPhysicalTypes, types, reserved)))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  CountNegativeAsNone(_NbPhysicalTypes);
  _NbVersionSlots = NewZeroedArray<std::int32_t>(_NbPhysicalTypes);
  _NbPositions = NewZeroedArray<std::int32_t*>(_NbPhysicalTypes);
  _Archivers = NewZeroedArray<VOXAnalysisCollectorArchiver***>(_NbPhysicalTypes);

  for (int t = 0; t < _NbPhysicalTypes; ++t)
  {
    const VOXSamCharacVersion* versions = nullptr;
    if (FAILED(spFeature->GetAvailableVersions(types[t], _NbVersionSlots[t], versions)))
      return exit.ReportAndFail(VOX_FAILED_CALL);
    CountNegativeAsNone(_NbVersionSlots[t]);
    const int nbVersions = _NbVersionSlots[t];
    _NbVersionSlots[t] = 2 * nbVersions;
    _NbPositions[t] = NewZeroedArray<std::int32_t>(2 * nbVersions);
    _Archivers[t] = NewZeroedArray<VOXAnalysisCollectorArchiver**>(2 * nbVersions);
    for (int v = 0; v < nbVersions; ++v)
    {
      std::int32_t& nbPositions = _NbPositions[t][v];
      const VOXString* positions = nullptr;
      if (FAILED(spFeature->GetAvailablePositions(types[t], versions[v], nbPositions, positions)))
        return exit.ReportAndFail(VOX_FAILED_CALL);
      CountNegativeAsNone(nbPositions);
      _NbPositions[t][nbVersions + v] = nbPositions;
      _Archivers[t][v] = NewZeroedArray<VOXAnalysisCollectorArchiver*>(nbPositions);
      _Archivers[t][nbVersions + v] = NewZeroedArray<VOXAnalysisCollectorArchiver*>(nbPositions);
    }
  }
  return S_OK;
}

HRESULT VOXECharacCollector::ResetCollectorArchiversStorageArea()
{
  const auto giveBack = [](VOXAnalysisCollectorArchiver*& ioKept)
  {
    if (ioKept != nullptr)
      ioKept->Release();
    ioKept = nullptr;
  };
  const Area area{_NbVersionSlots, _NbPositions, _Archivers};
  for (int t = 0; _Archivers != nullptr && t < _NbPhysicalTypes; ++t)
  {
    for (int s = 0; s < area.Slots(t); ++s)
    {
      for (int p = 0; p < area.Positions(t, s); ++p)
        giveBack(_Archivers[t][s][p]);
      if (_Archivers[t] != nullptr)
        FreeArray(_Archivers[t][s]);
    }
    if (_NbPositions != nullptr)
      FreeArray(_NbPositions[t]);
    FreeArray(_Archivers[t]);
  }
  _NbPhysicalTypes = 0;
  FreeArray(_NbVersionSlots);
  FreeArray(_NbPositions);
  FreeArray(_Archivers);
  return S_OK;
}

HRESULT VOXECharacCollector::ResetNumberingDependantCollectorArchiversStorageArea()
{
  const ErrorDepthHandler errorDepth;
  if (_Archivers == nullptr)
    return S_OK;
  const Area area{_NbVersionSlots, _NbPositions, _Archivers};
  for (int t = 0; t < _NbPhysicalTypes; ++t)
    for (int s = 0; s < area.Slots(t); ++s)
      if (FAILED(ResetNumberingDependant(area.Leaf(t, s), area.Positions(t, s))))
        return ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}

HRESULT VOXECharacCollector::LocateCollectorArchiver(int iPhysicalType, const VOXSamCharacVersion& iVersion,
                                                     const VOXString& iPosition, int& oPhysicalTypeIndex,
                                                     int& oVersionIndex, int& oPositionIndex)
{
  const ErrorDepthHandler errorDepth;
  oPhysicalTypeIndex = -1;
  oVersionIndex = -1;
  oPositionIndex = -1;
  if (_Archivers == nullptr)
    return S_OK;

  const VOXICharacCollector_var spFeature(GetImpl(0));
  if (!spFeature)
    return ReportAndFail(VOX_CONDITION("(aVOXICharacCollector = GetImpl()) == NULL_var"));
  int nbTypes = 0;
  const int* types = nullptr;
  const void* reserved = nullptr;
  if (FAILED(spFeature->GetAvailablePhysicalTypes(nbTypes, types, reserved)))
    return ReportAndFail(VOX_FAILED_CALL);

  Place place;
  int t = -1;
  while (!place.IsFound() && (t = NextPlaceOf(iPhysicalType, types, t + 1, nbTypes)) < nbTypes)
    if (FAILED(LocateInType(*spFeature, types[t], iVersion, iPosition, place)))
      return ReportAndFail(VOX_FAILED_CALL);
  // The feature may offer other versions by now than the area was built for: what has no place in it is not found.
  const Area area{_NbVersionSlots, _NbPositions, _Archivers};
  if (!place.IsFound() || t >= _NbPhysicalTypes || !area.Holds(t, place.slot, place.position, iVersion._Variant != 0))
    return S_OK;
  oPhysicalTypeIndex = t;
  oVersionIndex = place.slot;
  oPositionIndex = place.position;
  return S_OK;
}

HRESULT VOXECharacCollector::GetCollectorArchiver(int iPhysicalType, const VOXSamCharacVersion& iVersion,
                                                  const VOXString& iPosition, VOXAnalysisCollectorArchiver*& oArchiver)
{
  const ErrorDepthHandler errorDepth;
  oArchiver = nullptr;
  if (_Archivers == nullptr && FAILED(InitCollectorArchiversStorageArea()))
    return ReportAndFail(VOX_FAILED_CALL);
  int t = -1;
  int s = -1;
  int p = -1;
  if (FAILED(LocateCollectorArchiver(iPhysicalType, iVersion, iPosition, t, s, p)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (t == -1 || s == -1 || p == -1)
    return ReportAndFail(VOX_TRACED_CONDITION(kCannotLocate, kNoPlace));

  oArchiver = _Archivers[t][s][p];
  if (oArchiver == nullptr)
    return S_OK;
  const VOXISpecObject_var spFeature(GetImpl(0));
  if (!spFeature) // Kept: the archiver stays handed out
    return ReportAndFail(VOX_CONDITION("(aSpecObject = GetImpl()) == NULL_var"));
  const std::int32_t timeStamp = spFeature->GetTimeStamp();
  if (!oArchiver->IsMatchingTimeStamp(timeStamp))
  {
    _Archivers[t][s][p] = nullptr;
    oArchiver->SetUnStreamable();
    oArchiver->Release();
    oArchiver = nullptr;
  }
  return S_OK;
}

HRESULT VOXECharacCollector::SetCollectorArchiver(int iPhysicalType, const VOXSamCharacVersion& iVersion,
                                                  const VOXString& iPosition, VOXAnalysisCollectorArchiver* iArchiver)
{
  const ErrorDepthHandler errorDepth;
  if (_Archivers == nullptr && FAILED(InitCollectorArchiversStorageArea()))
    return ReportAndFail(VOX_FAILED_CALL);
  int t = -1;
  int s = -1;
  int p = -1;
  if (FAILED(LocateCollectorArchiver(iPhysicalType, iVersion, iPosition, t, s, p)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (t == -1 || s == -1 || p == -1)
    return ReportAndFail(VOX_TRACED_CONDITION(kCannotLocate, kNoPlace));

  VOXAnalysisCollectorArchiver*& kept = _Archivers[t][s][p];
  if (kept != nullptr) // Kept: the archiver that is kept already is given back, too, before it is taken again
  {
    kept->Release();
    kept = nullptr;
  }
  kept = iArchiver;
  if (kept != nullptr)
    kept->AddRef();
  return S_OK;
}

HRESULT VOXECharacCollector::CollectorIsForAllEntities(const VOXAnalysisCharacCollector* iCollector,
                                                       unsigned char& oForAll)
{
  const ErrorDepthHandler errorDepth;
  oForAll = 1;
  if (iCollector == nullptr || !iCollector->IsCollectorContainValues())
    return S_OK;
  int nbEntities = 0;
  if (FAILED(iCollector->GetNbEntities(nbEntities)))
    return ReportAndFail(VOX_FAILED_CALL);
  const unsigned char* flags = nullptr;
  if (FAILED(iCollector->GetEntitiesFLags(flags)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (flags != nullptr && nbEntities > 0 && std::memchr(flags, 0, static_cast<std::size_t>(nbEntities)) != nullptr)
    oForAll = 0;
  return S_OK;
}

HRESULT VOXECharacCollector::AssignArchiverToCollector(const VOXAnalysisCharacCollector* iCollector,
                                                       CollectorArchiveFlag /*iFlag*/)
{
  const ErrorDepthHandler errorDepth;
  if (iCollector == nullptr)
    return S_OK;
  unsigned char authorized = 0;
  if (FAILED(IsAuthorizedToArchiveCollectors(authorized)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (!authorized)
    return S_OK;
  unsigned char forAll = 0;
  if (FAILED(CollectorIsForAllEntities(iCollector, forAll)))
    return ReportAndFail(VOX_FAILED_CALL);
  Definition def;
  if (FAILED(iCollector->GetDefinition(def.type, def.name, def.version, def.position, def.components, def.frame)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (!forAll || def.version._KindCode >= kFirstDerivedVersion)
    return S_OK;
  const VOXAnalysisCollectorArchiver* pExisting = nullptr;
  if (FAILED(iCollector->GetArchiver(pExisting)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (pExisting != nullptr)
    return S_OK;
  VOXAnalysisCollectorArchiver* pArchiver = nullptr;
  if (FAILED(GetCollectorArchiver(def.type, def.version, def.position, pArchiver)))
    return ReportAndFail(VOX_FAILED_CALL);
  const bool isNew = pArchiver == nullptr;
  if (isNew)
  {
    VOXAnalysisExplicitParent context;
    if (FAILED(GetContext(context)))
      return ReportAndFail(VOX_FAILED_CALL);
    if (context.GetModel() == nullptr)
      return ReportAndFail(VOX_MISSING("CurrentModel = Context.GetModel()"));
    const VOXISpecObject_var spFeature(GetImpl(0));
    if (!spFeature)
      return ReportAndFail(VOX_CONDITION("(aSpecObject = GetImpl()) == NULL_var"));
    const std::int32_t timeStamp = spFeature->GetTimeStamp();
    const unsigned char displayed = VOXAnalysisExplicitModel::DisplayErrors(0);
    pArchiver = new (std::nothrow) VOXAnalysisCollectorArchiver(timeStamp);
    VOXAnalysisExplicitModel::DisplayErrors(displayed);
    if (pArchiver == nullptr)
      return S_OK;
    if (!pArchiver->IsStreamable())
    {
      delete pArchiver;
      return S_OK;
    }
  }

  // Kept: the reference that a new archiver is born with is never given back, and one that the collector refuses is
  // neither kept nor destroyed.
  if (FAILED(iCollector->SetArchiver(pArchiver)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (isNew && FAILED(SetCollectorArchiver(def.type, def.version, def.position, pArchiver)))
    return ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}
