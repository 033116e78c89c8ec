// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXMetaClass.h"
#include "host/ComponentRuntime/Component.h"

#include <cstring>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace voxhost
{

//! One interface of a late type and who carries it.
struct Face
{
  IID interfaceId{};
  std::string interfaceName;
  VOXExtensionFactory factory = nullptr; // null: the implementation object itself carries the interface
  int place = -1;                        // where the extension object stands; -1: the implementation object itself
};

//! All faces of a late type, inherited ones included, found by interface identifier with one comparison: a table
//! without collisions, so that a miss costs what a hit costs whatever the number of interfaces.
struct FaceTable
{
  static constexpr int kNone = -2; //!< no such face
  static constexpr int kRoot = -1; //!< the implementation object itself

  std::vector<Face> faces;
  int extensions = 0; // number of places

  static std::unique_ptr<FaceTable> Build(std::vector<Face> iFaces);

  //! Where the object that carries an interface stands: its place among the extensions, kRoot or kNone.
  int PlaceOf(const IID& iInterface) const
  {
    const Slot& slot = _Slots[(iInterface.Data1 * _Multiplier) >> _Shift];
    return std::memcmp(&slot.interfaceId, &iInterface, sizeof(IID)) == 0 ? slot.place : kNone;
  }

  const Face* Find(const char* iInterfaceName) const;

private:
  struct Slot
  {
    IID interfaceId{};
    int place = kNone;
  };

  bool Fill(std::uint32_t iMultiplier);

  std::vector<Slot> _Slots; // a power of two of them
  std::uint32_t _Multiplier = 1;
  int _Shift = 0;
};

//! A late type: a name, a base, and who carries which interface.
class LateType
{
public:
  static LateType* Find(const char* iName);
  static HRESULT Declare(const char* iName, const char* iBase);

  const std::string& Name() const { return _Name; }
  const LateType* Base() const { return _Base; }
  bool IsOrDerivesFrom(const char* iName) const;
  VOXMetaClass* Meta() const;

  //! The faces of components that are made now.
  const FaceTable* Faces() const;
  HRESULT DeclareFace(const IID& iInterface, const char* iInterfaceName, VOXExtensionFactory iFactory);

private:
  LateType(std::string iName, LateType* iBase) : _Name(std::move(iName)), _Base(iBase) {}
  std::vector<Face> CollectFaces() const;

  std::string _Name;
  LateType* _Base;
  std::vector<Face> _Declared;
  mutable std::uint64_t _BuiltAt = 0; // generation of all declarations when the newest table was built
  mutable std::deque<std::unique_ptr<FaceTable>> _Tables; // newest last; components keep the one they were made with
  mutable VOXMetaClass* _Meta = nullptr;
};

} // namespace voxhost
