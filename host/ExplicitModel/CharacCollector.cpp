// SPDX-License-Identifier: MIT
#include "ExplicitModel/VOXAnalysisCharacCollector.h"

#include "AnalysisCore/VOXTrace.h"
#include "ExplicitModel/VOXAnalysisCollectorArchiver.h"
#include "host/ExplicitModel/CollectorData.h"
#include "host/ExplicitModel/DumpCollector.h"
#include "host/Instruments/Faults.h"

using voxhost::Faults;

VOXAnalysisCharacCollector::VOXAnalysisCharacCollector()
{
  _Data->characCollector = this;
}

VOXAnalysisCharacCollector::~VOXAnalysisCharacCollector()
{
  if (_Data->archiver != nullptr)
    _Data->archiver->Release();
}

void VOXAnalysisCharacCollector::Dump(int iIndent, int iFirst, int iCount) const
{
  VOXListValVOXUnicodeString lines;
  Dump(&lines, iIndent, iFirst, iCount);
  for (int i = 1; i <= lines.Size(); ++i)
    Tra_SAMTraceExpDbg.TraPutLN(lines[i]);
}

void VOXAnalysisCharacCollector::Dump(VOXListValVOXUnicodeString* ioLines, int iIndent, int iFirst, int iCount) const
{
  voxhost::DumpCollector(*_Data, "charac collector", ioLines, iIndent, iFirst, iCount);
}

HRESULT VOXAnalysisCharacCollector::Reset()
{
  return Faults::Enter("VOXAnalysisCharacCollector::Reset") ? E_FAIL : SetEntities(0, nullptr, nullptr);
}

HRESULT VOXAnalysisCharacCollector::GetEntitiesFLags(const unsigned char*& oFlags) const
{
  if (Faults::Enter("VOXAnalysisCharacCollector::GetEntitiesFLags"))
    return E_FAIL;
  if (_Data->flags.empty())
    _Data->flags.assign(static_cast<std::size_t>(_Data->size), _Data->values.empty() ? 0 : 1);
  oFlags = _Data->flags.empty() ? nullptr : _Data->flags.data();
  return S_OK;
}

HRESULT VOXAnalysisCharacCollector::SetDefinition(int iPhysicalType, const VOXString& iName,
                                                  const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                                                  int iComponents, int iFrame)
{
  if (Faults::Enter("VOXAnalysisCharacCollector::SetDefinition") || iComponents < 1)
    return E_FAIL;
  _Data->physicalType = iPhysicalType;
  _Data->name = iName;
  _Data->version = iVersion;
  _Data->position = iPosition;
  _Data->components = iComponents;
  _Data->frame = iFrame;
  return S_OK;
}

HRESULT VOXAnalysisCharacCollector::GetDefinition(int& oPhysicalType, VOXString& oName, VOXSamCharacVersion& oVersion,
                                                  VOXString& oPosition, int& oComponents, int& oFrame) const
{
  if (Faults::Enter("VOXAnalysisCharacCollector::GetDefinition") || _Data->components == 0)
    return E_FAIL;
  oPhysicalType = _Data->physicalType;
  oName = _Data->name;
  oVersion = _Data->version;
  oPosition = _Data->position;
  oComponents = _Data->components;
  oFrame = _Data->frame;
  return S_OK;
}

unsigned char VOXAnalysisCharacCollector::IsCollectorContainValues() const
{
  return _Data->values.empty() ? 0 : 1;
}

HRESULT VOXAnalysisCharacCollector::SetValues(const double* iValues, const unsigned char* iFlags)
{
  const auto size = static_cast<std::size_t>(_Data->size);
  const auto components = static_cast<std::size_t>(_Data->components);
  if (Faults::Enter("VOXAnalysisCharacCollector::SetValues") || iValues == nullptr || size * components == 0)
    return E_FAIL;
  _Data->values.assign(iValues, iValues + size * components);
  if (iFlags == nullptr)
    _Data->flags.assign(size, 1);
  else
    _Data->flags.assign(iFlags, iFlags + size);
  return S_OK;
}

const double* VOXAnalysisCharacCollector::GetValues() const
{
  return _Data->values.empty() ? nullptr : _Data->values.data();
}

HRESULT VOXAnalysisCharacCollector::GetArchiver(const VOXAnalysisCollectorArchiver*& oArchiver) const
{
  if (Faults::Enter("VOXAnalysisCharacCollector::GetArchiver"))
    return E_FAIL;
  oArchiver = _Data->archiver;
  return S_OK;
}

HRESULT VOXAnalysisCharacCollector::SetArchiver(const VOXAnalysisCollectorArchiver* iArchiver) const
{
  if (Faults::Enter("VOXAnalysisCharacCollector::SetArchiver"))
    return E_FAIL;
  if (iArchiver != nullptr)
    iArchiver->AddRef();
  if (_Data->archiver != nullptr)
    _Data->archiver->Release();
  _Data->archiver = iArchiver;
  return S_OK;
}
