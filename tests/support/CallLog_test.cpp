// SPDX-License-Identifier: MIT
#include "tests/support/CallLog.h"

#include "ComponentRuntime/VOXBaseUnknown.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;

TEST(CallLog, KeepsHostCallsAndScriptedCallsInOneOrder)
{
  VOXBaseUnknown object;
  object.IsA(); // describes the class, once per process
  CallLog log;
  object.IsAKindOf("VOXBaseUnknown");
  CallLog::Enter("VOXIThing::Do", 3, "text");
  CallLog::Note("own line");
  EXPECT_EQ(log.All(), (Calls{"VOXBaseUnknown::IsAKindOf", "VOXIThing::Do(3, text)", "own line"}));
}

TEST(CallLog, TheArgumentsOfOneCallDoNotStickToTheNext)
{
  CallLog log;
  CallLog::Enter("VOXIThing::Do", 3);
  Faults::Enter("VOXIThing::Undo");
  EXPECT_EQ(log.All(), (Calls{"VOXIThing::Do(3)", "VOXIThing::Undo"}));
}

TEST(CallLog, PicksCallsByTheirBeginning)
{
  CallLog log;
  CallLog::Note("A::One");
  CallLog::Note("B::Two");
  CallLog::Note("A::Three");
  EXPECT_EQ(log.Only({"A::"}), (Calls{"A::One", "A::Three"}));
  EXPECT_EQ(log.Without({"A::"}), (Calls{"B::Two"}));
  EXPECT_EQ(log.Count("A::"), 2);
}

TEST(CallLog, LeavesFaultsAtWork)
{
  CallLog log;
  Faults::FailOperation("VOXIThing::Do", 2, false);
  EXPECT_FALSE(CallLog::Enter("VOXIThing::Do"));
  EXPECT_TRUE(CallLog::Enter("VOXIThing::Do"));
  Faults::Disarm();
  EXPECT_FALSE(CallLog::Enter("VOXIThing::Do"));
  EXPECT_EQ(log.All().size(), 3u);
}

TEST(CallLog, RecordsNothingOnceItIsGone)
{
  {
    CallLog log;
  }
  CallLog::Note("A::One");
  CallLog::Enter("A::Two");
  CallLog log;
  EXPECT_TRUE(log.All().empty());
}

TEST(CallLog, RecordsReferencesOnlyWhenAsked)
{
  {
    CallLog log;
    CallLog::NoteReference("AddRef", "VOXIThing");
    EXPECT_TRUE(log.All().empty());
  }
  CallLog log(CallLog::References::Recorded);
  CallLog::NoteReference("AddRef", "VOXIThing");
  EXPECT_EQ(log.All(), (Calls{"AddRef VOXIThing"}));
}
