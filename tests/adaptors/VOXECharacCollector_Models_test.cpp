// SPDX-License-Identifier: MIT
// When the archivers that are kept are dropped: a third model, an update, the end of the adaptor.
#include "tests/adaptors/CharacWorld.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

class VOXECharacCollectorModels : public CharacTest
{
protected:
  VOXECharacCollectorModels() : archiver(world->NewArchiver()) { Refill(); }

  void Refill() { EXPECT_EQ(world->Keep(&archiver), S_OK); }

  // Sets models in turn. @return whether the area stands at the end.
  bool KeepsThrough(const std::vector<const VOXAnalysisExplicitModel*>& iModels)
  {
    for (const VOXAnalysisExplicitModel* const model : iModels)
      EXPECT_EQ((*world)->SetContextModel(model), S_OK);
    return IsKept();
  }

  bool IsKept()
  {
    const bool isBuilt = CharacArea::IsBuilt(world->Adaptor());
    EXPECT_EQ(References(archiver), isBuilt ? 2 : 1);
    EXPECT_TRUE(isBuilt || CharacArea::IsBlank(world->Adaptor()));
    return isBuilt;
  }

  const VOXAnalysisExplicitModel* Current() { return CharacArea::ContextModel(world->Adaptor()); }
  const VOXAnalysisExplicitModel* Previous() { return CharacArea::PreviousContextModel(world->Adaptor()); }

  voxhost::ExplicitModel m1;
  voxhost::ExplicitModel m2;
  voxhost::ExplicitModel m3;
  VOXAnalysisCollectorArchiver& archiver;
};

} // namespace

TEST_F(VOXECharacCollectorModels, SwitchingBetweenTwoModelsKeepsTheArchiversAndAsksForNoAuthorization)
{
  const CallLog log;
  EXPECT_TRUE(KeepsThrough({&m1, &m2, &m1, &m2, &m2}));
  EXPECT_EQ(Current(), &m2);
  EXPECT_EQ(Previous(), &m1);
  EXPECT_TRUE(log.All().empty());
}

TEST_F(VOXECharacCollectorModels, AThirdModelDropsTheArchiversOfAnAuthorizedFeature)
{
  EXPECT_TRUE(KeepsThrough({&m1, &m2}));
  const CallLog log;
  EXPECT_FALSE(KeepsThrough({&m3}));
  EXPECT_EQ(log.All(), (Calls{"VOXECharacCollector::IsAuthorizedToArchiveCollectors"}));
  EXPECT_EQ(Current(), &m3);
  EXPECT_EQ(Previous(), &m2);
}

TEST_F(VOXECharacCollectorModels, AThirdModelKeepsTheArchiversOfAnyOtherFeature)
{
  world->Told().authorized = 0;
  EXPECT_TRUE(KeepsThrough({&m1, &m2, &m3}));
  EXPECT_EQ(Current(), &m3);
  EXPECT_EQ(Previous(), &m2);
}

// Kept: exactly 1, whereas an archiver is assigned for any answer that is not 0.
TEST_F(VOXECharacCollectorModels, OnlyAnAuthorizationOfExactlyOneDropsTheArchivers)
{
  world->Told().authorized = 2;
  EXPECT_TRUE(KeepsThrough({&m1, &m2, &m3}));
}

TEST_F(VOXECharacCollectorModels, NullForgetsTheCurrentModelAndKeepsThePreviousOne)
{
  EXPECT_TRUE(KeepsThrough({&m1, &m2, nullptr}));
  EXPECT_EQ(Current(), nullptr);
  EXPECT_EQ(Previous(), &m1);
}

TEST_F(VOXECharacCollectorModels, ThePreviousModelAfterNullKeepsTheArchivers)
{
  EXPECT_TRUE(KeepsThrough({&m1, &m2, nullptr, &m1}));
  EXPECT_EQ(Current(), &m1);
  EXPECT_EQ(Previous(), nullptr);
}

// Kept: after null even the model that was current counts as a third one, and none is previous then.
TEST_F(VOXECharacCollectorModels, TheModelOfJustNowAfterNullCountsAsAThirdOne)
{
  EXPECT_FALSE(KeepsThrough({&m1, &m2, nullptr, &m2}));
  EXPECT_EQ(Current(), &m2);
  EXPECT_EQ(Previous(), nullptr);
  Refill();
  EXPECT_TRUE(KeepsThrough({&m3})) << "nothing is previous: no third model";
}

TEST_F(VOXECharacCollectorModels, AnAuthorizationThatFailsIsPropagatedAndTheModelsStay)
{
  KeepsThrough({&m1, &m2});
  world->Told().authorizedResult = E_NOTIMPL;
  EXPECT_EQ((*world)->SetContextModel(&m3), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}}));
  EXPECT_EQ(Current(), &m2);
  EXPECT_EQ(Previous(), &m1);
  EXPECT_TRUE(IsKept());
}

TEST_F(VOXECharacCollectorModels, AnUpdateDropsTheArchiversWhateverItsFlag)
{
  for (const unsigned char flag : {0, 1})
  {
    Refill();
    EXPECT_EQ((*world)->Update(flag), S_OK);
    EXPECT_FALSE(IsKept());
  }
  EXPECT_TRUE(AllReported().empty());
}

TEST_F(VOXECharacCollectorModels, AnUpdateLeavesTheModelsAlone)
{
  KeepsThrough({&m1, &m2});
  (*world)->Update(1);
  EXPECT_EQ(Current(), &m2);
  EXPECT_EQ(Previous(), &m1);
}

TEST_F(VOXECharacCollectorModels, TheEndOfTheAdaptorGivesItsArchiversBack)
{
  {
    CharacWorld other;
    EXPECT_EQ(other.Keep(&archiver), S_OK);
    EXPECT_EQ(References(archiver), 3);
  }
  EXPECT_EQ(References(archiver), 2);
  EXPECT_TRUE(AllReported().empty());
}

TEST_F(VOXECharacCollectorModels, ArraysOfCollectorsOfAFeatureTypeEndFromTheLastToTheFirst)
{
  class Ending : public ScriptedCharac
  {
  public:
    ~Ending() override { ends->push_back(number); }
    std::vector<int>* ends = nullptr;
    int number = 0;
  };
  std::vector<int> ends;
  {
    Ending collectors[3];
    for (int i = 0; i < 3; ++i)
    {
      collectors[i].ends = &ends;
      collectors[i].number = i;
    }
  }
  EXPECT_EQ(ends, (std::vector<int>{2, 1, 0}));
}
