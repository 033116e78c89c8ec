// SPDX-License-Identifier: MIT
// What features of some types carry: their sides as entities, sets, components and parts of the explicit model.
#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisModelFactory.h"
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamAnalysisSupport.h"
#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "AnalysisInterfaces/VOXISamMeshPartFilter.h"
#include "Features.h"
#include "KnowledgeParameters/VOXICke.h"
#include "Runtime.h"

namespace otherhost
{
namespace
{

template <class List>
List* NewListOf(const std::vector<Feature*>& iFeatures)
{
  auto* const list = iFeatures.empty() ? nullptr : new List;
  for (Feature* const feature : iFeatures)
    list->Append(static_cast<VOXBaseUnknown*>(feature));
  return list;
}

// What the feature became stands in its attribute "ExplicitTag".
class Explicit final : public FeatureFace<VOXISamExplicit>
{
public:
  VOXString GetPhysicalTypeName() const override { return VOXString(My().type->physicalType.c_str()); }

  VOXAnalysisExplicitModel* GetExplicitModel() const override
  {
    return My().document == nullptr ? nullptr : &My().document->model;
  }

  HRESULT GetExplicitParent(VOXAnalysisExplicitParent& oParent, unsigned char) const override
  {
    if (My().document == nullptr)
      return E_FAIL;
    const std::vector<std::int32_t> tags = My().Integers("ExplicitTag");
    VOXExplicitAccess::Target(oParent, tags.empty() ? nullptr : My().document->model.Find(tags.front()));
    return S_OK;
  }

  HRESULT ListTags(VOXRawCollint& ioTags) const override
  {
    for (const std::int32_t tag : My().Integers("ExplicitTag"))
      ioTags.Append(tag);
    return My().document == nullptr ? E_FAIL : S_OK;
  }

  HRESULT ListParents(VOXAnalysisExplicitListUsr& ioParents) const override
  {
    for (const std::int32_t tag : My().Integers("ExplicitTag"))
    {
      VOXAnalysisExplicitParent parent;
      parent.LinkWithTag(tag, &My().document->model);
      if (parent != NULL_exp && FAILED(ioParents.Append(parent)))
        return E_FAIL;
    }
    return My().document == nullptr ? E_FAIL : S_OK;
  }

  unsigned char GetActivity() const override { return My().document == nullptr ? 0 : 1; }

  HRESULT SetExplicitState(int iState) override
  {
    My().explicitState = iState;
    return S_OK;
  }
};

#define OTHERHOST_RESERVED(Operation)                                                                                  \
  HRESULT Operation() override                                                                                         \
  {                                                                                                                    \
    return E_NOTIMPL;                                                                                                  \
  }

class Entity final : public FeatureFace<VOXISamAnalysisEntity>
{
public:
  HRESULT GetAnalysisSet(VOXBaseUnknown_var& oSet) const override
  {
    if (!StandsInSet())
      return E_FAIL;
    oSet = static_cast<VOXBaseUnknown*>(My().father);
    return S_OK;
  }

  unsigned char IsShownUnderItsSet() const override { return StandsInSet() ? 1 : 0; }

  HRESULT ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const override
  {
    using Fathers = std::vector<Feature*>;
    oFathers = NewListOf<VOXListValVOXBaseUnknown_var>(My().father == nullptr ? Fathers() : Fathers{My().father});
    return S_OK;
  }

  // A role is an attribute of that name.
  HRESULT ListByRole(VOXListValVOXBaseUnknown_var*& oObjects, const VOXUnicodeString& iRole) const override
  {
    if (My().document == nullptr || My().IndexOf(iRole) < 0)
      return E_FAIL;
    oObjects = NewListOf<VOXListValVOXBaseUnknown_var>(My().Features(iRole.ConvertToChar()));
    return oObjects == nullptr ? S_FALSE : S_OK;
  }

  OTHERHOST_RESERVED(ReservedEntity1)
  OTHERHOST_RESERVED(ReservedEntity2)
  OTHERHOST_RESERVED(ReservedEntity3)
  OTHERHOST_RESERVED(ReservedEntity4)
  OTHERHOST_RESERVED(ReservedEntity5)
  OTHERHOST_RESERVED(ReservedEntity6)
  OTHERHOST_RESERVED(ReservedEntity7)
  OTHERHOST_RESERVED(ReservedEntity8)
  OTHERHOST_RESERVED(ReservedEntity10)
  OTHERHOST_RESERVED(ReservedEntity11)
  OTHERHOST_RESERVED(ReservedEntity12)
  OTHERHOST_RESERVED(ReservedEntity14)
  OTHERHOST_RESERVED(ReservedEntity15)
  OTHERHOST_RESERVED(ReservedEntity16)

private:
  bool StandsInSet() const { return My().father != nullptr && (My().father->type->roles & kSet) != 0; }
};

class Set final : public FeatureFace<VOXISamAnalysisSet>
{
public:
  HRESULT ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const override
  {
    using Fathers = std::vector<Feature*>;
    oFathers = NewListOf<VOXListValVOXBaseUnknown_var>(My().father == nullptr ? Fathers() : Fathers{My().father});
    return S_OK;
  }

  HRESULT GetMemberByName(const VOXUnicodeString& iName, VOXISpecObject_var& oMember, int) const override
  {
    oMember = NULL_var;
    for (Feature* const member : My().Features("SonsList"))
      if (!oMember && member->name == iName)
        oMember = static_cast<VOXBaseUnknown*>(member);
    return S_OK;
  }

  HRESULT ListMembers(const char* iInterfaceName, VOXListValVOXISpecObject_var& oMembers, int) const override
  {
    oMembers.RemoveAll();
    for (Feature* const member : My().Features("SonsList"))
    {
      VOXBaseUnknown* const face = static_cast<const VOXBaseUnknown*>(member)->QueryInterface(iInterfaceName);
      if (face == nullptr)
        continue;
      oMembers.Append(VOXISpecObject_var(face));
      face->Release();
    }
    return S_OK;
  }

  OTHERHOST_RESERVED(ReservedSet1)
  OTHERHOST_RESERVED(ReservedSet2)
  OTHERHOST_RESERVED(ReservedSet3)
  OTHERHOST_RESERVED(ReservedSet4)
  OTHERHOST_RESERVED(ReservedSet5)
  OTHERHOST_RESERVED(ReservedSet6)
  OTHERHOST_RESERVED(ReservedSet7)
  OTHERHOST_RESERVED(ReservedSet8)
  OTHERHOST_RESERVED(ReservedSet9)
  OTHERHOST_RESERVED(ReservedSet10)
  OTHERHOST_RESERVED(ReservedSet11)
  OTHERHOST_RESERVED(ReservedSet12)
  OTHERHOST_RESERVED(ReservedSet13)
  OTHERHOST_RESERVED(ReservedSet14)
  OTHERHOST_RESERVED(ReservedSet15)
  OTHERHOST_RESERVED(ReservedSet16)
  OTHERHOST_RESERVED(ReservedSet17)
  OTHERHOST_RESERVED(ReservedSet18)
  OTHERHOST_RESERVED(ReservedSet19)
  OTHERHOST_RESERVED(ReservedSet20)
  OTHERHOST_RESERVED(ReservedSet21)
  OTHERHOST_RESERVED(ReservedSet22)
  OTHERHOST_RESERVED(ReservedSet23)
  OTHERHOST_RESERVED(ReservedSet24)
  OTHERHOST_RESERVED(ReservedSet25)
};

class BasicComponent final : public FeatureFace<VOXISamBasicComponent>
{
public:
  HRESULT InitializeAfterCreation() override
  {
    My().Changed();
    return S_OK;
  }

  VOXUnicodeString GetName() const override { return My().name; }

  HRESULT GetDimensions(int& oValues, int& oRows, int& oLayers, const VOXUnicodeString&) const override
  {
    if (My().document == nullptr)
      return E_FAIL;
    oValues = Count("ValuesDim");
    oRows = Count("Rows");
    oLayers = Count("Layers");
    return S_OK;
  }

  HRESULT GetValue(VOXBaseUnknown_var& oValue, const VOXUnicodeString&, int, int, int) const override
  {
    if (My().document == nullptr)
      return E_FAIL;
    if (!My().parameter && !My().type->enumeration.empty())
    {
      VOXBaseUnknown* const made = NewParameter(My().type->enumeration);
      My().parameter = made;
      made->Release();
    }
    oValue = My().parameter;
    return S_OK;
  }

  HRESULT CreateSubComponent(const VOXUnicodeString& iType, const VOXUnicodeString&, const VOXBaseUnknown_var&) override
  {
    Feature* const made = My().document == nullptr ? nullptr : My().document->New(iType.ConvertToChar(), iType);
    const int sons = My().IndexOf("SonsList");
    return made == nullptr || sons < 0 ? E_FAIL : My().Hold(sons, 0, *made);
  }

  HRESULT ListSubComponents(VOXListValVOXBaseUnknown_var*& oComponents, const VOXUnicodeString&) const override
  {
    if (My().document == nullptr)
      return E_FAIL;
    oComponents = NewListOf<VOXListValVOXBaseUnknown_var>(My().Features("SonsList"));
    return S_OK;
  }

  HRESULT RemoveSubComponent(const VOXBaseUnknown_var& iComponent) override
  {
    return VOXISpecObject_var(&My())->RemoveComponent(iComponent, 0);
  }

private:
  int Count(const char* iAttribute) const
  {
    const std::vector<std::int32_t> count = My().Integers(iAttribute);
    return count.empty() ? 1 : count.front();
  }
};

class Support final : public FeatureFace<VOXISamAnalysisSupport>
{
public:
  HRESULT ListSupports(VOXListValVOXBaseUnknown_var& ioSupports, const CLSID&) const override
  {
    for (Feature* const support : My().Features("Supports"))
      ioSupports.Append(static_cast<VOXBaseUnknown*>(support));
    return S_OK;
  }
};

class MeshPartFilter final : public FeatureFace<VOXISamMeshPartFilter>
{
public:
  HRESULT ListDesigners(VOXListValVOXISpecObject_var*& oDesigners) const override
  {
    oDesigners = NewListOf<VOXListValVOXISpecObject_var>(My().Features("Designers"));
    return S_OK;
  }
};

class ModelFactory final : public FeatureFace<VOXISamAnalysisModelFactory>
{
public:
  VOXBaseUnknown* CreateEntity(const VOXUnicodeString& iName, const VOXUnicodeString& iType, VOXBaseUnknown*) override
  {
    Feature* const made = My().document == nullptr ? nullptr : My().document->New(iType.ConvertToChar(), iName);
    if (made != nullptr)
      made->AddRef();
    return made;
  }
};

// Knowledge parameters: one component, of which value, type and enumeration are faces.

constexpr const char* kParameterType = "OtherParameter";

class Parameter final : public VOXBaseUnknown
{
public:
  explicit Parameter(const std::vector<std::string>& iEntries) : entries(iEntries) {}
  static Parameter& Of(const VOXBaseUnknown* iFace) { return *static_cast<Parameter*>(iFace->GetImpl()); }

  std::vector<std::string> entries;
  int selected = 0; // from 1
};

class ParameterType final : public VOXICkeType
{
public:
  VOXCke::Boolean IsAKindOfType(VOXCkeContext::TypeKind iKind) const override
  {
    return iKind == VOXCkeContext::EnumType ? VOXCke::True : VOXCke::False;
  }
};

class ParameterValue final : public VOXICkeInst
{
public:
  VOXUnicodeString AsString() const override
  {
    const Parameter& my = Parameter::Of(this);
    return my.selected == 0 ? VOXUnicodeString()
                            : VOXUnicodeString(my.entries[static_cast<std::size_t>(my.selected) - 1].c_str());
  }
  int AsInteger() const override { return Parameter::Of(this).selected; }
};

class ParameterFace final : public VOXICkeParm
{
public:
  VOXICkeInst_var Value() const override { return VOXICkeInst_var(GetImpl()); }
  HRESULT Valuate(int iValue) override
  {
    Parameter& my = Parameter::Of(this);
    if (iValue < 0 || static_cast<std::size_t>(iValue) > my.entries.size())
      return E_FAIL;
    my.selected = iValue;
    return S_OK;
  }
};

class Enumeration final : public VOXIEnumere
{
public:
  VOXListValVOXUnicodeString GetValueList(int) const override
  {
    VOXListValVOXUnicodeString names;
    for (const std::string& entry : Parameter::Of(this).entries)
      names.Append(entry.c_str());
    return names;
  }
};

template <class Interface, class Face>
void DeclareRole(const FeatureType& iType, unsigned iRole)
{
  if ((iType.roles & iRole) != 0)
    VOXExtendLateType<Interface, Face>(iType.name.c_str());
}

} // namespace

void DeclareRoles(const FeatureType& iType)
{
  DeclareRole<VOXISamExplicit, Explicit>(iType, kExplicit);
  DeclareRole<VOXISamAnalysisEntity, Entity>(iType, kEntity);
  DeclareRole<VOXISamAnalysisSet, Set>(iType, kSet);
  DeclareRole<VOXISamBasicComponent, BasicComponent>(iType, kBasicComponent);
  DeclareRole<VOXISamAnalysisSupport, Support>(iType, kSupport);
  DeclareRole<VOXISamMeshPartFilter, MeshPartFilter>(iType, kMeshPartFilter);
  DeclareRole<VOXISamAnalysisModelFactory, ModelFactory>(iType, kModelFactory);
}

VOXBaseUnknown* NewParameter(const std::vector<std::string>& iEntries)
{
  if (VOXDeclareLateType(kParameterType, nullptr) == S_OK)
  {
    VOXExtendLateType<VOXICkeParm, ParameterFace>(kParameterType);
    VOXExtendLateType<VOXICkeType, ParameterType>(kParameterType);
    VOXExtendLateType<VOXICkeInst, ParameterValue>(kParameterType);
    VOXExtendLateType<VOXIEnumere, Enumeration>(kParameterType);
  }
  auto* const made = new Parameter(iEntries);
  VOXComponentRuntime::Implement(made, kParameterType);
  return made;
}

} // namespace otherhost
