// SPDX-License-Identifier: MIT
#include "ExplicitModel/VOXAnalysisEntityCollector.h"

#include "AnalysisCore/VOXTrace.h"
#include "host/ExplicitModel/CollectorData.h"
#include "host/ExplicitModel/DumpCollector.h"
#include "host/Instruments/Faults.h"

using voxhost::Faults;

VOXAnalysisEntityCollector::VOXAnalysisEntityCollector()
{
  _Data->entityCollector = this;
}

VOXAnalysisEntityCollector::~VOXAnalysisEntityCollector() = default;

void VOXAnalysisEntityCollector::Dump(int iIndent, int iFirst, int iCount) const
{
  VOXListValVOXUnicodeString lines;
  Dump(&lines, iIndent, iFirst, iCount);
  for (int i = 1; i <= lines.Size(); ++i)
    Tra_SAMTraceExpDbg.TraPutLN(lines[i]);
}

void VOXAnalysisEntityCollector::Dump(VOXListValVOXUnicodeString* ioLines, int iIndent, int iFirst, int iCount) const
{
  voxhost::DumpCollector(*_Data, "entity collector", ioLines, iIndent, iFirst, iCount);
}

HRESULT VOXAnalysisEntityCollector::Reset()
{
  return Faults::Enter("VOXAnalysisEntityCollector::Reset") ? E_FAIL : SetEntities(0, nullptr, nullptr);
}

HRESULT VOXAnalysisEntityCollector::GetEntitiesFLags(const unsigned char*& oFlags) const
{
  if (Faults::Enter("VOXAnalysisEntityCollector::GetEntitiesFLags"))
    return E_FAIL;
  if (_Data->flags.empty())
    _Data->flags.assign(static_cast<std::size_t>(_Data->size), 1);
  oFlags = _Data->flags.empty() ? nullptr : _Data->flags.data();
  return S_OK;
}

HRESULT VOXAnalysisEntityCollector::SetDefinition(VOXSamValue iValue, VOXString iName)
{
  if (Faults::Enter("VOXAnalysisEntityCollector::SetDefinition") || IsAttachedToModel() != 0)
    return E_FAIL;
  _Data->value = iValue;
  _Data->name = iName;
  return S_OK;
}

HRESULT VOXAnalysisEntityCollector::GetDefinition(VOXSamValue& oValue, VOXString& oName) const
{
  oValue = _Data->value;
  oName = _Data->name;
  return S_OK;
}

HRESULT VOXAnalysisEntityCollector::SetExplicitPointers(int iCount, VOXSamModelDataRoot* const* iObjects,
                                                        const int* iIndices)
{
  if (Faults::Enter("VOXAnalysisEntityCollector::SetExplicitPointers"))
    return E_FAIL;
  return SetEntities(iCount, iObjects, iIndices);
}
