// SPDX-License-Identifier: MIT
#include "host/ComponentRuntime/LateTypes.h"

#include <cstring>
#include <map>

namespace voxhost
{
namespace
{

using Dictionary = std::map<std::string, std::unique_ptr<LateType>, std::less<>>;

Dictionary& AllTypes()
{
  static Dictionary types;
  return types;
}

std::uint64_t g_generation = 1; // grows with every declaration of a face

} // namespace

std::unique_ptr<FaceTable> FaceTable::Build(std::vector<Face> iFaces)
{
  auto table = std::make_unique<FaceTable>();
  table->faces = std::move(iFaces);
  for (Face& face : table->faces)
    face.place = face.factory == nullptr ? kRoot : table->extensions++;
  int bits = 3;
  while ((std::size_t{1} << bits) < 2 * table->faces.size())
    ++bits;
  for (std::uint32_t attempt = 1, multiplier = 0x9E3779B1u;; ++attempt, multiplier += 0x3C6EF372u)
  {
    table->_Slots.assign(std::size_t{1} << bits, Slot());
    table->_Shift = 32 - bits;
    if (table->Fill(multiplier))
      return table;
    if (attempt % 64 == 0) // no luck for a while: a larger table is easier to fill without collisions
      ++bits;
  }
}

bool FaceTable::Fill(std::uint32_t iMultiplier)
{
  _Multiplier = iMultiplier | 1u;
  for (const Face& face : faces)
  {
    Slot& slot = _Slots[(face.interfaceId.Data1 * _Multiplier) >> _Shift];
    if (slot.place != kNone)
      return false;
    slot = {face.interfaceId, face.place};
  }
  return true;
}

const Face* FaceTable::Find(const char* iInterfaceName) const
{
  for (const Face& face : faces)
    if (iInterfaceName != nullptr && face.interfaceName == iInterfaceName)
      return &face;
  return nullptr;
}

LateType* LateType::Find(const char* iName)
{
  if (iName == nullptr)
    return nullptr;
  const auto found = AllTypes().find(std::string_view(iName));
  return found == AllTypes().end() ? nullptr : found->second.get();
}

HRESULT LateType::Declare(const char* iName, const char* iBase)
{
  if (iName == nullptr)
    return E_INVALIDARG;
  LateType* const base = Find(iBase);
  if (iBase != nullptr && base == nullptr)
    return E_INVALIDARG;
  if (const LateType* const known = Find(iName))
    return known->_Base == base ? S_FALSE : E_INVALIDARG;
  AllTypes().emplace(iName, std::unique_ptr<LateType>(new LateType(iName, base)));
  return S_OK;
}

bool LateType::IsOrDerivesFrom(const char* iName) const
{
  for (const LateType* type = this; type != nullptr && iName != nullptr; type = type->_Base)
    if (type->_Name == iName)
      return true;
  return false;
}

VOXMetaClass* LateType::Meta() const
{
  if (_Meta == nullptr)
    _Meta = VOXComponentRuntime::Describe(_Name.c_str(), VOXTypeImplementation,
                                          _Base != nullptr ? _Base->Meta() : VOXBaseUnknown::MetaObject(),
                                          _Name.c_str(), "vox_host", 0);
  return _Meta;
}

std::vector<Face> LateType::CollectFaces() const
{
  std::vector<Face> faces = _Base != nullptr ? _Base->CollectFaces() : std::vector<Face>();
  for (const Face& own : _Declared)
  {
    Face* inherited = nullptr;
    for (Face& face : faces)
      if (face.interfaceId == own.interfaceId)
        inherited = &face;
    if (inherited != nullptr)
      *inherited = own;
    else
      faces.push_back(own);
  }
  return faces;
}

const FaceTable* LateType::Faces() const
{
  if (_BuiltAt != g_generation)
  {
    _Tables.push_back(FaceTable::Build(CollectFaces()));
    _BuiltAt = g_generation;
  }
  return _Tables.back().get();
}

HRESULT LateType::DeclareFace(const IID& iInterface, const char* iInterfaceName, VOXExtensionFactory iFactory)
{
  ++g_generation;
  Face declared{iInterface, iInterfaceName, iFactory, -1};
  for (Face& face : _Declared)
  {
    if (face.interfaceId != iInterface)
      continue;
    face = declared;
    return S_FALSE;
  }
  _Declared.push_back(declared);
  return S_OK;
}

HRESULT DeclareOwnInterface(const char* iLateType, const IID& iInterface, const char* iInterfaceName)
{
  LateType* const type = LateType::Find(iLateType);
  if (type == nullptr || iInterfaceName == nullptr)
    return E_INVALIDARG;
  return type->DeclareFace(iInterface, iInterfaceName, nullptr);
}

bool IsLateType(const char* iLateType)
{
  return LateType::Find(iLateType) != nullptr;
}

bool LateTypeDerivesFrom(const char* iLateType, const char* iBase)
{
  const LateType* const type = LateType::Find(iLateType);
  return type != nullptr && type->IsOrDerivesFrom(iBase);
}

} // namespace voxhost

HRESULT VOXDeclareLateType(const char* iLateType, const char* iBaseType)
{
  return voxhost::LateType::Declare(iLateType, iBaseType);
}

HRESULT VOXDeclareExtension(const char* iLateType, const IID& iInterface, const char* iInterfaceName,
                            VOXExtensionFactory iFactory)
{
  voxhost::LateType* const type = voxhost::LateType::Find(iLateType);
  if (type == nullptr || iInterfaceName == nullptr || iFactory == nullptr)
    return E_INVALIDARG;
  return type->DeclareFace(iInterface, iInterfaceName, iFactory);
}
