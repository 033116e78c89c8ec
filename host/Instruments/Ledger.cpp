// SPDX-License-Identifier: MIT
#include "host/Instruments/Ledger.h"

#include <cstdint>
#include <cstdlib>

namespace voxhost
{
namespace
{

// The arrays that are out. Plain C memory: a test's operator delete[] calls in here. Addresses are kept inverted, so that
// a leak checker does not take them for references.
struct ArraysOut
{
  std::uintptr_t* arrays = nullptr;
  std::size_t size = 0;
  std::size_t capacity = 0;

  void Add(const void* iArray)
  {
    if (size == capacity)
    {
      capacity = capacity == 0 ? 64 : 2 * capacity;
      arrays = static_cast<std::uintptr_t*>(std::realloc(arrays, capacity * sizeof(std::uintptr_t)));
    }
    arrays[size++] = Inverted(iArray);
  }

  bool Remove(const void* iArray)
  {
    for (std::size_t i = size; i-- > 0;)
    {
      if (arrays[i] != Inverted(iArray))
        continue;
      arrays[i] = arrays[--size];
      return true;
    }
    return false;
  }

private:
  static std::uintptr_t Inverted(const void* iArray) { return ~reinterpret_cast<std::uintptr_t>(iArray); }
};

ArraysOut g_arraysOut;

void Append(std::string& ioText, const char* iName, std::int64_t iDifference)
{
  if (iDifference == 0)
    return;
  if (!ioText.empty())
    ioText += ", ";
  ioText += iName;
  ioText += iDifference > 0 ? " +" : " ";
  ioText += std::to_string(iDifference);
}

} // namespace

bool Ledger::_On = false;
Ledger::Balance Ledger::_Balance;

Ledger::Balance Ledger::Balance::operator-(const Balance& iOther) const
{
  return {components - iOther.components, extensions - iOther.extensions, collectors - iOther.collectors,
          archivers - iOther.archivers,   userLists - iOther.userLists,   references - iOther.references,
          arraysOut - iOther.arraysOut};
}

std::string Ledger::Balance::Describe() const
{
  std::string text;
  Append(text, "components", components);
  Append(text, "extensions", extensions);
  Append(text, "collectors", collectors);
  Append(text, "archivers", archivers);
  Append(text, "user lists", userLists);
  Append(text, "references", references);
  Append(text, "arrays out", arraysOut);
  return text.empty() ? "balanced" : text;
}

void Ledger::TurnOn()
{
  _Balance.references = 0;
  _Balance.arraysOut = 0;
  g_arraysOut.size = 0;
  _On = true;
}

void Ledger::TurnOff()
{
  _On = false;
}

Ledger::Balance Ledger::Read()
{
  return _Balance;
}

void Ledger::NoteArray(const void* iArray)
{
  g_arraysOut.Add(iArray);
  ++_Balance.arraysOut;
}

void Ledger::ArrayFreed(const void* iArray) noexcept
{
  if (_On && iArray != nullptr && g_arraysOut.Remove(iArray))
    --_Balance.arraysOut;
}

} // namespace voxhost
