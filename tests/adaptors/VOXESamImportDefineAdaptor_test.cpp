// SPDX-License-Identifier: MIT
#include "VOXESamImportDefineAdaptor.h"

#include "tests/adaptors/Face.h"
#include "tests/support/CallLog.h"
#include "tests/support/Memory.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using ImportDefine = Face<VOXESamImportDefineAdaptor, VOXISamImportDefine>;

} // namespace

TEST(VOXESamImportDefineAdaptor, AcceptsImportsAndSetsByDoingNothing)
{
  AdaptorBench<ImportDefine> import;
  EXPECT_EQ(import->Accept(), S_OK);
  EXPECT_EQ(import->Import(nullptr, Poison<VOXDocument>()), S_OK);
  EXPECT_EQ(import->SetValues(nullptr), S_OK);
  EXPECT_EQ(import->SetValues(Poison<SAFEARRAY>()), S_OK);
}

TEST(VOXESamImportDefineAdaptor, LeavesTheFileTypesAsTheyAre)
{
  AdaptorBench<ImportDefine> import;
  VOXListValVOXString types;
  types.Append("mine");
  EXPECT_EQ(import->GetFileTypes(types), S_OK);
  ASSERT_EQ(types.Size(), 1);
  EXPECT_TRUE(types[1] == "mine");
}

TEST(VOXESamImportDefineAdaptor, LeavesTheComment)
{
  AdaptorBench<ImportDefine> import;
  VOXUnicodeString comment("as before");
  EXPECT_EQ(import->GetCommentForType("inp", comment), S_OK);
  EXPECT_TRUE(comment == "as before");
}

TEST(VOXESamImportDefineAdaptor, HasNoFrame)
{
  AdaptorBench<ImportDefine> import;
  EXPECT_EQ(import->GetUserFrame(Poison<VOXDialog>(), Poison<VOXDocument>()), nullptr);
}

// Kept: the automation value that the array is made from is never freed. The test frees it, so that it is the only one.
TEST(VOXESamImportDefineAdaptor, GivesOneShortZeroAndKeepsTheValueItWasMadeFrom)
{
  AdaptorBench<ImportDefine> import;
  SAFEARRAY* values = Poison<SAFEARRAY>();
  MemoryWatch watch;
  EXPECT_EQ(import->GetValues(values), S_OK);
  ASSERT_NE(values, nullptr);
  EXPECT_EQ(values->count, 1u);
  EXPECT_EQ(values->values[0].vt, VT_I2);
  EXPECT_EQ(values->values[0].iVal, 0);
  DestroySafeArray(values);
  const std::vector<MemoryWatch::Block> kept = watch.StillLive();
  ASSERT_EQ(kept.size(), 1u);
  EXPECT_EQ(kept[0].size, sizeof(VARIANT));
  ::operator delete(kept[0].address);
}

TEST(VOXESamImportDefineAdaptor, ConvertsFirstAndBuildsTheArrayThen)
{
  AdaptorBench<ImportDefine> import;
  SAFEARRAY* values = nullptr;
  CallLog log;
  MemoryWatch watch;
  import->GetValues(values);
  DestroySafeArray(values);
  const std::vector<MemoryWatch::Block> live = watch.StillLive();
  EXPECT_EQ(log.All(), (Calls{"ConvertAnyToVariant", "BuildFromVariantArray"}));
  const auto variant = std::find_if(live.begin(), live.end(), [](const auto& b) { return b.size == sizeof(VARIANT); });
  ASSERT_NE(variant, live.end());
  ::operator delete(variant->address);
}

TEST(VOXESamImportDefineAdaptor, AnswersOkEvenWhenTheHostFails)
{
  AdaptorBench<ImportDefine> import;
  Torture("GetValues")
      .MayAnswer({S_OK})
      .ReportsNothing()
      .Run(
          [&](TortureRun& ioRun)
          {
            SAFEARRAY* values = Poison<SAFEARRAY>();
            ioRun.Call([&] { return import->GetValues(values); });
            EXPECT_NE(values, Poison<SAFEARRAY>());
            DestroySafeArray(values);
          });
}

TEST(VOXESamImportDefineAdaptor, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXESamImportDefineAdaptor::Accept), 1);
  EXPECT_EQ(OwnPlace(&VOXESamImportDefineAdaptor::GetCommentForType), 2);
  EXPECT_EQ(OwnPlace(&VOXESamImportDefineAdaptor::GetFileTypes), 3);
  EXPECT_EQ(OwnPlace(&VOXESamImportDefineAdaptor::GetUserFrame), 4);
  EXPECT_EQ(OwnPlace(&VOXESamImportDefineAdaptor::GetValues), 5);
  EXPECT_EQ(OwnPlace(&VOXESamImportDefineAdaptor::Import), 6);
  EXPECT_EQ(OwnPlace(&VOXESamImportDefineAdaptor::SetValues), 7);
  AdaptorBench<ImportDefine> import;
  VOXUnicodeString comment("as before");
  EXPECT_EQ((CallOwn<HRESULT, VOXString, VOXUnicodeString&>(import.Get(), 2, VOXString("inp"), comment)), S_OK);
  EXPECT_EQ((CallOwn<VOXDlgFrame*, VOXDialog*, VOXDocument*>(import.Get(), 4, nullptr, nullptr)), nullptr);
  EXPECT_TRUE(comment == "as before");
}
