// SPDX-License-Identifier: MIT
// Collectors and archivers.
#include "AnalysisCore/VOXTrace.h"
#include "ExplicitModel/VOXAnalysisEntityCollector.h"
#include "Model.h"
#include "Runtime.h"

#include <algorithm>
#include <string>

using otherhost::LiveObjects;
using otherhost::Object;

VOXCollectorData& VOXExplicitAccess::Data(const VOXAnalysisCollectorRoot& iCollector)
{
  return *iCollector._Data;
}

// The model's reference stays with the collector, for whoever asked.
void VOXExplicitAccess::Detach(VOXAnalysisCollectorRoot& ioCollector)
{
  VOXCollectorData& data = Data(ioCollector);
  if (data.attachedTo == nullptr)
    return;
  std::vector<VOXAnalysisCollectorRoot*>& attached = data.attachedTo->collectors;
  attached.erase(std::remove(attached.begin(), attached.end(), &ioCollector), attached.end());
  data.attachedTo = nullptr;
}

VOXAnalysisCollectorRoot::VOXAnalysisCollectorRoot() : _Data(new VOXCollectorData)
{
  ++LiveObjects::Count().collectors;
}

VOXAnalysisCollectorRoot::~VOXAnalysisCollectorRoot()
{
  VOXExplicitAccess::Detach(*this);
  delete _Data;
  --LiveObjects::Count().collectors;
}

HRESULT VOXAnalysisCollectorRoot::GetContext(VOXAnalysisExplicitParent& oContext) const
{
  oContext = _Data->context;
  return S_OK;
}

HRESULT VOXAnalysisCollectorRoot::SetContext(const VOXAnalysisExplicitParent& iContext, unsigned char iKeepEntities)
{
  if (_Data->attachedTo != nullptr && _Data->attachedTo != VOXExplicitAccess::Object(iContext))
    return E_FAIL;
  _Data->context = iContext;
  return iKeepEntities ? S_OK : SetNbEntities(0);
}

HRESULT VOXAnalysisCollectorRoot::GetNbEntities(int& oNumber) const
{
  oNumber = static_cast<int>(_Data->objects.size());
  return S_OK;
}

HRESULT VOXAnalysisCollectorRoot::SetNbEntities(int iNumber)
{
  if (iNumber < 0)
    return E_FAIL;
  _Data->objects.assign(static_cast<std::size_t>(iNumber), nullptr);
  _Data->flags.assign(_Data->objects.size(), 1);
  _Data->sides.clear();
  _Data->values.clear();
  return S_OK;
}

HRESULT VOXAnalysisCollectorRoot::GetEntities(int& oCount, VOXSamModelDataRoot* const*& oObjects,
                                              const int*& oIndices) const
{
  oCount = static_cast<int>(_Data->objects.size());
  oObjects = _Data->objects.empty() ? nullptr : _Data->objects.data();
  oIndices = _Data->sides.empty() ? nullptr : _Data->sides.data();
  return S_OK;
}

HRESULT VOXAnalysisCollectorRoot::SetEntities(int iCount, VOXSamModelDataRoot* const* iObjects, const int* iIndices)
{
  if (iCount < 0 || (iCount > 0 && iObjects == nullptr))
    return E_FAIL;
  SetNbEntities(iCount);
  std::copy_n(iObjects, iCount, _Data->objects.begin());
  if (iIndices != nullptr)
    _Data->sides.assign(iIndices, iIndices + iCount);
  const otherhost::Model* const model = VOXExplicitAccess::Model(_Data->context);
  _Data->filledAt = model == nullptr ? 0 : model->clock;
  return S_OK;
}

unsigned char VOXAnalysisCollectorRoot::IsUpToDate() const
{
  const Object* const context = VOXExplicitAccess::Object(_Data->context);
  return context == nullptr || context->changedAt <= _Data->filledAt ? 1 : 0;
}

unsigned char VOXAnalysisCollectorRoot::IsStreamable() const
{
  return 0; // this host stores no document
}

int VOXAnalysisCollectorRoot::AddRef() const
{
  return ++_Data->references;
}

int VOXAnalysisCollectorRoot::Release() const
{
  const int left = --_Data->references;
  if (left == 0)
    delete this;
  return left;
}

void VOXAnalysisCollectorRoot::RequestDelayedDestruction(unsigned char iRequest)
{
  if (iRequest == 1)
    VOXExplicitAccess::Detach(*this);
}

unsigned char VOXAnalysisCollectorRoot::IsAttachedToModel() const
{
  return _Data->attachedTo != nullptr ? 1 : 0;
}

HRESULT VOXAnalysisCollectorRoot::SetAttachedToModel(unsigned char iAttach, VOXSamModelDataRoot* iObject, unsigned char)
{
  Object* const target = iObject != nullptr ? iObject : VOXExplicitAccess::Object(_Data->context);
  if (target == nullptr)
    return E_FAIL;
  const bool wasAttached = _Data->attachedTo != nullptr;
  VOXExplicitAccess::Detach(*this);
  if (iAttach)
  {
    target->collectors.push_back(this);
    _Data->attachedTo = target;
  }
  if (iAttach && !wasAttached)
    AddRef();
  else if (!iAttach && wasAttached)
    Release();
  return S_OK;
}

namespace
{

void Describe(VOXListValVOXUnicodeString& ioLines, const VOXCollectorData& iData, int iIndent, int iFirst, int iCount)
{
  const std::string blanks(static_cast<std::size_t>(std::max(iIndent, 0)), ' ');
  ioLines.Append(VOXUnicodeString(
      (blanks + static_cast<const char*>(iData.name) + ": " + std::to_string(iData.objects.size()) + " entities")
          .c_str()));
  const int end = std::min(iFirst + iCount, static_cast<int>(iData.objects.size()));
  for (int i = std::max(iFirst, 0); i < end; ++i)
  {
    const Object* const object = iData.objects[static_cast<std::size_t>(i)];
    ioLines.Append(VOXUnicodeString((blanks + std::to_string(object == nullptr ? 0 : object->tag)).c_str()));
  }
}

void Trace(const VOXCollectorData& iData, int iIndent, int iFirst, int iCount)
{
  VOXListValVOXUnicodeString lines;
  Describe(lines, iData, iIndent, iFirst, iCount);
  for (int i = 1; i <= lines.Size(); ++i)
    Tra_SAMTraceExpDbg.TraPutLN(lines[i].ConvertToChar());
}

HRESULT FlagsOf(const VOXCollectorData& iData, const unsigned char*& oFlags)
{
  oFlags = iData.flags.empty() ? nullptr : iData.flags.data();
  return S_OK;
}

} // namespace

VOXAnalysisEntityCollector::VOXAnalysisEntityCollector() = default;
VOXAnalysisEntityCollector::~VOXAnalysisEntityCollector() = default;

void VOXAnalysisEntityCollector::Dump(int iIndent, int iFirst, int iCount) const
{
  Trace(*_Data, iIndent, iFirst, iCount);
}

void VOXAnalysisEntityCollector::Dump(VOXListValVOXUnicodeString* ioLines, int iIndent, int iFirst, int iCount) const
{
  Describe(*ioLines, *_Data, iIndent, iFirst, iCount);
}

HRESULT VOXAnalysisEntityCollector::Reset()
{
  return SetNbEntities(0);
}

HRESULT VOXAnalysisEntityCollector::GetEntitiesFLags(const unsigned char*& oFlags) const
{
  return FlagsOf(*_Data, oFlags);
}

HRESULT VOXAnalysisEntityCollector::SetDefinition(VOXSamValue iValue, VOXString iName)
{
  if (_Data->attachedTo != nullptr)
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
  return SetEntities(iCount, iObjects, iIndices);
}

VOXAnalysisCharacCollector::VOXAnalysisCharacCollector()
{
  _Data->isCharac = true;
}

VOXAnalysisCharacCollector::~VOXAnalysisCharacCollector()
{
  SetArchiver(nullptr);
}

void VOXAnalysisCharacCollector::Dump(int iIndent, int iFirst, int iCount) const
{
  Trace(*_Data, iIndent, iFirst, iCount);
}

void VOXAnalysisCharacCollector::Dump(VOXListValVOXUnicodeString* ioLines, int iIndent, int iFirst, int iCount) const
{
  Describe(*ioLines, *_Data, iIndent, iFirst, iCount);
}

HRESULT VOXAnalysisCharacCollector::Reset()
{
  return SetNbEntities(0);
}

HRESULT VOXAnalysisCharacCollector::GetEntitiesFLags(const unsigned char*& oFlags) const
{
  return FlagsOf(*_Data, oFlags);
}

HRESULT VOXAnalysisCharacCollector::SetDefinition(int iPhysicalType, const VOXString& iName,
                                                  const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                                                  int iComponents, int iFrame)
{
  if (iComponents < 1)
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
  if (_Data->components == 0)
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
  const std::size_t count = _Data->objects.size();
  if (iValues == nullptr || count == 0 || _Data->components == 0)
    return E_FAIL;
  _Data->values.assign(iValues, iValues + count * static_cast<std::size_t>(_Data->components));
  _Data->flags.assign(count, 1);
  if (iFlags != nullptr)
    _Data->flags.assign(iFlags, iFlags + count);
  return S_OK;
}

const double* VOXAnalysisCharacCollector::GetValues() const
{
  return _Data->values.empty() ? nullptr : _Data->values.data();
}

HRESULT VOXAnalysisCharacCollector::GetArchiver(const VOXAnalysisCollectorArchiver*& oArchiver) const
{
  oArchiver = _Data->archiver;
  return S_OK;
}

// What an archiver keeps: the values, and whether they follow the numbering of the model, as these do.
struct VOXArchiverData
{
  int references = 1;
  int timeStamp = 0;
  unsigned char isStreamable = 1;
  unsigned char followsNumbering = 0;
  std::vector<double> storage{};
};

HRESULT VOXAnalysisCharacCollector::SetArchiver(const VOXAnalysisCollectorArchiver* iArchiver) const
{
  if (iArchiver != nullptr)
  {
    iArchiver->AddRef();
    iArchiver->_Data->storage = _Data->values;
    iArchiver->_Data->followsNumbering = _Data->values.empty() ? 0 : 1;
  }
  if (_Data->archiver != nullptr)
    _Data->archiver->Release();
  _Data->archiver = iArchiver;
  return S_OK;
}

VOXAnalysisCollectorArchiver::VOXAnalysisCollectorArchiver(const int& iTimeStamp) : _Data(new VOXArchiverData)
{
  _Data->timeStamp = iTimeStamp;
  ++LiveObjects::Count().archivers;
}

VOXAnalysisCollectorArchiver::~VOXAnalysisCollectorArchiver()
{
  delete _Data;
  --LiveObjects::Count().archivers;
}

int VOXAnalysisCollectorArchiver::AddRef() const
{
  return ++_Data->references;
}

int VOXAnalysisCollectorArchiver::Release() const
{
  const int left = --_Data->references;
  if (left == 0)
    delete this;
  return left;
}

unsigned char VOXAnalysisCollectorArchiver::IsMatchingTimeStamp(const int& iTimeStamp) const
{
  return _Data->timeStamp == iTimeStamp ? 1 : 0;
}

const unsigned char& VOXAnalysisCollectorArchiver::IsNumberingDependant() const
{
  return _Data->followsNumbering;
}

const unsigned char& VOXAnalysisCollectorArchiver::IsStreamable() const
{
  return _Data->isStreamable;
}

void VOXAnalysisCollectorArchiver::SetUnStreamable()
{
  _Data->isStreamable = 0;
}

HRESULT VOXAnalysisCollectorArchiver::ResetStorage()
{
  _Data->storage.clear();
  _Data->followsNumbering = 0;
  return S_OK;
}
