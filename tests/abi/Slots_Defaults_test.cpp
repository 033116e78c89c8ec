// SPDX-License-Identifier: MIT
// Every operation of the adaptors with fixed answers, called through its place in a plain interface.
#include "VOXEAnalysisAxis.h"
#include "VOXEAnalysisCollectorDerivatives.h"
#include "VOXEAnalysisContextCheck.h"
#include "VOXEAnalysisEditionControl.h"
#include "VOXEAnalysisEditionCusto.h"
#include "VOXEAnalysisEntityVisu.h"
#include "VOXEAnalysisFeatureUpdate.h"
#include "VOXEAnalysisSupportFilter.h"
#include "VOXESamImportDefineAdaptor.h"
#include "VOXSamBasicComponentManagerAdaptor.h"
#include "tests/abi/Noting.h"

using namespace voxtest;

namespace
{

class AnalysisAxisType : public Noting<VOXEAnalysisAxis>
{
public:
  NOTES(HRESULT, GetMathAxis, (VOXMathAxis&), const)
  NOTES(HRESULT, GetMKSMathAxis, (VOXMathAxis&), const)
};

TEST(AdaptorSlots, OfVOXEAnalysisAxisAnswerAtTheirPlacesInAPlainInterface)
{
  AnalysisAxisType feature;
  EXPECT_PLACE_OF(feature, plain::AnalysisAxis, GetMathAxis);
  EXPECT_PLACE_OF(feature, plain::AnalysisAxis, GetMKSMathAxis);
  ExpectBaseOperationsInPlace<plain::AnalysisAxis, AnalysisAxisType>();
}

class CollectorDerivativesType : public Noting<VOXEAnalysisCollectorDerivatives>
{
public:
  NOTES(bool, AllowDerivativeComputation, (), )
  NOTES(bool, IsDerivativeAvailable, (const VOXAnalysisCharacCollector*), )
  NOTES(HRESULT, ComputeParameterVariation, (const VOXAnalysisCharacCollector*, VOXListValVOXBaseUnknown_var*), )
  NOTES(HRESULT, SetParameterVariation, (const VOXBaseUnknown_var&, double), )
  NOTES(HRESULT, GetCharacCollectorDerivatives,
        (const VOXAnalysisCharacCollector*, const VOXAnalysisCharacCollector*&, const VOXAnalysisCharacCollector*&), )
};

TEST(AdaptorSlots, OfVOXEAnalysisCollectorDerivativesAnswerAtTheirPlacesInAPlainInterface)
{
  CollectorDerivativesType feature;
  EXPECT_PLACE_OF(feature, plain::CollectorDerivatives, AllowDerivativeComputation);
  EXPECT_PLACE_OF(feature, plain::CollectorDerivatives, IsDerivativeAvailable);
  EXPECT_PLACE_OF(feature, plain::CollectorDerivatives, ComputeParameterVariation);
  EXPECT_PLACE_OF(feature, plain::CollectorDerivatives, SetParameterVariation);
  EXPECT_PLACE_OF(feature, plain::CollectorDerivatives, GetCharacCollectorDerivatives);
  ExpectBaseOperationsInPlace<plain::CollectorDerivatives, CollectorDerivativesType>();
}

class ContextCheckType : public Noting<VOXEAnalysisContextCheck>
{
public:
  NOTES(HRESULT, Check, (VOXDocument*, VOXDocument*), )
  NOTES(HRESULT, ClosingEditor, (VOXFrmEditor*), )
};

TEST(AdaptorSlots, OfVOXEAnalysisContextCheckAnswerAtTheirPlacesInAPlainInterface)
{
  ContextCheckType feature;
  EXPECT_PLACE_OF(feature, plain::ContextCheck, Check);
  EXPECT_PLACE_OF(feature, plain::ContextCheck, ClosingEditor);
  ExpectBaseOperationsInPlace<plain::ContextCheck, ContextCheckType>();
}

class EditionControlType : public Noting<VOXEAnalysisEditionControl>
{
public:
  NOTES(HRESULT, AllowEdition, (unsigned char&), )
};

TEST(AdaptorSlots, OfVOXEAnalysisEditionControlAnswerAtTheirPlacesInAPlainInterface)
{
  EditionControlType feature;
  EXPECT_PLACE_OF(feature, plain::EditionControl, AllowEdition);
  ExpectBaseOperationsInPlace<plain::EditionControl, EditionControlType>();
}

class EditionCustoType : public Noting<VOXEAnalysisEditionCusto>
{
public:
  NOTES(bool, AllowApply, (), )
  NOTES(HRESULT, ActionPanel, (VOXSamTypeActionPanel), )
};

TEST(AdaptorSlots, OfVOXEAnalysisEditionCustoAnswerAtTheirPlacesInAPlainInterface)
{
  EditionCustoType feature;
  EXPECT_PLACE_OF(feature, plain::EditionCusto, AllowApply);
  EXPECT_PLACE_OF(feature, plain::EditionCusto, ActionPanel);
  ExpectBaseOperationsInPlace<plain::EditionCusto, EditionCustoType>();
}

class EntityVisuType : public Noting<VOXEAnalysisEntityVisu>
{
public:
  NOTES(VOXRep*, BuildEntityRep, (int), )
  NOTES(HRESULT, DecodeGraphic, (const VOXPickPath&, VOXPathElement&), )
  NOTES(HRESULT, BuildHighlightLook, (const VOXPathElement&, VOXRepPath&), )
};

TEST(AdaptorSlots, OfVOXEAnalysisEntityVisuAnswerAtTheirPlacesInAPlainInterface)
{
  EntityVisuType feature;
  EXPECT_PLACE_OF(feature, plain::EntityVisu, BuildEntityRep);
  EXPECT_PLACE_OF(feature, plain::EntityVisu, DecodeGraphic);
  EXPECT_PLACE_OF(feature, plain::EntityVisu, BuildHighlightLook);
  ExpectBaseOperationsInPlace<plain::EntityVisu, EntityVisuType>();
}

class FeatureUpdateType : public Noting<VOXEAnalysisFeatureUpdate>
{
public:
  NOTES(HRESULT, Update, (VOXSamUpdateAction), )
  NOTES(void, IsUpToDate, (unsigned char&), const)
  NOTES(void, SetNoUpToDate, (), )
};

TEST(AdaptorSlots, OfVOXEAnalysisFeatureUpdateAnswerAtTheirPlacesInAPlainInterface)
{
  FeatureUpdateType feature;
  EXPECT_PLACE_OF(feature, plain::FeatureUpdate, Update);
  EXPECT_PLACE_OF(feature, plain::FeatureUpdate, IsUpToDate);
  EXPECT_PLACE_OF(feature, plain::FeatureUpdate, SetNoUpToDate);
  ExpectBaseOperationsInPlace<plain::FeatureUpdate, FeatureUpdateType>();
}

class SupportFilterType : public Noting<VOXEAnalysisSupportFilter>
{
public:
  NOTES(bool, GetStatus, (VOXPathElement*), )
  NOTES(HRESULT, GetSelectableObject, (VOXPathElement*, VOXBaseUnknown*&, VOXBaseUnknown*&), )
  NOTES(HRESULT, ValidateSupport, (const VOXBaseUnknown*, const VOXBaseUnknown*), )
  NOTES(HRESULT, GetNLSid, (const VOXBaseUnknown*, VOXString&), )
};

TEST(AdaptorSlots, OfVOXEAnalysisSupportFilterAnswerAtTheirPlacesInAPlainInterface)
{
  SupportFilterType feature;
  EXPECT_PLACE_OF(feature, plain::SupportFilter, GetStatus);
  EXPECT_PLACE_OF(feature, plain::SupportFilter, GetSelectableObject);
  EXPECT_PLACE_OF(feature, plain::SupportFilter, ValidateSupport);
  EXPECT_PLACE_OF(feature, plain::SupportFilter, GetNLSid);
  ExpectBaseOperationsInPlace<plain::SupportFilter, SupportFilterType>();
}

class ImportDefineType : public Noting<VOXESamImportDefineAdaptor>
{
public:
  NOTES(HRESULT, Accept, (), )
  NOTES(HRESULT, GetCommentForType, (VOXString, VOXUnicodeString&), )
  NOTES(HRESULT, GetFileTypes, (VOXListValVOXString&), )
  NOTES(VOXDlgFrame*, GetUserFrame, (VOXDialog*, VOXDocument*), )
  NOTES(HRESULT, GetValues, (SAFEARRAY*&), )
  NOTES(HRESULT, Import, (VOXDocument*, VOXDocument*), )
  NOTES(HRESULT, SetValues, (SAFEARRAY*), )
};

TEST(AdaptorSlots, OfVOXESamImportDefineAdaptorAnswerAtTheirPlacesInAPlainInterface)
{
  ImportDefineType feature;
  EXPECT_PLACE_OF(feature, plain::ImportDefine, Accept);
  EXPECT_PLACE_OF(feature, plain::ImportDefine, GetCommentForType);
  EXPECT_PLACE_OF(feature, plain::ImportDefine, GetFileTypes);
  EXPECT_PLACE_OF(feature, plain::ImportDefine, GetUserFrame);
  EXPECT_PLACE_OF(feature, plain::ImportDefine, GetValues);
  EXPECT_PLACE_OF(feature, plain::ImportDefine, Import);
  EXPECT_PLACE_OF(feature, plain::ImportDefine, SetValues);
  ExpectBaseOperationsInPlace<plain::ImportDefine, ImportDefineType>();
}

class BasicComponentManagerType : public Noting<VOXSamBasicComponentManagerAdaptor>
{
public:
  NOTES(HRESULT, GetNbOptionalBC, (int&), )
  NOTES(HRESULT, GetOptionalBCList,
        (VOXListValVOXUnicodeString&, VOXListValVOXUnicodeString&, VOXListValVOXBaseUnknown_var&), )
  NOTES(SAMHiddenState, IsBasicComponentHidden, (const VOXISamBasicComponent*), )
  NOTES(SAMReadOnlyState, IsBasicComponentReadOnly, (const VOXISamBasicComponent*), )
  NOTES(bool, IsBasicComponentRecordable, (const VOXISamBasicComponent*), )
};

TEST(AdaptorSlots, OfVOXSamBasicComponentManagerAdaptorAnswerAtTheirPlacesInAPlainInterface)
{
  BasicComponentManagerType feature;
  EXPECT_PLACE_OF(feature, plain::BasicComponentManager, GetNbOptionalBC);
  EXPECT_PLACE_OF(feature, plain::BasicComponentManager, GetOptionalBCList);
  EXPECT_PLACE_OF(feature, plain::BasicComponentManager, IsBasicComponentHidden);
  EXPECT_PLACE_OF(feature, plain::BasicComponentManager, IsBasicComponentReadOnly);
  EXPECT_PLACE_OF(feature, plain::BasicComponentManager, IsBasicComponentRecordable);
  ExpectBaseOperationsInPlace<plain::BasicComponentManager, BasicComponentManagerType>();
}

} // namespace
