// SPDX-License-Identifier: MIT
#include "voxbench/features/SolutionResults.h"
#include "ExplicitModel/VOXAnalysisCharacCollector.h"
#include "FeatureModeler/VOXISpecObject.h"

#include <algorithm>

namespace voxbench
{
namespace
{

//! Whether a collector holds values of a definition.
bool Holds(const VOXAnalysisCharacCollector& iCollector, int iPhysicalType, const VOXSamCharacVersion& iVersion,
           const VOXString& iPosition)
{
  int type = VOXSamPhysicalTypeNone;
  VOXString name;
  VOXSamCharacVersion version;
  VOXString position;
  int components = 0;
  int frame = 0;
  return SUCCEEDED(iCollector.GetDefinition(type, name, version, position, components, frame)) &&
         type == iPhysicalType && version == iVersion && position == iPosition;
}

HRESULT Fill(VOXAnalysisCharacCollector& ioCollector, const ResultSource::Values& iValues)
{
  const auto count = static_cast<int>(iValues.entities.size());
  if (FAILED(ioCollector.SetEntities(count, iValues.entities.data(), nullptr)))
    return E_FAIL;
  return count == 0 ? S_OK : ioCollector.SetValues(iValues.numbers.data(), iValues.flags.data());
}

} // namespace

SolutionResults::~SolutionResults()
{
  for (const VOXAnalysisCharacCollector* const collector : _Collectors)
    collector->Release();
}

ResultSource* SolutionResults::Source() const
{
  const SolutionData_var spData(GetImpl(0));
  return !spData ? nullptr : spData->Source();
}

const ResultSource::Quantity* SolutionResults::Find(int iPhysicalType) const
{
  const ResultSource* const source = Source();
  if (source == nullptr)
    return nullptr;
  for (const ResultSource::Quantity& quantity : source->Quantities())
    if (quantity.physicalType == iPhysicalType)
      return &quantity;
  return nullptr;
}

HRESULT SolutionResults::GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& /*oReserved*/)
{
  const ResultSource* const source = Source();
  if (source == nullptr)
    return E_FAIL;
  _Types.clear();
  for (const ResultSource::Quantity& quantity : source->Quantities())
    _Types.push_back(quantity.physicalType);
  oNbTypes = static_cast<int>(_Types.size());
  oTypes = _Types.data();
  return S_OK;
}

HRESULT SolutionResults::GetAvailableVersions(int iPhysicalType, int& oNbVersions,
                                              const VOXSamCharacVersion*& oVersions)
{
  const ResultSource::Quantity* const quantity = Find(iPhysicalType);
  oNbVersions = quantity == nullptr ? 0 : static_cast<int>(quantity->versions.size());
  oVersions = quantity == nullptr ? nullptr : quantity->versions.data();
  return S_OK;
}

HRESULT SolutionResults::GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion,
                                               int& oNbPositions, const VOXString*& oPositions)
{
  const ResultSource::Quantity* const quantity = Find(iPhysicalType);
  const bool hasVersion = quantity != nullptr && std::find(quantity->versions.begin(), quantity->versions.end(),
                                                           iVersion) != quantity->versions.end();
  oNbPositions = hasVersion ? static_cast<int>(quantity->positions.size()) : 0;
  oPositions = hasVersion ? quantity->positions.data() : nullptr;
  return S_OK;
}

//! Unlike the question for an available definition this one tells the imaginary part from the real part: both have to be
//! there by themselves.
HRESULT SolutionResults::Offers(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                                bool& oOffers)
{
  unsigned char available = 0;
  if (FAILED(IsAnAvailableDefinition(iPhysicalType, iVersion, iPosition, available)))
    return E_FAIL;
  int nbPositions = 0;
  const VOXString* positions = nullptr;
  oOffers = available != 0 && SUCCEEDED(GetAvailablePositions(iPhysicalType, iVersion, nbPositions, positions)) &&
            nbPositions > 0;
  return S_OK;
}

HRESULT SolutionResults::GetCharacCollector(int iPhysicalType, const VOXSamCharacVersion& iVersion,
                                            const VOXString& iPosition, const VOXAnalysisCharacCollector*& oCollector)
{
  oCollector = nullptr;
  bool offers = false;
  if (FAILED(Offers(iPhysicalType, iVersion, iPosition, offers)))
    return E_FAIL;
  if (!offers)
    return S_OK;
  DropTheDeleted();
  for (const VOXAnalysisCharacCollector* const collector : _Collectors)
  {
    if (!Holds(*collector, iPhysicalType, iVersion, iPosition))
      continue;
    if (collector->IsUpToDate() != 0)
    {
      oCollector = collector;
      return S_OK;
    }
    const VOXAnalysisCharacCollector* outOfDate = collector;
    if (FAILED(DeleteCharacCollector(outOfDate)))
      return E_FAIL;
    break;
  }
  return Make(iPhysicalType, iVersion, iPosition, oCollector);
}

HRESULT SolutionResults::Make(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                              const VOXAnalysisCharacCollector*& oCollector)
{
  const ResultSource::Quantity& quantity = *Find(iPhysicalType);
  const auto place = static_cast<std::size_t>(&quantity - Source()->Quantities().data());
  ResultSource::Values values;
  VOXAnalysisExplicitParent context;
  if (FAILED(Source()->Read(place, iVersion, values)) || FAILED(GetContext(context)))
    return E_FAIL;
  auto* const collector = new VOXAnalysisCharacCollector;
  collector->AddRef();
  if (FAILED(collector->SetContext(context, 0)) ||
      FAILED(collector->SetDefinition(iPhysicalType, quantity.name, iVersion, iPosition, std::max(values.components, 1),
                                      0)) ||
      FAILED(Fill(*collector, values)) || FAILED(collector->SetAttachedToModel(1, nullptr, 0)))
  {
    collector->Release();
    return E_FAIL;
  }
  _Collectors.push_back(collector);
  oCollector = collector;
  return AssignArchiverToCollector(collector, CollectorArchiveOnFill);
}

HRESULT SolutionResults::GetCharacCollectors(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors)
{
  DropTheDeleted();
  oNb = static_cast<int>(_Collectors.size());
  oCollectors = _Collectors.empty() ? nullptr : _Collectors.data();
  return S_OK;
}

HRESULT SolutionResults::IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector* iCollector,
                                                   unsigned char& oUpToDate)
{
  oUpToDate = 0;
  DropTheDeleted();
  const bool isMine = std::find(_Collectors.begin(), _Collectors.end(), iCollector) != _Collectors.end();
  if (isMine && IsFeatureUpToDate())
    oUpToDate = iCollector->IsUpToDate();
  return S_OK;
}

HRESULT SolutionResults::GetTitle(int iPhysicalType, VOXString& oTitle)
{
  const ResultSource::Quantity* const quantity = Find(iPhysicalType);
  if (quantity == nullptr)
    return E_FAIL;
  oTitle = quantity->title;
  return S_OK;
}

HRESULT SolutionResults::AskArchiver(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                                     ArchiverState& oState)
{
  oState = {};
  VOXAnalysisCollectorArchiver* archiver = nullptr;
  if (FAILED(GetCollectorArchiver(iPhysicalType, iVersion, iPosition, archiver)))
    return E_FAIL;
  if (archiver != nullptr)
    oState = {true, archiver->IsStreamable() != 0, archiver->IsNumberingDependant() != 0};
  return S_OK;
}

HRESULT SolutionResults::IsAuthorizedToArchiveCollectors(unsigned char& oAuthorized) const
{
  oAuthorized = 1;
  return S_OK;
}

bool SolutionResults::IsFeatureUpToDate() const
{
  const VOXISpecObject_var spFeature(GetImpl(0));
  return !!spFeature && spFeature->IsUpToDate(VOXIDomain_var()) != 0;
}

void SolutionResults::DropTheDeleted()
{
  const auto isGone = [](const VOXAnalysisCharacCollector* iCollector)
  {
    if (iCollector->IsAttachedToModel() != 0)
      return false;
    iCollector->Release();
    return true;
  };
  std::erase_if(_Collectors, isGone);
}

} // namespace voxbench
