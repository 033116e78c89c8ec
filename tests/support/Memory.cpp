// SPDX-License-Identifier: MIT
#include "tests/support/Memory.h"

#include "host/Instruments/Ledger.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

#include <malloc.h>

extern "C"
{
  // Of the leak checker, where there is one.
  void __lsan_disable() __attribute__((weak));
  void __lsan_enable() __attribute__((weak));
}

namespace
{

constexpr int kFreed = 0xdd;

struct NothrowPlan
{
  bool armed = false;
  int failAt = 0; // 0: none fails
  bool andLater = false;
  std::size_t failSize = 0; // 0: the size does not matter
  int calls = 0;

  bool Fails(std::size_t iSize)
  {
    if (!armed)
      return false;
    ++calls;
    if (failSize != 0)
      return iSize == failSize;
    return failAt != 0 && (calls == failAt || (andLater && calls > failAt));
  }
};

// Plain C memory: the operators below call in here.
struct WatchedBlocks
{
  voxtest::MemoryWatch::Block* blocks = nullptr;
  std::size_t size = 0;
  std::size_t capacity = 0;
  bool on = false;

  void Add(void* iAddress, std::size_t iSize)
  {
    if (size == capacity)
    {
      capacity = capacity == 0 ? 64 : 2 * capacity;
      blocks = static_cast<voxtest::MemoryWatch::Block*>(std::realloc(blocks, capacity * sizeof(*blocks)));
    }
    blocks[size++] = {iAddress, iSize};
  }

  void Remove(const void* iAddress)
  {
    std::size_t found = size;
    while (found > 0 && blocks[found - 1].address != iAddress)
      --found;
    if (found == 0)
      return;
    for (std::size_t i = found; i < size; ++i)
      blocks[i - 1] = blocks[i];
    --size;
  }
};

NothrowPlan g_plan;
WatchedBlocks g_watched;

void* Allocate(std::size_t iSize) noexcept
{
  void* const block = std::malloc(iSize == 0 ? 1 : iSize);
  if (g_watched.on && block != nullptr)
    g_watched.Add(block, iSize);
  return block;
}

void* AllocateOrThrow(std::size_t iSize)
{
  if (void* const block = Allocate(iSize))
    return block;
  throw std::bad_alloc();
}

// Fills a block, the sanitizers' own mark in front of an array included.
__attribute__((no_sanitize("address"))) void Fill(volatile unsigned char* oBlock, std::size_t iSize) noexcept
{
  for (std::size_t i = 0; i < iSize; ++i)
    oBlock[i] = kFreed;
}

void Free(void* iBlock) noexcept
{
  if (g_watched.on)
    g_watched.Remove(iBlock);
  if (iBlock != nullptr)
    Fill(static_cast<unsigned char*>(iBlock),
         malloc_usable_size(iBlock)); // what is read after this is seen to be wrong
  std::free(iBlock);
}

std::function<void()> g_whenArraysReturn;

void FreeArray(void* iBlock) noexcept
{
  const auto before = voxhost::Ledger::Read().arraysOut;
  voxhost::Ledger::ArrayFreed(iBlock);
  Free(iBlock);
  if (!g_whenArraysReturn || voxhost::Ledger::Read().arraysOut == before)
    return;
  const std::function<void()> callback = std::exchange(g_whenArraysReturn, {});
  callback();
  g_whenArraysReturn = callback;
}

} // namespace

void* operator new(std::size_t iSize)
{
  return AllocateOrThrow(iSize);
}
void* operator new[](std::size_t iSize)
{
  return AllocateOrThrow(iSize);
}
void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept
{
  return g_plan.Fails(iSize) ? nullptr : Allocate(iSize);
}
void* operator new[](std::size_t iSize, const std::nothrow_t&) noexcept
{
  return g_plan.Fails(iSize) ? nullptr : Allocate(iSize);
}
void operator delete(void* iBlock) noexcept
{
  Free(iBlock);
}
void operator delete(void* iBlock, std::size_t) noexcept
{
  Free(iBlock);
}
void operator delete(void* iBlock, const std::nothrow_t&) noexcept
{
  Free(iBlock);
}
void operator delete[](void* iBlock) noexcept
{
  FreeArray(iBlock);
}
void operator delete[](void* iBlock, std::size_t) noexcept
{
  FreeArray(iBlock);
}
void operator delete[](void* iBlock, const std::nothrow_t&) noexcept
{
  FreeArray(iBlock);
}

namespace voxtest
{

void Memory::Count()
{
  g_plan = NothrowPlan{};
  g_plan.armed = true;
}

void Memory::FailCall(int iCall, bool iAndLater)
{
  Count();
  g_plan.failAt = iCall;
  g_plan.andLater = iAndLater;
}

void Memory::FailSize(std::size_t iSize)
{
  Count();
  g_plan.failSize = iSize;
}

void Memory::Disarm()
{
  g_plan.armed = false;
}

int Memory::Calls()
{
  return g_plan.calls;
}

WhenArraysReturn::WhenArraysReturn(std::function<void()> iCallback)
{
  g_whenArraysReturn = std::move(iCallback);
}

WhenArraysReturn::~WhenArraysReturn()
{
  g_whenArraysReturn = {};
}

MemoryWatch::MemoryWatch()
{
  g_watched.size = 0;
  g_watched.on = true;
}

MemoryWatch::~MemoryWatch()
{
  g_watched.on = false;
}

std::vector<MemoryWatch::Block> MemoryWatch::StillLive()
{
  g_watched.on = false;
  return {g_watched.blocks, g_watched.blocks + g_watched.size};
}

LeaksAllowed::LeaksAllowed()
{
  if (__lsan_disable != nullptr)
    __lsan_disable();
}

LeaksAllowed::~LeaksAllowed()
{
  if (__lsan_enable != nullptr)
    __lsan_enable();
}

} // namespace voxtest
