// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace voxtest
{

//! The global operators new and delete of a test program, which replace those of the language's library.
//!
//! - operator delete[] tells the ledger of the reference host about every array, so that arrays handed out are settled.
//! - `new (std::nothrow)` can be counted and told to fail: that is how contracts and adaptors ask for memory that may be
//!   missing. The throwing form is never failed.
//! - A block is overwritten when it is freed, so that whoever still reads it gets nonsense in every build.
//! - One thread only, like everything the tests run on.
class Memory
{
public:
  //! Counts allocations with std::nothrow from here on, failing none.
  static void Count();

  //! Counts from here on and fails the iCall-th (from 1); with iAndLater all that follow too.
  static void FailCall(int iCall, bool iAndLater);

  //! Fails every allocation with std::nothrow of exactly that many bytes.
  static void FailSize(std::size_t iSize);

  //! Lets everything through again.
  static void Disarm();

  //! Allocations with std::nothrow since the last Count, FailCall or FailSize.
  static int Calls();
};

//! Calls a function whenever the ledger's host gets an array back, that is inside operator delete[]: a way to look, or to
//! call back, into an operation that is just freeing what it was given. One at a time; not called while it runs.
class WhenArraysReturn
{
public:
  explicit WhenArraysReturn(std::function<void()> iCallback);
  ~WhenArraysReturn();
  WhenArraysReturn(const WhenArraysReturn&) = delete;
  WhenArraysReturn& operator=(const WhenArraysReturn&) = delete;
};

//! Watches the blocks that are allocated while it lives. One at a time.
class MemoryWatch
{
public:
  struct Block
  {
    void* address;
    std::size_t size;
  };

  MemoryWatch();
  ~MemoryWatch();
  MemoryWatch(const MemoryWatch&) = delete;
  MemoryWatch& operator=(const MemoryWatch&) = delete;

  //! Stops watching and tells what was allocated meanwhile and not freed, oldest first.
  std::vector<Block> StillLive();
};

//! Blocks that this scope allocates are no leaks for the leak checker: for code that a throwing fatal-error handler
//! leaves half-way, which in a real host ends the process.
class LeaksAllowed
{
public:
  LeaksAllowed();
  ~LeaksAllowed();
  LeaksAllowed(const LeaksAllowed&) = delete;
  LeaksAllowed& operator=(const LeaksAllowed&) = delete;
};

} // namespace voxtest
