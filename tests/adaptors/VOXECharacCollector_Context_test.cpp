// SPDX-License-Identifier: MIT
// The context of a feature, deletions in it, and the models that the feature is collected in.
#include "tests/adaptors/CharacWorld.h"
#include "tests/adaptors/TraceReader.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Ledger;

namespace
{

constexpr char kQuery[] = "VOXBaseUnknown::QueryInterface";
constexpr char kDelete[] = "VOXAnalysisExplicitListUsr::Delete";

class VOXECharacCollectorContext : public CharacTest
{
protected:
  HRESULT GetContext()
  {
    const HRESULT result = (*world)->GetContext(context);
    Faults::Disarm();
    return result;
  }

  // What the model has under the feature's object.
  std::size_t Collectors() { return world->Model().RecordOf(world->Entity())->characCollectors.size(); }

  VOXAnalysisExplicitParent context;
};

// A feature type with a context of its own.
class OwnContext : public ScriptedCharac
{
public:
  HRESULT GetContext(VOXAnalysisExplicitParent& oContext) override
  {
    oContext = given;
    return result;
  }
  HRESULT SetContextModel(const VOXAnalysisExplicitModel* iModel) override
  {
    models.push_back(iModel);
    return setResult;
  }

  VOXAnalysisExplicitParent given;
  HRESULT result = S_OK;
  HRESULT setResult = S_OK;
  std::vector<const VOXAnalysisExplicitModel*> models;
};

class WithOwnContext
{
public:
  WithOwnContext() : _Handle(_Bench.Component<CharacTie<OwnContext>>()) {}
  OwnContext& Adaptor() const { return CharacTie<OwnContext>::AdaptorOf(_Handle); }
  VOXICharacCollector* operator->() const { return _Handle; }

private:
  Bench _Bench;
  VOXICharacCollector_var _Handle;
};

} // namespace

TEST_F(VOXECharacCollectorContext, IsTheFirstOfTheFeaturesParents)
{
  const VOXAnalysisExplicitEntity other = world->Model().Create(NULL_exp, "SOLUTION", "other");
  world->Explicit().parents = {other, world->Entity()};
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_TRUE(context == other);
}

TEST_F(VOXECharacCollectorContext, IsReadFromAListThatIsDeletedAgainBeforeTheInterfaceIsGivenBack)
{
  VOXISamExplicit_var spExplicit(world->Feature());
  const CallLog log(CallLog::References::Recorded);
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_EQ(log.All(), (Calls{kQuery, kQuery, "VOXISamExplicit::GetExplicitModel",
                              "VOXAnalysisExplicitListUsr::CreateList", "VOXISamExplicit::ListParents",
                              "VOXAnalysisExplicitListUsr::Append", kDelete, "Release VOXISamExplicit"}));
  EXPECT_EQ((Ledger::Read() - before).userLists, 0);
}

TEST_F(VOXECharacCollectorContext, OfAFeatureWithoutParentsIsNone)
{
  world->Explicit().parents.clear();
  context = world->Entity();
  EXPECT_EQ(GetContext(), E_FAIL);
  EXPECT_TRUE(context == NULL_exp);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "oContext == NULL_exp", kCharac}}));
  EXPECT_EQ((Ledger::Read() - before).userLists, 0);
}

TEST_F(VOXECharacCollectorContext, SkipsParentsThatWereDeletedMeanwhile)
{
  class Deleting : public ScriptedExplicit
  {
  public:
    HRESULT ListParents(VOXAnalysisExplicitListUsr& ioParents) const override
    {
      const HRESULT result = ScriptedExplicit::ListParents(ioParents);
      Told().parents.front().Delete();
      return result;
    }
  };
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<CharacTie<ScriptedCharac>, Deleting>();
  const VOXAnalysisExplicitEntity gone = world->Model().Create(NULL_exp, "SOLUTION", "gone");
  Deleting::ScriptOf(feature).model = &world->Model();
  Deleting::ScriptOf(feature).parents = {gone, world->Entity()};
  const VOXICharacCollector_var spCollector(feature);
  EXPECT_EQ(spCollector->GetContext(context), S_OK);
  EXPECT_TRUE(context == world->Entity());
  const VOXAnalysisExplicitEntity last = world->Model().Create(NULL_exp, "SOLUTION", "gone, too");
  Deleting::ScriptOf(feature).parents = {last};
  EXPECT_EQ(spCollector->GetContext(context), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "oContext == NULL_exp", kCharac}}));
}

TEST_F(VOXECharacCollectorContext, WithoutParentsIsExplainedToWhoeverReads)
{
  world->Explicit().parents.clear();
  {
    const TraceReader reader(Tra_SAMTraceExpli);
    GetContext();
    EXPECT_EQ(reader.Text(), "Bad number of tags in Feature\n");
    EXPECT_EQ(VOXSamDisplayError(1), 1) << "the display is as it was";
  }
  {
    const TraceReader reader(Tra_SAMTraceExpli, false);
    GetContext();
    EXPECT_EQ(reader.Text(), "");
  }
}

TEST_F(VOXECharacCollectorContext, CannotBeHadWithoutTheExplicitInterface)
{
  context = world->Entity();
  Faults::FailOperation(kQuery, 2, false); // the first asks for the alias
  EXPECT_EQ(GetContext(), E_FAIL);
  EXPECT_TRUE(context == NULL_exp);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorMissingObject, "Explicit", kCharac}}));
}

TEST_F(VOXECharacCollectorContext, CannotBeHadWithoutAModel)
{
  world->Explicit().model = nullptr;
  EXPECT_EQ(GetContext(), E_FAIL);
  EXPECT_TRUE(context == NULL_exp);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{
                               {VOXSamErrorMissingObject, "CurrentModel = Explicit->GetExplicitModel()", kCharac}}));
}

TEST_F(VOXECharacCollectorContext, AListThatCannotBeMadeOrFilledIsPropagated)
{
  for (const char* const step : {"VOXAnalysisExplicitListUsr::CreateList", "VOXISamExplicit::ListParents"})
  {
    ResetErrors();
    context = world->Entity();
    Faults::FailOperation(step, 1, false);
    EXPECT_EQ(GetContext(), E_FAIL) << step;
    EXPECT_TRUE(context == NULL_exp) << step;
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}})) << step;
    EXPECT_EQ((Ledger::Read() - before).userLists, 0) << step;
  }
}

TEST_F(VOXECharacCollectorContext, StaysSetWhenOnlyTheListCannotBeDeletedWhichIsTriedAgain)
{
  Faults::FailOperation(kDelete, 1, false);
  EXPECT_EQ(GetContext(), E_FAIL);
  EXPECT_EQ(Faults::Calls(), 2);
  EXPECT_TRUE(context == world->Entity());
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}}));
  EXPECT_EQ((Ledger::Read() - before).userLists, 0);
}

TEST_F(VOXECharacCollectorContext, ACleanUpThatFailsTooIsNotReported)
{
  Faults::FailOperation(kDelete, 1, true);
  EXPECT_EQ(GetContext(), E_FAIL);
  EXPECT_EQ(Faults::Calls(), 2);
  EXPECT_EQ(AllReported().size(), 1u);
  EXPECT_TRUE(voxhost::ErrorLog::CheckFailures().empty());
}

TEST_F(VOXECharacCollectorContext, TheCleanUpGivesTheInterfaceBackBeforeItDeletesTheList)
{
  VOXISamExplicit_var spExplicit(world->Feature());
  const CallLog log(CallLog::References::Recorded);
  Faults::FailOperation("VOXISamExplicit::ListParents", 1, false);
  GetContext();
  EXPECT_EQ(log.Only({"Release", kDelete}), (Calls{"Release VOXISamExplicit", kDelete}));
}

TEST_F(VOXECharacCollectorContext, IsToldOnTheDebugTraceUnderTheAliasOfTheFeature)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<CharacTie<ScriptedCharac>, ScriptedAlias>();
  ScriptedAlias::ScriptOf(feature).alias = "Static Case.1";
  const VOXICharacCollector_var spCollector(feature);
  const TraceReader reader(Tra_SAMTraceExpDbg, false);
  EXPECT_EQ(spCollector->GetContext(context), E_FAIL); // no explicit interface: the trace comes first
  EXPECT_EQ(reader.Text(), "===================================================\n"
                           "#### GetContext on FEATURE :: Static Case.1\n"
                           "===================================================\n");
}

TEST_F(VOXECharacCollectorContext, AsksForTheAliasButTellsNothingToNobody)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<CharacTie<ScriptedCharac>, ScriptedAlias>();
  const VOXICharacCollector_var spCollector(feature);
  TraceReader reader(Tra_SAMTraceExpDbg, true, false);
  reader.ReadEverything();
  const VOXIAlias_var spAlias(feature);
  const CallLog log(CallLog::References::Recorded);
  spCollector->GetContext(context);
  EXPECT_EQ(log.All(), (Calls{kQuery, "VOXIAlias::GetAlias", "Release VOXIAlias", kQuery}));
  EXPECT_EQ(reader.Text(), "");
}

TEST_F(VOXECharacCollectorContext, IsEmptiedOnlyWhenTheAliasHasBeenAskedFor)
{
  Bench bench;
  const VOXICharacCollector_var spCollector(bench.Component<CharacTie<ScriptedCharac>, ScriptedAlias>());
  static const VOXAnalysisExplicitParent* given;
  static bool wasEmpty;
  given = &context;
  wasEmpty = true;
  context = world->Entity();
  Faults::Listen(
      [](const char* iOperation)
      {
        if (std::string_view(iOperation) == "VOXIAlias::GetAlias")
          wasEmpty = *given == NULL_exp;
      });
  EXPECT_EQ(spCollector->GetContext(context), E_FAIL);
  Faults::Listen(nullptr);
  EXPECT_FALSE(wasEmpty);
  EXPECT_TRUE(context == NULL_exp);
}

TEST_F(VOXECharacCollectorContext, OfAFeatureWithoutAliasIsToldNowhere)
{
  const TraceReader reader(Tra_SAMTraceExpDbg);
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_EQ(reader.Text(), "");
}

TEST_F(VOXECharacCollectorContext, LosesOneCollectorAndTheCallersPointerIsNull)
{
  const VOXAnalysisCharacCollector* collector = &world->NewCollector();
  world->NewCollector();
  EXPECT_EQ((*world)->DeleteCharacCollector(collector), S_OK);
  EXPECT_EQ(collector, nullptr);
  EXPECT_EQ(Collectors(), 1u);
}

TEST_F(VOXECharacCollectorContext, LosesAllItsCollectors)
{
  world->NewCollector();
  world->NewCollector(22, Version(3));
  EXPECT_EQ((*world)->DeleteAll(), S_OK);
  EXPECT_EQ(Collectors(), 0u);
  EXPECT_EQ((Ledger::Read() - before).collectors, 0);
}

TEST_F(VOXECharacCollectorContext, ACollectorOfAnotherObjectCannotBeDeletedInIt)
{
  const VOXAnalysisCharacCollector* const collector = &world->NewCollector();
  const VOXAnalysisExplicitEntity other = world->Model().Create(NULL_exp, "SOLUTION", "other");
  world->Explicit().parents = {other};
  const VOXAnalysisCharacCollector* given = collector;
  EXPECT_EQ((*world)->DeleteCharacCollector(given), E_FAIL);
  EXPECT_EQ(given, collector);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}}));
}

TEST_F(VOXECharacCollectorContext, ADeletionOfAllThatFailsIsPropagated)
{
  Faults::FailOperation("VOXAnalysisExplicitParent::DeleteAll", 1, false);
  EXPECT_EQ((*world)->DeleteAll(), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}}));
}

TEST_F(VOXECharacCollectorContext, ADeletionWithoutContextReportsOnBothLevels)
{
  world->Explicit().parents.clear();
  const std::vector<Reported> expected{{VOXSamErrorCondition, "oContext == NULL_exp", kCharac, 2},
                                       {VOXSamErrorPropagated, "", kCharac, 1}};
  const VOXAnalysisCharacCollector* collector = Poison<const VOXAnalysisCharacCollector>();
  EXPECT_EQ((*world)->DeleteCharacCollector(collector), E_FAIL);
  EXPECT_EQ(collector, Poison<const VOXAnalysisCharacCollector>());
  EXPECT_EQ(AllReported(), expected);
  ResetErrors();
  EXPECT_EQ((*world)->DeleteAll(), E_FAIL);
  EXPECT_EQ(AllReported(), expected);
}

TEST_F(VOXECharacCollectorContext, ADeletionInAnEmptyContextIsRefusedAndExplained)
{
  const WithOwnContext empty;
  const std::vector<Reported> expected{{VOXSamErrorCondition, "Context == NULL_exp", kCharac}};
  const TraceReader reader(Tra_SAMTraceExpli);
  const VOXAnalysisCharacCollector* collector = nullptr;
  EXPECT_EQ(empty->DeleteCharacCollector(collector), E_FAIL);
  EXPECT_EQ(AllReported(), expected);
  EXPECT_EQ(reader.Text(), "Current Context is Null...\n");
  ResetErrors();
  EXPECT_EQ(empty->DeleteAll(), E_FAIL);
  EXPECT_EQ(AllReported(), expected);
  EXPECT_EQ(reader.Text(), "Current Context is Null...\nCurrent Context is Null...\n");
}

TEST_F(VOXECharacCollectorContext, ADeletionTakesTheContextThatTheFeatureTypeGives)
{
  const WithOwnContext own;
  own.Adaptor().given = world->Entity();
  const VOXAnalysisCharacCollector* collector = &world->NewCollector();
  EXPECT_EQ(own->DeleteCharacCollector(collector), S_OK);
  world->NewCollector();
  EXPECT_EQ(own->DeleteAll(), S_OK);
  EXPECT_EQ(Collectors(), 0u);
  own.Adaptor().result = E_NOTIMPL;
  EXPECT_EQ(own->DeleteAll(), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}}));
}

TEST_F(VOXECharacCollectorContext, TheModelOfAFreshAdaptorIsThatOfTheContextAndIsRecorded)
{
  const VOXAnalysisExplicitModel* model = Poison<const VOXAnalysisExplicitModel>();
  EXPECT_EQ((*world)->GetContextModel(model), S_OK);
  EXPECT_EQ(model, &world->Model());
  EXPECT_EQ(CharacArea::ContextModel(world->Adaptor()), &world->Model());
  EXPECT_EQ(CharacArea::PreviousContextModel(world->Adaptor()), nullptr);
}

TEST_F(VOXECharacCollectorContext, AModelThatWasSetIsGivenWithoutLookingForTheContext)
{
  const voxhost::ExplicitModel other;
  EXPECT_EQ((*world)->SetContextModel(&other), S_OK);
  const CallLog log;
  const VOXAnalysisExplicitModel* model = nullptr;
  EXPECT_EQ((*world)->GetContextModel(model), S_OK);
  EXPECT_EQ(model, &other);
  EXPECT_TRUE(log.All().empty());
}

TEST_F(VOXECharacCollectorContext, AModelOfAFeatureWithoutContextIsNull)
{
  world->Explicit().model = nullptr;
  const VOXAnalysisExplicitModel* model = Poison<const VOXAnalysisExplicitModel>();
  EXPECT_EQ((*world)->GetContextModel(model), E_FAIL);
  EXPECT_EQ(model, nullptr);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{
                               {VOXSamErrorMissingObject, "CurrentModel = Explicit->GetExplicitModel()", kCharac, 2},
                               {VOXSamErrorPropagated, "", kCharac, 1}}));
}

// Kept: the model stays handed out when only setting it failed.
TEST_F(VOXECharacCollectorContext, AModelThatCannotBeSetStaysHandedOut)
{
  const WithOwnContext own;
  own.Adaptor().given = world->Entity();
  own.Adaptor().setResult = E_NOTIMPL;
  const VOXAnalysisExplicitModel* model = nullptr;
  EXPECT_EQ(own->GetContextModel(model), E_FAIL);
  EXPECT_EQ(model, &world->Model());
  EXPECT_EQ(own.Adaptor().models, (std::vector<const VOXAnalysisExplicitModel*>{&world->Model()}));
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}}));
}

TEST_F(VOXECharacCollectorContext, AnEmptyContextGivesNoModelAndThatIsNoFailure)
{
  const WithOwnContext empty;
  const VOXAnalysisExplicitModel* model = Poison<const VOXAnalysisExplicitModel>();
  EXPECT_EQ(empty->GetContextModel(model), S_OK);
  EXPECT_EQ(model, nullptr);
  EXPECT_EQ(empty.Adaptor().models, (std::vector<const VOXAnalysisExplicitModel*>{nullptr}));
}
