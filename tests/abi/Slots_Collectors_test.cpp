// SPDX-License-Identifier: MIT
// Every operation of the collectors, called through its place in a plain interface.
#include "VOXECharacCollector.h"
#include "VOXEExpressionCollector.h"
#include "tests/abi/Noting.h"

using namespace voxtest;

namespace
{

class CharacCollectorType : public Noting<VOXECharacCollector>
{
public:
  NOTES(HRESULT, GetAvailablePhysicalTypes, (int&, const int*&, const void*&), )
  NOTES(HRESULT, GetAvailableEntityPhysicalTypes, (int, int&, const int*&), )
  NOTES(HRESULT, GetAvailableVersions, (int, int&, const VOXSamCharacVersion*&), )
  NOTES(HRESULT, GetAvailablePositions, (int, const VOXSamCharacVersion&, int&, const VOXString*&), )
  NOTES(HRESULT, GetCharacCollector,
        (int, const VOXSamCharacVersion&, const VOXString&, const VOXAnalysisCharacCollector*&), )
  NOTES(HRESULT, GetCharacCollectors, (int&, const VOXAnalysisCharacCollector* const*&), )
  NOTES(HRESULT, IsCharacCollectorUpToDate, (const VOXAnalysisCharacCollector*, unsigned char&), )
  NOTES(HRESULT, IsAnAvailableDefinition, (int, const VOXSamCharacVersion&, const VOXString&, unsigned char&), )
  NOTES(HRESULT, GetTitle, (int, VOXString&), )
  NOTES(HRESULT, GetCharacCollectorsForOccurrences, (int&, const VOXAnalysisCharacCollector* const*&, unsigned char), )
  NOTES(HRESULT, DeleteCharacCollector, (const VOXAnalysisCharacCollector*&), )
  NOTES(HRESULT, DeleteAll, (), )
  NOTES(HRESULT, Update, (unsigned char), )
  NOTES(HRESULT, SetContextModel, (const VOXAnalysisExplicitModel*), )
  NOTES(HRESULT, GetContextModel, (const VOXAnalysisExplicitModel*&), )
  NOTES(HRESULT, GetContext, (VOXAnalysisExplicitParent&), )
  NOTES(unsigned char, GetActivity, (), )
  NOTES(HRESULT, IsAuthorizedToArchiveCollectors, (unsigned char&), const)
};

TEST(AdaptorSlots, OfVOXECharacCollectorAnswerAtTheirPlacesInAPlainInterface)
{
  CharacCollectorType feature;
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetAvailablePhysicalTypes);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetAvailableEntityPhysicalTypes);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetAvailableVersions);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetAvailablePositions);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetCharacCollector);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetCharacCollectors);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, IsCharacCollectorUpToDate);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, IsAnAvailableDefinition);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetTitle);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetCharacCollectorsForOccurrences);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, DeleteCharacCollector);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, DeleteAll);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, Update);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, SetContextModel);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetContextModel);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetContext);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, GetActivity);
  EXPECT_PLACE_OF(feature, plain::CharacCollector, IsAuthorizedToArchiveCollectors);
  ExpectBaseOperationsInPlace<plain::CharacCollector, CharacCollectorType>();
}

class ExpressionCollectorType : public Noting<VOXEExpressionCollector>
{
public:
  NOTES(HRESULT, GetAvailableExpressions, (const VOXAnalysisExplicitExpression&, VOXAnalysisExplicitListUsr&), )
  NOTES(HRESULT, GetExpressionTitle, (const VOXAnalysisExplicitExpression&, VOXString&), )
  NOTES(HRESULT, GetNumberOfExpressions, (int&), )
  NOTES(HRESULT, GetExpression, (int, VOXAnalysisExplicitExpression&, unsigned char), )
  NOTES(HRESULT, DeleteExpression, (VOXAnalysisExplicitExpression&), )
  NOTES(HRESULT, DeleteAll, (), )
  NOTES(HRESULT, Update, (), )
};

TEST(AdaptorSlots, OfVOXEExpressionCollectorAnswerAtTheirPlacesInAPlainInterface)
{
  ExpressionCollectorType feature;
  EXPECT_PLACE_OF(feature, plain::ExpressionCollector, GetAvailableExpressions);
  EXPECT_PLACE_OF(feature, plain::ExpressionCollector, GetExpressionTitle);
  EXPECT_PLACE_OF(feature, plain::ExpressionCollector, GetNumberOfExpressions);
  EXPECT_PLACE_OF(feature, plain::ExpressionCollector, GetExpression);
  EXPECT_PLACE_OF(feature, plain::ExpressionCollector, DeleteExpression);
  EXPECT_PLACE_OF(feature, plain::ExpressionCollector, DeleteAll);
  EXPECT_PLACE_OF(feature, plain::ExpressionCollector, Update);
  ExpectBaseOperationsInPlace<plain::ExpressionCollector, ExpressionCollectorType>();
}

} // namespace
