// SPDX-License-Identifier: MIT
#include "VOXESamEnumManager.h"

#include "host/ComponentRuntime/MetaClasses.h"
#include "host/Instruments/Faults.h"
#include "tests/adaptors/Face.h"
#include "tests/adaptors/SelectionWorld.h"
#include "tests/support/Memory.h"
#include "tests/support/VirtualTable.h"

#include <cstdlib>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;

static_assert(sizeof(VOXESamEnumManager) == 40, "the base, and one byte behind it");
static_assert(std::is_base_of_v<VOXBaseUnknown, VOXESamEnumManager>);
static_assert(!std::is_base_of_v<VOXISamSelectionList, VOXESamEnumManager>, "reached through a tie");
static_assert(!std::is_copy_constructible_v<VOXESamEnumManager>);

namespace
{

// Runs a check in a process in which nobody has asked for the description yet.
void InAFreshProcess(bool (*iCheck)())
{
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(std::_Exit(iCheck() ? 0 : 1), testing::ExitedWithCode(0), "");
}

bool AsksOnce()
{
  VOXBaseUnknown::MetaObject();
  const CallLog log;
  const VOXMetaClass* const first = VOXESamEnumManager::MetaObject();
  const int afterFirst = log.Count("fct_RetrieveMetaObject");
  const VOXMetaClass* const second = VOXESamEnumManager::MetaObject();
  VOXESamEnumManager::ClassId();
  VOXESamEnumManager::ClassName();
  return first != nullptr && first == second && afterFirst == 1 && log.Count("fct_RetrieveMetaObject") == 1;
}

bool IsNotRegisteredBeforeItIsAskedFor()
{
  VOXBaseUnknown* const made = VOXESamEnumManager::CreateItself();
  const bool registered = voxhost::FindMetaClass("VOXESamEnumManager") != nullptr;
  made->IsA();
  return !registered && voxhost::FindMetaClass("VOXESamEnumManager") != nullptr;
}

bool SurvivesAFailedRegistrationAndTriesAgain()
{
  Faults::FailOperation("fct_RetrieveMetaObject", 1, true);
  VOXBaseUnknown* const made = VOXESamEnumManager::CreateItself();
  const bool failed = VOXESamEnumManager::MetaObject() == nullptr && made->GetMetaObject() == nullptr;
  const bool asTheBase = VOXESamEnumManager::ClassId() == IID_VOXBaseUnknown &&
                         std::string(VOXESamEnumManager::ClassName()) == "VOXBaseUnknown" &&
                         std::string(made->IsA()) == "VOXBaseUnknown";
  const bool noKind = made->IsAKindOf("VOXESamEnumManager") == 0 && made->IsAKindOf("VOXBaseUnknown") == 0;
  Faults::Disarm();
  return failed && asTheBase && noKind && std::string(made->IsA()) == "VOXESamEnumManager" &&
         made->IsAKindOf("VOXBaseUnknown") == 1;
}

} // namespace

TEST(VOXESamEnumManagerMetaObject, TheRuntimeIsAskedOnceHoweverOftenTheDescriptionIs)
{
  InAFreshProcess(&AsksOnce);
}

TEST(VOXESamEnumManagerMetaObject, NothingIsRegisteredBeforeTheDescriptionIsAskedFor)
{
  InAFreshProcess(&IsNotRegisteredBeforeItIsAskedFor);
}

TEST(VOXESamEnumManagerMetaObject, AFailedRegistrationIsSurvivedAndTriedAgain)
{
  InAFreshProcess(&SurvivesAFailedRegistrationAndTriesAgain);
}

TEST(VOXESamEnumManagerMetaObject, TheClassIsRegisteredAsAnExtensionOfListManagers)
{
  VOXESamEnumManager::MetaObject();
  const voxhost::MetaClassDescription* const described = voxhost::FindMetaClass("VOXESamEnumManager");
  ASSERT_NE(described, nullptr);
  EXPECT_EQ(described->className, "VOXESamEnumManager");
  EXPECT_EQ(described->kind, VOXTypeDataExtension);
  EXPECT_EQ(described->baseName, "VOXBaseUnknown");
  EXPECT_EQ(described->lateType, "SAMListManager");
  EXPECT_EQ(described->library, "VOXAnalysisResources");
  EXPECT_EQ(described->objectSize, 40);
}

TEST(VOXESamEnumManagerMetaObject, ClassAndObjectsAnswerFromOneDescription)
{
  VOXBaseUnknown* const made = VOXESamEnumManager::CreateItself();
  const VOXMetaClass* const described = VOXESamEnumManager::MetaObject();
  EXPECT_EQ(made->GetMetaObject(), described);
  EXPECT_EQ(&VOXESamEnumManager::ClassId(), &described->GetClassId());
  EXPECT_FALSE(VOXESamEnumManager::ClassId() == IID_VOXBaseUnknown);
  EXPECT_STREQ(VOXESamEnumManager::ClassName(), "VOXESamEnumManager");
  EXPECT_STREQ(made->IsA(), "VOXESamEnumManager");
  EXPECT_EQ(made->Release(), 0u);
}

TEST(VOXESamEnumManagerMetaObject, TheClassTestKnowsTheClassAndItsBase)
{
  VOXBaseUnknown* const made = VOXESamEnumManager::CreateItself();
  EXPECT_EQ(made->IsAKindOf("VOXESamEnumManager"), 1);
  EXPECT_EQ(made->IsAKindOf("VOXBaseUnknown"), 1);
  EXPECT_EQ(made->IsAKindOf("SAMListManager"), 0) << "a late type is no class";
  EXPECT_EQ(made->IsAKindOf(nullptr), 0);
  made->Release();
}

TEST(VOXESamEnumManagerMetaObject, CreatingOneAsksForExactlyFortyBytes)
{
  MemoryWatch watch;
  VOXBaseUnknown* const made = VOXESamEnumManager::CreateItself();
  const std::vector<MemoryWatch::Block> live = watch.StillLive();
  ASSERT_EQ(live.size(), 1u);
  EXPECT_EQ(live[0].size, 40u);
  EXPECT_EQ(made->AddRef(), 2u) << "born with one reference";
  made->Release();
  made->Release();
}

TEST(VOXESamEnumManagerMetaObject, NoneIsCreatedWithoutMemory)
{
  Memory::FailSize(40);
  EXPECT_EQ(VOXESamEnumManager::CreateItself(), nullptr);
  Memory::Disarm();
  Faults::FailOperation("VOXBaseUnknown::operator new", 1, false);
  EXPECT_EQ(VOXESamEnumManager::CreateItself(), nullptr);
  Faults::Disarm();
}

TEST(VOXESamEnumManagerMetaObject, OneThatCreatedItselfDoesTheWorkOfItsFirstSelection)
{
  SelectionWorld world;
  VOXBaseUnknown* const made = VOXESamEnumManager::CreateItself();
  made->SetImpl(world.component);
  const CallLog log;
  EXPECT_EQ((CallOwn<HRESULT, int>(made, 4, 2)), S_OK) << "the entry that is selected already";
  EXPECT_EQ(log.Count("VOXISamBasicComponent::ListSubComponents"), 1);
  EXPECT_EQ((CallOwn<HRESULT, int>(made, 4, 2)), S_OK);
  EXPECT_EQ(log.Count("VOXISamBasicComponent::ListSubComponents"), 1);
  made->SetImpl(nullptr);
  made->Release();
}

TEST(VOXESamEnumManagerMetaObject, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXESamEnumManager::GetMode), 1);
  EXPECT_EQ(OwnPlace(&VOXESamEnumManager::GetList), 2);
  EXPECT_EQ(OwnPlace(&VOXESamEnumManager::GetSelected), 3);
  EXPECT_EQ(OwnPlace(&VOXESamEnumManager::SetSelected), 4);
  EXPECT_EQ(OwnPlace(&VOXESamEnumManager::GetResult), 5);
}

TEST(VOXESamEnumManagerMetaObject, TheManagerItselfNeedsNoSubComponents)
{
  VOXBaseUnknown* const made = VOXESamEnumManager::CreateItself();
  VOXListValVOXUnicodeString types;
  VOXListValVOXUnicodeString seconds;
  VOXListValVOXBaseUnknown_var kinds;
  types.Append("mine");
  const CallLog log;
  EXPECT_EQ((CallOwn<HRESULT, const VOXUnicodeString&, VOXListValVOXUnicodeString&, VOXListValVOXUnicodeString&,
                     VOXListValVOXBaseUnknown_var&>(made, 5, VOXUnicodeString("Shell"), types, seconds, kinds)),
            S_OK);
  EXPECT_EQ(types.Size() + seconds.Size() + kinds.Size(), 1) << "nothing is done";
  EXPECT_EQ(log.All(), Calls{});
  made->Release();
}
