// SPDX-License-Identifier: MIT
// Everything that an adaptor loses on purpose, a different number of times each. deliberate_leaks.supp has the reasons;
// check_leaks.py compares what a leak checker finds here with the lines that these tests print.
#include "VOXEAnalysisVisibility.h"
#include "VOXESamImportDefineAdaptor.h"
#include "tests/adaptors/AxisSetWorld.h"
#include "tests/adaptors/CharacWorld.h"
#include "tests/adaptors/ExpressionWorld.h"
#include "tests/adaptors/Face.h"
#include "tests/support/Memory.h"

#include <gtest/gtest.h>
#include <iostream>

using namespace voxtest;
using voxhost::Faults;

namespace
{

void Lose(const char* iOperation, int iTimes, const std::function<void()>& iOnce)
{
  for (int i = 0; i < iTimes; ++i)
    iOnce();
  std::cout << "deliberately lost: " << iOperation << ' ' << iTimes << '\n';
}

//! A feature type that is shown under a new list of nobody.
class ShownUnderNobody : public VOXEAnalysisVisibility
{
public:
  VOXListValVOXBaseUnknown_var* GetFatherForGraphAnd3D() override { return new VOXListValVOXBaseUnknown_var; }
};

class Lost final : public VOXBaseUnknown
{
};

class LosingFactory : public ScriptedModelFactory
{
public:
  VOXBaseUnknown* CreateEntity(const VOXUnicodeString&, const VOXUnicodeString&, VOXBaseUnknown*) override
  {
    return new Lost;
  }
};

void AssignOnce(CharacWorld& ioWorld, HRESULT iExpected)
{
  const VOXAnalysisCharacCollector& collector = ioWorld.NewCollector();
  EXPECT_EQ(ioWorld.Adaptor().AssignArchiverToCollector(&collector, CollectorArchiveOnDemand), iExpected);
}

//! Fails after the list was read, so that the operation has something to clean up.
HRESULT FailToRead(ExpressionWorld& ioWorld)
{
  ExpressionParts::Context(ioWorld.Adaptor()) = ioWorld.Context();
  ExpressionParts::GetList(ioWorld.Adaptor());
  ioWorld.Number() = 7; // more than there are
  VOXAnalysisExplicitExpression expression;
  return ioWorld->GetExpression(0, expression, 0);
}

TEST(DeliberateLeaks, FathersOfAFeatureWithoutAViewManager)
{
  Lose("VOXEAnalysisVisibility::SetVisibilityProperty", 2,
       []
       {
         AdaptorBench<Face<ShownUnderNobody, VOXISamVisibility>> feature;
         feature->SetVisibilityProperty(VOXSamVisibleNowhere);
         EXPECT_EQ(feature->GetVisibilityProperty(), VOXSamVisibleInBoth);
       });
}

TEST(DeliberateLeaks, TheVariantOfAnImport)
{
  Lose("VOXESamImportDefineAdaptor::GetValues", 3,
       []
       {
         AdaptorBench<Face<VOXESamImportDefineAdaptor, VOXISamImportDefine>> import;
         SAFEARRAY* values = nullptr;
         import->GetValues(values);
         DestroySafeArray(values);
       });
}

TEST(DeliberateLeaks, TheReferenceThatANewArchiverIsBornWith)
{
  Lose("VOXECharacCollector::AssignArchiverToCollector", 4,
       []
       {
         CharacWorld world;
         AssignOnce(world, S_OK);
       });
}

TEST(DeliberateLeaks, ANewArchiverThatACollectorRefuses)
{
  Lose("VOXECharacCollector::AssignArchiverToCollector", 5,
       []
       {
         CharacWorld world;
         Faults::FailOperation("VOXAnalysisCharacCollector::SetArchiver", 1, false);
         AssignOnce(world, E_FAIL);
         Faults::Disarm();
       });
}

TEST(DeliberateLeaks, WhatAFactoryMakesAndIsNoFeature)
{
  Lose("VOXSamToolsForExplicitation::LogImplicitAxis", 6,
       []
       {
         AxisSetWorld world;
         AxisSetWorld::SpecOf(world.set).modelFactory = world.MoreComponents().Component<LosingFactory>();
         EXPECT_EQ(world.Log(), E_FAIL);
       });
}

TEST(DeliberateLeaks, WhatAnOperationReadThatFailsWithinItsOwnCleanUp)
{
  voxhost::Ledger::TurnOn(); // it notices that an array returns
  Lose("VOXEExpressionCollector::GetExpression", 7,
       []
       {
         ExpressionWorld outer;
         ExpressionWorld inner;
         const WhenArraysReturn whileCleaningUp([&] { EXPECT_EQ(FailToRead(inner), E_FAIL); });
         EXPECT_EQ(FailToRead(outer), E_FAIL);
       });
  voxhost::Ledger::TurnOff();
}

} // namespace
