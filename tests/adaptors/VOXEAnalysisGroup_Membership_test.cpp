// SPDX-License-Identifier: MIT
#include "VOXEAnalysisGroup.h"

#include "tests/adaptors/GroupWorld.h"
#include "tests/support/CallLog.h"
#include "tests/support/Torture.h"
#include "tests/support/VirtualTable.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

struct Membership
{
  HRESULT result;
  int answer;
  bool operator==(const Membership&) const = default;
};

// The answer is preset to something else, to see that it is written.
Membership Ask(const GroupWorld& iWorld, VOXSamValue iValue, const char* iEntityType)
{
  unsigned char answer = 77;
  const HRESULT result = iWorld.Group()->IsGroupOf(iValue, iEntityType, answer);
  return {result, answer};
}

constexpr Membership kYes{S_OK, 1};
constexpr Membership kNo{S_OK, 0};

} // namespace

TEST(VOXEAnalysisGroupMembership, SaysYesToAKeywordOfAKindThatItServes)
{
  GroupWorld world;
  EXPECT_EQ(Ask(world, VOXSamValueNode, "NODE"), kYes);
  EXPECT_EQ(Ask(world, VOXSamValueElement, "EDGE"), kYes);
  EXPECT_EQ(Ask(world, VOXSamValueElement, "ELEMENT"), kYes);
}

TEST(VOXEAnalysisGroupMembership, SaysNoToAKeywordOfAnotherKind)
{
  GroupWorld world;
  EXPECT_EQ(Ask(world, VOXSamValueNode, "FACE"), kNo);
  EXPECT_EQ(Ask(world, VOXSamValueElement, "NODE"), kNo);
}

TEST(VOXEAnalysisGroupMembership, ComparesKeywordsExactly)
{
  GroupWorld world;
  EXPECT_EQ(Ask(world, VOXSamValueNode, "node"), kNo);
  EXPECT_EQ(Ask(world, VOXSamValueNode, "NODE "), kNo);
  EXPECT_EQ(Ask(world, VOXSamValueNode, ""), kNo);
}

TEST(VOXEAnalysisGroupMembership, DoesNotAskForKeywordsOfAKindThatItDoesNotServe)
{
  GroupWorld world;
  CallLog log;
  EXPECT_EQ(Ask(world, VOXSamValueMesh, "NODE"), kNo);
  EXPECT_EQ(log.All(), (Calls{"VOXISamGroup::GetValueKinds"}));
}

TEST(VOXEAnalysisGroupMembership, AsksForTheKeywordsOfTheKindInQuestion)
{
  GroupWorld world;
  CallLog log;
  Ask(world, VOXSamValueElement, "FACE");
  EXPECT_EQ(log.All(), (Calls{"VOXISamGroup::GetValueKinds", "VOXISamGroup::GetKeywords(9)"}));
}

TEST(VOXEAnalysisGroupMembership, AGroupWithoutKindsSaysNo)
{
  GroupWorld world;
  world.Told().kinds.clear();
  EXPECT_EQ(Ask(world, VOXSamValueNode, "NODE"), kNo);
}

TEST(VOXEAnalysisGroupMembership, AKindWithoutKeywordsSaysNo)
{
  GroupWorld world;
  world.Told().keywords.clear();
  EXPECT_EQ(Ask(world, VOXSamValueNode, "NODE"), kNo);
}

TEST(VOXEAnalysisGroupMembership, PassesTheFailureOfTheKindsOnUnchangedAndSaysNo)
{
  GroupWorld world;
  world.Told().kindsResult = E_INVALIDARG;
  EXPECT_EQ(Ask(world, VOXSamValueNode, "NODE"), (Membership{E_INVALIDARG, 0}));
}

TEST(VOXEAnalysisGroupMembership, PassesTheFailureOfTheKeywordsOnUnchangedAndSaysNo)
{
  GroupWorld world;
  world.Told().keywordsResult = E_NOTIMPL;
  EXPECT_EQ(Ask(world, VOXSamValueNode, "NODE"), (Membership{E_NOTIMPL, 0}));
}

TEST(VOXEAnalysisGroupMembership, TakesANonNegativeResultAsASuccessAndAnswersOkItself)
{
  GroupWorld world;
  world.Told().kindsResult = S_FALSE;
  world.Told().keywordsResult = S_FALSE;
  EXPECT_EQ(Ask(world, VOXSamValueNode, "NODE"), kYes);
}

// Kept: the scan of the kinds goes on after a match, and asks for the keywords again for each equal kind.
TEST(VOXEAnalysisGroupMembership, AsksOncePerEqualKindAlsoAfterAMatch)
{
  GroupWorld world;
  world.Told().kinds = {VOXSamValueNode, VOXSamValueElement, VOXSamValueNode, VOXSamValueNode};
  CallLog log;
  EXPECT_EQ(Ask(world, VOXSamValueNode, "NODE"), kYes);
  EXPECT_EQ(log.Count("VOXISamGroup::GetKeywords(8)"), 3);
  EXPECT_EQ(log.Count("VOXISamGroup::GetKeywords"), 3);
}

// Kept: a failure after the match wins over it; the answer stays yes.
TEST(VOXEAnalysisGroupMembership, ALaterFailureWinsOverAMatch)
{
  GroupWorld world;
  world.Told().kinds = {VOXSamValueNode, VOXSamValueNode};
  world.Told().keywordsResult = E_NOTIMPL;
  world.Told().goodKeywordCalls = 1;
  EXPECT_EQ(Ask(world, VOXSamValueNode, "NODE"), (Membership{E_NOTIMPL, 1}));
}

TEST(VOXEAnalysisGroupMembership, ReportsNothingAndFreesNoArrayWhateverFails)
{
  Torture torture("IsGroupOf");
  torture.ReportsNothing();
  torture.Run(
      [](TortureRun& ioRun)
      {
        GroupWorld world;
        unsigned char answer = 77;
        ioRun.Call([&] { return world.Group()->IsGroupOf(VOXSamValueElement, "FACE", answer); });
        EXPECT_EQ(answer, ioRun.Failed() ? 0 : 1);
      });
  EXPECT_EQ(torture.HostCalls(), 2);
}

TEST(VOXEAnalysisGroupMembership, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXISamGroup::GetValueKinds), 2);
  EXPECT_EQ(OwnPlace(&VOXISamGroup::GetKeywords), 3);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisGroup::IsGroupOf), 4);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisGroup::GetContent), 5);
  EXPECT_EQ(OwnPlace(&VOXISamGroup::GetExplicitPointers), 7);
  GroupWorld world;
  unsigned char answer = 77;
  EXPECT_EQ((CallOwn<HRESULT, VOXSamValue, VOXString, unsigned char&>(world.Group(), 4, VOXSamValueNode,
                                                                      VOXString("NODE"), answer)),
            S_OK);
  EXPECT_EQ(answer, 1);
}

TEST(VOXEAnalysisGroupMembership, FiveOperationsStayPure)
{
  class Missing : public VOXEAnalysisGroup
  {
    HRESULT GetDefinitionType(VOXUnicodeString&) const override { return S_OK; }
    HRESULT GetValueKinds(int&, const VOXSamValue*&) const override { return S_OK; }
    HRESULT GetKeywords(VOXSamValue, int&, const VOXString*&) const override { return S_OK; }
    HRESULT GetSupports(VOXListValVOXBaseUnknown_var&) const override { return S_OK; }
  };
  static_assert(std::is_abstract_v<VOXEAnalysisGroup> && std::is_abstract_v<Missing>);
  static_assert(!std::is_abstract_v<ScriptedGroup>);
}
