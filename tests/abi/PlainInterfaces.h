// SPDX-License-Identifier: MIT
#pragma once

// The virtual tables of the adaptors as other people's compiled code knows them: written down by hand, operation after
// operation, so that a place that moves in the contracts or in the library does not move here. Nested enumerations are
// their underlying int.
#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "ComponentRuntime/VOXListValVOXString.h"
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"

class VOXAnalysisCharacCollector;
class VOXAnalysisEntityCollector;
class VOXAnalysisExplicitExpression;
class VOXAnalysisExplicitListUsr;
class VOXAnalysisExplicitModel;
class VOXAnalysisExplicitParent;
class VOXDialog;
class VOXDlgFrame;
class VOXDocument;
class VOXFrmEditor;
class VOXISamAnalysisScan;
class VOXISamAnalysisSet;
class VOXISamBasicComponent;
class VOXISpecObject;
class VOXMathAxis;
class VOXPathElement;
class VOXPickPath;
class VOXRep;
class VOXRepPath;
class VOXSamCharacVersion;
struct SAFEARRAY;
struct VOXSamModelDataRoot;
enum SAM_Quality : int;
enum SAMHiddenState : int;
enum SAMReadOnlyState : int;
enum VOXSamSelectionMode : int;
enum VOXSamValue : int;
enum VOXSamVisibility : std::int32_t;

namespace plain
{

// What every table begins with: 17 operations, 18 entries.
class Base
{
public:
  virtual HRESULT QueryInterface(const IID& iInterface, void** oFace) = 0;
  virtual unsigned long AddRef() = 0;
  virtual unsigned long Release() = 0;
  virtual HRESULT GetTypeInfoCount(unsigned int* oCount) = 0;
  virtual HRESULT GetTypeInfo(unsigned int iIndex, unsigned long iLocale, VOXTypeInfo** oInfo) = 0;
  virtual HRESULT GetIDsOfNames(const IID& iReserved, wchar_t** iNames, unsigned int iCount, unsigned long iLocale,
                                long* oNumbers) = 0;
  virtual HRESULT Invoke(long iMember, const IID& iReserved, unsigned long iLocale, unsigned short iFlags,
                         VOXDispatchParameters* ioParameters) = 0;
  virtual VOXBaseUnknown* QueryInterface(const char* iInterfaceName) const = 0;
  virtual ~Base() = default;
  virtual VOXMetaClass* GetMetaObject() const = 0;
  virtual const char* IsA() const = 0;
  virtual int IsAKindOf(const char* iName) const = 0;
  virtual VOXBaseUnknown* GetImpl(int iMode) const = 0;
  virtual VOXBaseUnknown* SetImpl(VOXBaseUnknown* iImplementation) = 0;
  virtual int IsNull() const = 0;
  virtual int IsEqual(const VOXBaseUnknown* iOther) const = 0;
  virtual HRESULT ChangeComponentState(ComponentState iFrom, ComponentState iTo,
                                       const VOXSysChangeComponentStateContext* iContext) = 0;
};

class AnalysisAxis : public Base
{
public:
  virtual HRESULT GetMathAxis(VOXMathAxis& oAxis) const = 0;
  virtual HRESULT GetMKSMathAxis(VOXMathAxis& oAxis) const = 0;
};

class CollectorDerivatives : public Base
{
public:
  virtual bool AllowDerivativeComputation() = 0;
  virtual bool IsDerivativeAvailable(const VOXAnalysisCharacCollector* iCollector) = 0;
  virtual HRESULT ComputeParameterVariation(const VOXAnalysisCharacCollector* iCollector,
                                            VOXListValVOXBaseUnknown_var* iParameters) = 0;
  virtual HRESULT SetParameterVariation(const VOXBaseUnknown_var& iParameter, double iVariation) = 0;
  virtual HRESULT GetCharacCollectorDerivatives(const VOXAnalysisCharacCollector* iCollector,
                                                const VOXAnalysisCharacCollector*& oFirst,
                                                const VOXAnalysisCharacCollector*& oSecond) = 0;
};

class ContextCheck : public Base
{
public:
  virtual HRESULT Check(VOXDocument* iAnalysis, VOXDocument* iOther) = 0;
  virtual HRESULT ClosingEditor(VOXFrmEditor* iEditor) = 0;
};

class EditionControl : public Base
{
public:
  virtual HRESULT AllowEdition(unsigned char& oAllowed) = 0;
};

class EditionCusto : public Base
{
public:
  virtual bool AllowApply() = 0;
  virtual HRESULT ActionPanel(int iAction) = 0;
};

class EntityInit : public Base
{
public:
  virtual HRESULT Initialize() = 0;
  virtual HRESULT InitWhenPositioned() = 0;
  virtual HRESULT Remove(int iMode) = 0;
  virtual int CheckAnalysisSet(const VOXISamAnalysisSet* iSet) = 0;
  virtual int GetAnalysisSetType(VOXUnicodeString& oSetType) = 0;
  virtual unsigned char AggregateInSet() = 0;
};

class MeshSubscriber : public Base
{
public:
  virtual HRESULT Clean() = 0;
  virtual unsigned char CheckIfNeedToSubScribe() const = 0;
};

class EntityVisu : public Base
{
public:
  virtual VOXRep* BuildEntityRep(int iMode) = 0;
  virtual HRESULT DecodeGraphic(const VOXPickPath& iPick, VOXPathElement& ioElement) = 0;
  virtual HRESULT BuildHighlightLook(const VOXPathElement& iElement, VOXRepPath& ioHighlight) = 0;
};

class FeatureUpdate : public Base
{
public:
  virtual HRESULT Update(int iAction) = 0;
  virtual void IsUpToDate(unsigned char& oUpToDate) const = 0;
  virtual void SetNoUpToDate() = 0;
};

class Group : public Base
{
public:
  virtual HRESULT GetDefinitionType(VOXUnicodeString& oDefinition) const = 0;
  virtual HRESULT GetValueKinds(int& oCount, const VOXSamValue*& oValues) const = 0;
  virtual HRESULT GetKeywords(VOXSamValue iValue, int& oCount, const VOXString*& oKeywords) const = 0;
  virtual HRESULT IsGroupOf(VOXSamValue iValue, VOXString iEntityType, unsigned char& oIsGroupOf) const = 0;
  virtual HRESULT GetContent(VOXSamValue iValue, VOXString iEntityType,
                             const VOXAnalysisEntityCollector*& oCollector) const = 0;
  virtual HRESULT GetSupports(VOXListValVOXBaseUnknown_var& oSupports) const = 0;
  virtual HRESULT GetExplicitPointers(VOXSamValue iValue, VOXString iEntityType, int& oCount,
                                      VOXSamModelDataRoot**& oPointers, int*& oIndices) const = 0;
};

class SetInit : public Base
{
public:
  virtual HRESULT Initialize() = 0;
  virtual int CheckAnalysisParent(const VOXBaseUnknown* iParent, SAM_Quality& oQuality) = 0;
  virtual HRESULT InitWhenPositioned(const VOXBaseUnknown* iParent) = 0;
  virtual HRESULT Remove(int iMode) = 0;
  virtual HRESULT ReorderInScan(const VOXISamAnalysisScan* iScan) = 0;
};

class SupportFilter : public Base
{
public:
  virtual bool GetStatus(VOXPathElement* iPath) = 0;
  virtual HRESULT GetSelectableObject(VOXPathElement* iPath, VOXBaseUnknown*& oFirst, VOXBaseUnknown*& oSecond) = 0;
  virtual HRESULT ValidateSupport(const VOXBaseUnknown* iFirst, const VOXBaseUnknown* iSecond) = 0;
  virtual HRESULT GetNLSid(const VOXBaseUnknown* iSupport, VOXString& oId) = 0;
};

class ContainerUpgrade : public Base
{
public:
  virtual HRESULT UpgradeContainer() = 0;
  virtual bool NeedToUpgraded(int iVersion, int iRelease) = 0;
  virtual HRESULT UpgradeObject(const VOXISpecObject* iObject) = 0;
};

class Visibility : public Base
{
public:
  virtual void SetVisibilityProperty(VOXSamVisibility iVisibility) = 0;
  virtual VOXSamVisibility GetVisibilityProperty() = 0;
  virtual unsigned char IsVisibleInGraph() = 0;
  virtual unsigned char IsVisibleIn3D() = 0;
  virtual unsigned char IsPersistent() const = 0;
  virtual void SetShowStatus(unsigned char iNoShow) = 0;
  virtual unsigned char IsNoShow() = 0;
  virtual VOXListValVOXBaseUnknown_var* GetFatherForGraphAnd3D() = 0;
};

class ImportDefine : public Base
{
public:
  virtual HRESULT Accept() = 0;
  virtual HRESULT GetCommentForType(VOXString iType, VOXUnicodeString& oComment) = 0;
  virtual HRESULT GetFileTypes(VOXListValVOXString& ioTypes) = 0;
  virtual VOXDlgFrame* GetUserFrame(VOXDialog* iParent, VOXDocument* iDocument) = 0;
  virtual HRESULT GetValues(SAFEARRAY*& oValues) = 0;
  virtual HRESULT Import(VOXDocument* iFrom, VOXDocument* iInto) = 0;
  virtual HRESULT SetValues(SAFEARRAY* iValues) = 0;
};

class BasicComponentManager : public Base
{
public:
  virtual HRESULT GetNbOptionalBC(int& oNb) = 0;
  virtual HRESULT GetOptionalBCList(VOXListValVOXUnicodeString& ioNames, VOXListValVOXUnicodeString& ioTypes,
                                    VOXListValVOXBaseUnknown_var& ioKinds) = 0;
  virtual SAMHiddenState IsBasicComponentHidden(const VOXISamBasicComponent* iComponent) = 0;
  virtual SAMReadOnlyState IsBasicComponentReadOnly(const VOXISamBasicComponent* iComponent) = 0;
  virtual bool IsBasicComponentRecordable(const VOXISamBasicComponent* iComponent) = 0;
};

class FeatureUpgrade : public Base
{
public:
  virtual bool NeedToUpgrade() = 0;
  virtual HRESULT Upgrade() = 0;
};

class CharacCollector : public Base
{
public:
  virtual HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& oReserved) = 0;
  virtual HRESULT GetAvailableEntityPhysicalTypes(int iPhysicalType, int& oNb, const int*& oTypes) = 0;
  virtual HRESULT GetAvailableVersions(int iPhysicalType, int& oNbVersions, const VOXSamCharacVersion*& oVersions) = 0;
  virtual HRESULT GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                        const VOXString*& oPositions) = 0;
  virtual HRESULT GetCharacCollector(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                                     const VOXAnalysisCharacCollector*& oCollector) = 0;
  virtual HRESULT GetCharacCollectors(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors) = 0;
  virtual HRESULT IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector* iCollector, unsigned char& oUpToDate) = 0;
  virtual HRESULT IsAnAvailableDefinition(int iPhysicalType, const VOXSamCharacVersion& iVersion,
                                          const VOXString& iPosition, unsigned char& oAvailable) = 0;
  virtual HRESULT GetTitle(int iPhysicalType, VOXString& oTitle) = 0;
  virtual HRESULT GetCharacCollectorsForOccurrences(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors,
                                                    unsigned char iFlag) = 0;
  virtual HRESULT DeleteCharacCollector(const VOXAnalysisCharacCollector*& ioCollector) = 0;
  virtual HRESULT DeleteAll() = 0;
  virtual HRESULT Update(unsigned char iFlag) = 0;
  virtual HRESULT SetContextModel(const VOXAnalysisExplicitModel* iModel) = 0;
  virtual HRESULT GetContextModel(const VOXAnalysisExplicitModel*& oModel) = 0;
  virtual HRESULT GetContext(VOXAnalysisExplicitParent& oContext) = 0;
  virtual unsigned char GetActivity() = 0;
  virtual HRESULT IsAuthorizedToArchiveCollectors(unsigned char& oAuthorized) const = 0;
};

class ExpressionCollector : public Base
{
public:
  virtual HRESULT GetAvailableExpressions(const VOXAnalysisExplicitExpression& iDefinition,
                                          VOXAnalysisExplicitListUsr& oList) = 0;
  virtual HRESULT GetExpressionTitle(const VOXAnalysisExplicitExpression& iExpression, VOXString& oTitle) = 0;
  virtual HRESULT GetNumberOfExpressions(int& oNumber) = 0;
  virtual HRESULT GetExpression(int iNumber, VOXAnalysisExplicitExpression& oExpression,
                                unsigned char iCollectValues) = 0;
  virtual HRESULT DeleteExpression(VOXAnalysisExplicitExpression& iExpression) = 0;
  virtual HRESULT DeleteAll() = 0;
  virtual HRESULT Update() = 0;
};

class SelectionList : public Base
{
public:
  virtual HRESULT GetMode(VOXSamSelectionMode& oMode) = 0;
  virtual HRESULT GetList(VOXListValVOXUnicodeString& oList) = 0;
  virtual HRESULT GetSelected(VOXUnicodeString& oValue, int& oIndex) = 0;
  virtual HRESULT SetSelected(int iIndex) = 0;
  virtual HRESULT GetResult(const VOXUnicodeString& iValue, VOXListValVOXUnicodeString& oFeatureType,
                            VOXListValVOXUnicodeString& oSecond, VOXListValVOXBaseUnknown_var& oListOfVOXICkeType) = 0;
};

} // namespace plain
