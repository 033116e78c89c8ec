// SPDX-License-Identifier: MIT
// Characteristics with their archivers, and expressions, read from the feature's object in the model.
#include "AnalysisInterfaces/VOXICharacCollector.h"
#include "AnalysisInterfaces/VOXIExpressionCollector.h"
#include "VOXECharacCollector.h"
#include "VOXEExpressionCollector.h"
#include "tests/anyhost/AnyHost.h"

namespace anyhost
{
namespace
{

const int kTypes[] = {7};
const VOXString kPositions[] = {"NODE"};

// One physical type, one version, one position; each collector is attached to the context and gets an archiver.
class Results : public VOXECharacCollector
{
public:
  HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*&) override
  {
    oNbTypes = 1;
    oTypes = kTypes;
    return available;
  }
  HRESULT GetAvailableVersions(int, int& oNbVersions, const VOXSamCharacVersion*& oVersions) override
  {
    static const VOXSamCharacVersion versions[1];
    oNbVersions = 1;
    oVersions = versions;
    return S_OK;
  }
  HRESULT GetAvailablePositions(int, const VOXSamCharacVersion&, int& oNbPositions,
                                const VOXString*& oPositions) override
  {
    oNbPositions = 1;
    oPositions = kPositions;
    return S_OK;
  }

  HRESULT GetCharacCollector(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                             const VOXAnalysisCharacCollector*& oCollector) override
  {
    VOXAnalysisExplicitParent context;
    if (FAILED(GetContext(context)))
      return E_FAIL;
    VOXAnalysisExplicitList children;
    context.GetChildrenList(children);
    VOXSamModelDataRoot** objects = nullptr;
    int count = 0;
    children.GetContents(count, objects);
    auto* const made = new VOXAnalysisCharacCollector;
    made->SetContext(context, 0);
    made->SetDefinition(iPhysicalType, "Stress", iVersion, iPosition, 1, 0);
    made->SetEntities(count, objects, nullptr);
    delete[] objects;
    made->SetValues(std::vector<double>(static_cast<std::size_t>(count), 1.5).data(), nullptr);
    made->SetAttachedToModel(1, nullptr, 0);
    oCollector = made;
    return AssignArchiverToCollector(made, CollectorArchiveOnFill);
  }

  HRESULT GetCharacCollectors(int& oNb, const VOXAnalysisCharacCollector* const*&) override
  {
    oNb = 0;
    return S_OK;
  }
  HRESULT IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector*, unsigned char& oUpToDate) override
  {
    oUpToDate = 0;
    return S_OK;
  }
  // Tells whether an archiver is kept, and whether it can be stored: a way to look at what is protected.
  HRESULT GetTitle(int iPhysicalType, VOXString& oTitle) override
  {
    VOXAnalysisCollectorArchiver* archiver = nullptr;
    const HRESULT result = GetCollectorArchiver(iPhysicalType, {}, "NODE", archiver);
    oTitle = archiver == nullptr ? "none" : archiver->IsStreamable() ? "kept" : "kept, not storable";
    return result;
  }

  static inline HRESULT available = S_OK;

protected:
  HRESULT IsAuthorizedToArchiveCollectors(unsigned char& oAuthorized) const override
  {
    oAuthorized = 1;
    return S_OK;
  }
};

class Expressions : public VOXEExpressionCollector
{
public:
  HRESULT GetExpressionTitle(const VOXAnalysisExplicitExpression&, VOXString& oTitle) override
  {
    oTitle = "an expression";
    return S_OK;
  }
};

class CollectorsOnAnyHost : public AnyHost
{
protected:
  CollectorsOnAnyHost()
  {
    VOXTieLateType<VOXICharacCollector, VOXTieCharacCollector<Results>>("ResultUnderTest");
    VOXTieLateType<VOXIExpressionCollector, VOXTieExpressionCollector<Expressions>>("ResultUnderTest");
    Results::available = S_OK;
    object = world->NewObject(NULL_exp, "DISPLACEMENT");
    for (VOXAnalysisExplicitChild& expression : expressions)
      expression = world->NewObject(object, "EXPRESSION");
    feature = New("ResultUnderTest", "result");
    Link(feature, object);
    spResults = feature;
    spExpressions = feature;
  }

  const VOXAnalysisCharacCollector* Collect()
  {
    const VOXAnalysisCharacCollector* collector = nullptr;
    leftOver = 1; // the reference that a new archiver is born with
    EXPECT_EQ(spResults->GetCharacCollector(7, {}, "NODE", collector), S_OK);
    return collector;
  }

  std::string Archiver()
  {
    VOXString title;
    EXPECT_EQ(spResults->GetTitle(7, title), S_OK);
    return title.CastToCharPtr();
  }

  int Number()
  {
    int number = 9;
    EXPECT_EQ(spExpressions->GetNumberOfExpressions(number), S_OK);
    return number;
  }

  VOXAnalysisExplicitEntity object;
  VOXAnalysisExplicitChild expressions[2];
  VOXBaseUnknown* feature = nullptr;
  VOXICharacCollector_var spResults;
  VOXIExpressionCollector_var spExpressions;
};

TEST_F(CollectorsOnAnyHost, TheContextIsTheFeaturesObjectAndItsModel)
{
  VOXAnalysisExplicitParent context;
  const VOXAnalysisExplicitModel* model = nullptr;
  EXPECT_EQ(spResults->GetContext(context), S_OK);
  EXPECT_EQ(spResults->GetContextModel(model), S_OK);
  EXPECT_TRUE(context == object);
  EXPECT_EQ(model, world->Model());
}

TEST_F(CollectorsOnAnyHost, AFeatureThatProducedNothingHasNoContext)
{
  const VOXICharacCollector_var spOther(New("ResultUnderTest", "other"));
  VOXAnalysisExplicitParent context(object);
  EXPECT_EQ(spOther->GetContext(context), E_FAIL);
  EXPECT_TRUE(context == NULL_exp);
  ExpectFirstReport(VOXSamErrorCondition, "oContext == NULL_exp", "VOXECharacCollector");
}

TEST_F(CollectorsOnAnyHost, AnOfferedDefinitionIsAvailable)
{
  unsigned char available = 9;
  EXPECT_EQ(spResults->IsAnAvailableDefinition(7, {}, "NODE", available), S_OK);
  EXPECT_EQ(available, 1);
  EXPECT_EQ(spResults->IsAnAvailableDefinition(7, {}, "ELEMENT", available), S_OK);
  EXPECT_EQ(available, 0);
  Results::available = E_FAIL;
  EXPECT_EQ(spResults->IsAnAvailableDefinition(7, {}, "NODE", available), E_FAIL);
  ExpectFirstReport(VOXSamErrorPropagated, "", "VOXECharacCollector");
}

TEST_F(CollectorsOnAnyHost, ACollectorIsReadBackAndDeletedThroughTheAdaptor)
{
  const VOXAnalysisCharacCollector* collector = Collect();
  ASSERT_NE(collector, nullptr);
  int type = 0;
  int components = 0;
  int frame = -1;
  VOXString name;
  VOXString position;
  VOXSamCharacVersion version;
  EXPECT_EQ(collector->GetDefinition(type, name, version, position, components, frame), S_OK);
  EXPECT_EQ(type, 7);
  EXPECT_STREQ(position, "NODE");
  EXPECT_EQ(collector->GetValues()[1], 1.5);
  EXPECT_EQ(EntitiesOf(*collector).size(), 2u);
  EXPECT_EQ(spResults->DeleteCharacCollector(collector), S_OK);
  EXPECT_EQ(collector, nullptr);
  EXPECT_EQ(spResults->Update(0), S_OK);
}

TEST_F(CollectorsOnAnyHost, TheArchiverStaysWhileTheTimeStampFitsAndGoesWhenTheFeatureChanges)
{
  EXPECT_EQ(Archiver(), "none");
  Collect();
  EXPECT_EQ(Archiver(), "kept");
  WriteInteger(feature, "Step", 2);
  EXPECT_EQ(Archiver(), "none");
  EXPECT_EQ(spResults->DeleteAll(), S_OK);
}

TEST_F(CollectorsOnAnyHost, ExpressionsAreThoseUnderTheObject)
{
  world->NewObject(object, "NODE_GROUP");
  ASSERT_EQ(Number(), 2);
  VOXAnalysisExplicitExpression expression;
  EXPECT_EQ(spExpressions->GetExpression(1, expression, 0), S_OK);
  EXPECT_TRUE(expression == expressions[1]);
  EXPECT_EQ(spExpressions->GetExpression(2, expression, 0), E_FAIL);
  EXPECT_TRUE(expression == NULL_exp);
  ExpectFirstReport(VOXSamErrorCondition, "(0 > iNumber) || (iNumber >= _Number)", "VOXEExpressionCollector");
}

TEST_F(CollectorsOnAnyHost, ADeletedExpressionIsGoneFromTheModel)
{
  ASSERT_EQ(Number(), 2);
  VOXAnalysisExplicitExpression deleted;
  EXPECT_EQ(spExpressions->GetExpression(0, deleted, 0), S_OK);
  EXPECT_EQ(spExpressions->DeleteExpression(deleted), S_OK);
  EXPECT_TRUE(deleted == NULL_exp);
  EXPECT_TRUE(expressions[0] == NULL_exp);
  EXPECT_EQ(Number(), 1);
}

TEST_F(CollectorsOnAnyHost, AllListedExpressionsAreDeletedAtOnce)
{
  ASSERT_EQ(Number(), 2);
  EXPECT_EQ(spExpressions->DeleteAll(), S_OK);
  EXPECT_EQ(Number(), 0);
  EXPECT_TRUE(expressions[0] == NULL_exp && expressions[1] == NULL_exp);
}

TEST_F(CollectorsOnAnyHost, AnOutOfDateFeatureHasNoExpressions)
{
  SetUpToDate(feature, false);
  int number = 9;
  EXPECT_EQ(spExpressions->GetNumberOfExpressions(number), E_FAIL);
  EXPECT_EQ(number, -1);
  ExpectFirstReport(VOXSamErrorCondition, "!IsUpToDate()", "VOXEExpressionCollector");
}

TEST_F(CollectorsOnAnyHost, ExpressionsAreAppendedToAListOfTheCallers)
{
  VOXAnalysisExplicitListUsr list;
  ASSERT_EQ(list.CreateList(world->Model()), S_OK);
  EXPECT_EQ(spExpressions->GetAvailableExpressions(VOXAnalysisExplicitExpression(), list), S_OK);
  EXPECT_EQ(list.GetLength(0), 2);
  EXPECT_TRUE(*list.First(1) == expressions[0]);
  EXPECT_TRUE(*list.Next(1) == expressions[1]);
  EXPECT_TRUE(*list.Next(1) == NULL_exp);
  EXPECT_EQ(list.Delete(), S_OK);
}

} // namespace
} // namespace anyhost
