// SPDX-License-Identifier: MIT
#include "tests/support/Bench.h"

#include "AnalysisInterfaces/VOXISamAnalysisAxis.h"
#include "host/Instruments/Ledger.h"
#include "tests/support/ScriptedInterfaces.h"
#include "tests/support/VirtualTable.h"

#include <gtest/gtest.h>

using namespace voxtest;

TEST(Bench, ReachesAScriptedInterfaceByAQuery)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<ScriptedSpecObject>();
  ScriptedSpecObject::ScriptOf(feature).upToDate = 0;
  const VOXISpecObject_var spFeature(feature);
  ASSERT_FALSE(!spFeature);
  EXPECT_EQ(spFeature->IsUpToDate(VOXIDomain_var()), 0);
}

TEST(Bench, GivesAComponentOnlyTheInterfacesThatWerePicked)
{
  Bench bench;
  const VOXISpecObject_var spFeature(bench.Component<ScriptedVisuGrouper>());
  EXPECT_TRUE(!spFeature);
}

TEST(Bench, KeepsAScriptPerComponent)
{
  Bench bench;
  VOXBaseUnknown* const first = bench.Component<ScriptedSpecObject>();
  VOXBaseUnknown* const second = bench.Component<ScriptedSpecObject>();
  ScriptedSpecObject::ScriptOf(first).name = "first";
  ScriptedSpecObject::ScriptOf(second).name = "second";
  EXPECT_TRUE(VOXISpecObject_var(first)->GetName() == "first");
  EXPECT_TRUE(VOXISpecObject_var(second)->GetName() == "second");
}

TEST(Bench, NamesALateTypeWhenItsNameMatters)
{
  Bench bench;
  EXPECT_STREQ(bench.ComponentNamed<>("BenchTestLateType")->IsA(), "BenchTestLateType");
}

TEST(Bench, TellsTheReferencesAboveItsOwn)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<ScriptedSpecObject>();
  EXPECT_EQ(Bench::References(feature), 0);
  const VOXISpecObject_var spFeature(feature);
  EXPECT_EQ(Bench::References(feature), 1);
}

TEST(Bench, GivesEverythingBack)
{
  voxhost::Ledger::TurnOn();
  const voxhost::Ledger::Balance before = voxhost::Ledger::Read();
  {
    Bench bench;
    const VOXISpecObject_var spFeature(bench.Component<ScriptedSpecObject, ScriptedVisuGrouper>());
  }
  EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced");
  voxhost::Ledger::TurnOff();
}

TEST(Bench, LetsAScriptedOperationFailAtItsFaultPoint)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<ScriptedExplicit>();
  const VOXISamExplicit_var spExplicit(feature);
  voxhost::Faults::FailOperation("VOXISamExplicit::ListTags", 1, false);
  VOXRawCollint tags;
  EXPECT_EQ(spExplicit->ListTags(tags), E_FAIL);
  voxhost::Faults::Disarm();
  EXPECT_EQ(spExplicit->ListTags(tags), S_OK);
}

TEST(Bench, RecordsTheReferencesOfAScriptedInterface)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<ScriptedVisuGrouper>();
  CallLog log(CallLog::References::Recorded);
  {
    const VOXHandle<VOXIMSHVisuGrouper> spGrouper(feature);
  }
  EXPECT_EQ(log.Only({"AddRef", "Release"}), (Calls{"Release VOXIMSHVisuGrouper"}));
}

namespace
{

class Axis : public VOXISamAnalysisAxis
{
public:
  HRESULT GetMathAxis(VOXMathAxis&) const override { return S_FALSE; }
  HRESULT GetMKSMathAxis(VOXMathAxis&) const override { return E_NOTIMPL; }
};

} // namespace

TEST(VirtualTable, TellsThePlaceOfAnOperation)
{
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisAxis::GetMathAxis), 1);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisAxis::GetMKSMathAxis), 2);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::ChangeComponentState), 0);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::GetMetaObject), -7);
}

TEST(VirtualTable, CallsAnOperationThroughItsPlace)
{
  VOXISamAnalysisAxis* const axis = new Axis;
  VOXMathAxis* const none = nullptr;
  EXPECT_EQ((CallOwn<HRESULT, VOXMathAxis*>(axis, 1, none)), S_FALSE);
  EXPECT_EQ((CallOwn<HRESULT, VOXMathAxis*>(axis, 2, none)), E_NOTIMPL);
  axis->Release();
}
