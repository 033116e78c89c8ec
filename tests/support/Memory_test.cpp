// SPDX-License-Identifier: MIT
#include "tests/support/Memory.h"

#include "ComponentRuntime/VOXBaseUnknown.h"
#include "host/Instruments/Ledger.h"

#include <memory>
#include <new>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Ledger;

namespace
{

std::unique_ptr<int> NothrowInt()
{
  return std::unique_ptr<int>(new (std::nothrow) int(1));
}

} // namespace

TEST(Memory, CountsAllocationsThatMayAnswerNull)
{
  Memory::Count();
  NothrowInt();
  delete new int(2); // the throwing form does not count
  NothrowInt();
  Memory::Disarm();
  EXPECT_EQ(Memory::Calls(), 2);
}

TEST(Memory, FailsOneAllocationOnly)
{
  Memory::FailCall(2, false);
  EXPECT_NE(NothrowInt(), nullptr);
  EXPECT_EQ(NothrowInt(), nullptr);
  EXPECT_NE(NothrowInt(), nullptr);
  Memory::Disarm();
}

TEST(Memory, FailsOneAllocationAndAllThatFollow)
{
  Memory::FailCall(1, true);
  EXPECT_EQ(NothrowInt(), nullptr);
  EXPECT_EQ(NothrowInt(), nullptr);
  Memory::Disarm();
  EXPECT_NE(NothrowInt(), nullptr);
}

TEST(Memory, FailsAllocationsOfOneSize)
{
  struct Odd
  {
    char bytes[57];
  };
  Memory::FailSize(sizeof(Odd));
  EXPECT_NE(NothrowInt(), nullptr);
  EXPECT_EQ(new (std::nothrow) Odd, nullptr);
  Memory::Disarm();
}

TEST(Memory, ReachesTheAllocationsOfTheHost)
{
  Memory::FailCall(1, false);
  EXPECT_EQ(VOXBaseUnknown::operator new(32), nullptr);
  Memory::Disarm();
}

TEST(Memory, TellsTheLedgerThatAnArrayWasFreed)
{
  Ledger::TurnOn();
  const Ledger::Balance before = Ledger::Read();
  const int* const array = Ledger::HandOut(new int[3]);
  EXPECT_EQ((Ledger::Read() - before).arraysOut, 1);
  delete[] array;
  EXPECT_EQ((Ledger::Read() - before).arraysOut, 0);
  Ledger::TurnOff();
}

TEST(Memory, CallsBackWhenAnArrayOfTheHostReturns)
{
  Ledger::TurnOn();
  int returned = 0;
  {
    const WhenArraysReturn count([&] { ++returned; });
    delete[] new int[3]; // not the host's
    EXPECT_EQ(returned, 0);
    delete[] Ledger::HandOut(new int[3]);
    EXPECT_EQ(returned, 1);
  }
  delete[] Ledger::HandOut(new int[3]);
  EXPECT_EQ(returned, 1);
  Ledger::TurnOff();
}

TEST(MemoryWatch, TellsWhatIsStillThere)
{
  MemoryWatch watch;
  int* const freed = new int(1);
  char* const kept = new char[11];
  delete freed;
  const std::vector<MemoryWatch::Block> live = watch.StillLive();
  ASSERT_EQ(live.size(), 1u);
  EXPECT_EQ(live[0].address, kept);
  EXPECT_EQ(live[0].size, 11u);
  delete[] kept;
}
