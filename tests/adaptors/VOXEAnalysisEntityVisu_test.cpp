// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEntityVisu.h"

#include "host/Instruments/Faults.h"
#include "tests/adaptors/Face.h"
#include "tests/support/CallLog.h"
#include "tests/support/Memory.h"

#include <memory>
#include <typeinfo>

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using EntityVisu = Face<VOXEAnalysisEntityVisu, VOXISamEntityVisu>;

template <class T>
T& Any() // an object that nobody looks at
{
  return *Poison<T>();
}

} // namespace

TEST(VOXEAnalysisEntityVisu, BuildsAnEmptyBagWhateverTheMode)
{
  AdaptorBench<EntityVisu> visu;
  for (const int mode : {0, 1, -7})
  {
    const std::unique_ptr<VOXRep> rep(visu->BuildEntityRep(mode));
    ASSERT_NE(dynamic_cast<VOX3DBagRep*>(rep.get()), nullptr);
    EXPECT_EQ(rep->GetNumberOfChildren(), 0);
  }
}

TEST(VOXEAnalysisEntityVisu, BuildsAnotherBagEachTime)
{
  AdaptorBench<EntityVisu> visu;
  const std::unique_ptr<VOXRep> first(visu->BuildEntityRep(0));
  const std::unique_ptr<VOXRep> second(visu->BuildEntityRep(0));
  EXPECT_NE(first, second);
}

TEST(VOXEAnalysisEntityVisu, TheBagIsOfAClassOfItsOwnThatAddsNothing)
{
  AdaptorBench<EntityVisu> visu;
  MemoryWatch watch;
  const std::unique_ptr<VOXRep> rep(visu->BuildEntityRep(0));
  const std::vector<MemoryWatch::Block> blocks = watch.StillLive();
  ASSERT_FALSE(blocks.empty());
  EXPECT_EQ(blocks[0].address, rep.get());
  EXPECT_EQ(blocks[0].size, sizeof(VOX3DBagRep));
  const VOXRep& bag = *rep;
  EXPECT_NE(typeid(bag), typeid(VOX3DBagRep));
}

TEST(VOXEAnalysisEntityVisu, TheBagComesFromTheMemoryOfRepresentations)
{
  AdaptorBench<EntityVisu> visu;
  CallLog log;
  const std::unique_ptr<VOXRep> rep(visu->BuildEntityRep(0));
  EXPECT_EQ(log.All(), (Calls{"VOXRep::operator new"}));
}

TEST(VOXEAnalysisEntityVisu, DeletingTheBagFreesAllOfIt)
{
  AdaptorBench<EntityVisu> visu;
  MemoryWatch watch;
  delete visu->BuildEntityRep(0);
  EXPECT_TRUE(watch.StillLive().empty());
}

TEST(VOXEAnalysisEntityVisu, GivesNoBagWithoutMemoryAndReportsNothing)
{
  AdaptorBench<EntityVisu> visu;
  Torture("BuildEntityRep")
      .MayAnswer({S_OK, S_FALSE})
      .ReportsNothing()
      .Run(
          [&](TortureRun& ioRun)
          {
            VOXRep* rep = Poison<VOXRep>();
            ioRun.Call(
                [&]
                {
                  rep = visu->BuildEntityRep(0);
                  return rep != nullptr ? S_OK : S_FALSE;
                });
            EXPECT_EQ(rep == nullptr, ioRun.IsTortured());
            delete rep;
          });
}

TEST(VOXEAnalysisEntityVisu, DecodesNothingAndHighlightsNothing)
{
  AdaptorBench<EntityVisu> visu;
  EXPECT_EQ(visu->DecodeGraphic(Any<const VOXPickPath>(), Any<VOXPathElement>()), E_NOTIMPL);
  EXPECT_EQ(visu->BuildHighlightLook(Any<const VOXPathElement>(), Any<VOXRepPath>()), S_OK);
}

TEST(VOXEAnalysisEntityVisu, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEntityVisu::BuildEntityRep), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEntityVisu::DecodeGraphic), 2);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEntityVisu::BuildHighlightLook), 3);
  AdaptorBench<EntityVisu> visu;
  const std::unique_ptr<VOXRep> rep(CallOwn<VOXRep*, int>(visu.Get(), 1, 0));
  EXPECT_NE(rep, nullptr);
  EXPECT_EQ((CallOwn<HRESULT, VOXPickPath*, VOXPathElement*>(visu.Get(), 2, nullptr, nullptr)), E_NOTIMPL);
  EXPECT_EQ((CallOwn<HRESULT, VOXPathElement*, VOXRepPath*>(visu.Get(), 3, nullptr, nullptr)), S_OK);
}
