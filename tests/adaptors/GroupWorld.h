// SPDX-License-Identifier: MIT
#pragma once

#include "VOXEAnalysisGroup.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Ledger.h"
#include "tests/support/Bench.h"
#include "tests/support/ScriptedInterfaces.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace voxtest
{

//! What the feature type under a group answers.
struct GroupScript
{
  HRESULT kindsResult = S_OK;
  std::vector<VOXSamValue> kinds{VOXSamValueNode, VOXSamValueElement};
  HRESULT keywordsResult = S_OK;
  int goodKeywordCalls = -1; //!< calls of operation 3 that succeed before keywordsResult counts; -1: as many as come
  std::map<VOXSamValue, std::vector<VOXString>> keywords{{VOXSamValueNode, {"NODE"}},
                                                         {VOXSamValueElement, {"EDGE", "FACE", "ELEMENT"}}};
  HRESULT pointersResult = S_OK;
  std::vector<VOXSamModelDataRoot*> pointers; //!< none: the caller's array stays null
  std::vector<int> indices;                   //!< none: the caller's array stays null
  std::optional<int> count;                   //!< a count other than that of the pointers
  std::function<void()> whenAskedForPointers;
};

//! A group feature type that derives from the adaptor and is told what to answer.
class ScriptedGroup : public Scripted<VOXEAnalysisGroup, GroupScript>
{
public:
  using Carries = VOXISamGroup;

  HRESULT GetDefinitionType(VOXUnicodeString&) const override
  {
    CallLog::Enter("VOXISamGroup::GetDefinitionType");
    return S_OK;
  }

  HRESULT GetValueKinds(int& oCount, const VOXSamValue*& oValues) const override
  {
    if (CallLog::Enter("VOXISamGroup::GetValueKinds"))
      return E_FAIL;
    oCount = static_cast<int>(Told().kinds.size());
    oValues = Told().kinds.data();
    return Told().kindsResult;
  }

  HRESULT GetKeywords(VOXSamValue iValue, int& oCount, const VOXString*& oKeywords) const override
  {
    if (CallLog::Enter("VOXISamGroup::GetKeywords", static_cast<int>(iValue)))
      return E_FAIL;
    const std::vector<VOXString>& keywords = Told().keywords[iValue];
    oCount = static_cast<int>(keywords.size());
    oKeywords = keywords.data();
    if (Told().goodKeywordCalls == 0)
      return Told().keywordsResult;
    --Told().goodKeywordCalls;
    return Told().goodKeywordCalls < 0 ? Told().keywordsResult : S_OK;
  }

  HRESULT GetSupports(VOXListValVOXBaseUnknown_var&) const override
  {
    CallLog::Enter("VOXISamGroup::GetSupports");
    return S_OK;
  }

  HRESULT GetExplicitPointers(VOXSamValue iValue, VOXString iEntityType, int& oCount, VOXSamModelDataRoot**& oPointers,
                              int*& oIndices) const override
  {
    const GroupScript& told = Told();
    if (CallLog::Enter("VOXISamGroup::GetExplicitPointers", static_cast<int>(iValue),
                       static_cast<const char*>(iEntityType)))
      return E_FAIL;
    oCount = told.count.value_or(static_cast<int>(told.pointers.size()));
    oPointers = NewArray(told.pointers);
    oIndices = NewArray(told.indices);
    if (told.whenAskedForPointers)
      told.whenAskedForPointers();
    return told.pointersResult;
  }

private:
  template <class T>
  static T* NewArray(const std::vector<T>& iValues)
  {
    if (iValues.empty())
      return nullptr;
    T* const array = new T[iValues.size()];
    std::copy(iValues.begin(), iValues.end(), array);
    return voxhost::Ledger::HandOut(array);
  }
};

//! A group feature, a mesh of four nodes and two elements, and the group's object in the explicit model.
//! At the start the feature is up to date, and its object has one child, a NODE_GROUP of nodes 2 and 4.
class GroupWorld
{
public:
  GroupWorld();

  VOXISamGroup* Group() const { return _Group; }
  VOXBaseUnknown* Feature() const { return _Feature; }
  GroupScript& Told() const { return ScriptedGroup::ScriptOf(_Feature); }
  ExplicitScript& Explicit() const { return ScriptedExplicit::ScriptOf(_Feature); }
  SpecObjectScript& Spec() const { return ScriptedSpecObject::ScriptOf(_Feature); }
  voxhost::ExplicitModel& Model() { return _Model; }
  VOXAnalysisExplicitEntity& Entity() { return _Entity; }
  VOXAnalysisExplicitEntity& Child() { return _Child; }

  //! Makes the group's object one without children.
  void DropChild() { _Child.Delete(); }

  //! A child of the group's object that applies to places of the mesh.
  VOXAnalysisExplicitEntity AddChild(const char* iPhysicalType, VOXSamPosition iPosition,
                                     std::vector<std::uint32_t> iPlaces, std::vector<std::uint8_t> iSides = {});

  VOXSamModelDataRoot* Node(int iId) const { return VOXExplicitAccess::Object(_Model.FindNode(iId)); }
  VOXSamModelDataRoot* Element(int iId) const { return VOXExplicitAccess::Object(_Model.FindElement(iId)); }

  //! A collector attached to the group's object, as an earlier request left it: the model's reference is its only one.
  VOXAnalysisEntityCollector* Attach(VOXSamValue iValue, const char* iEntityType,
                                     const std::vector<VOXSamModelDataRoot*>& iObjects);

  //! The collector that is attached under a definition, borrowed; null when there is none.
  VOXAnalysisEntityCollector* Attached(VOXSamValue iValue, const char* iEntityType) const;

private:
  voxhost::ExplicitModel _Model;
  VOXAnalysisExplicitEntity _Entity;
  VOXAnalysisExplicitEntity _Child;
  Bench _Bench;
  VOXBaseUnknown* _Feature;
  VOXISamGroup_var _Group;
};

//! A group's content: the result, and the collector, which the object gives back when it dies.
class Content
{
public:
  Content(const GroupWorld& iWorld, VOXSamValue iValue, const char* iEntityType);
  ~Content() { GiveBack(); }
  Content(const Content&) = delete;
  Content& operator=(const Content&) = delete;

  HRESULT Result() const { return _Result; }
  const VOXAnalysisEntityCollector* Collector() const { return _Collector; }
  const VOXAnalysisEntityCollector* operator->() const { return _Collector; }

  std::vector<VOXSamModelDataRoot*> Objects() const;
  std::vector<int> Indices() const; //!< none when there are none

  //! References on the collector, the caller's among them.
  int References() const;

  void GiveBack();

private:
  HRESULT _Result;
  const VOXAnalysisEntityCollector* _Collector;
};

//! The entities of a collector.
std::vector<VOXSamModelDataRoot*> ObjectsOf(const VOXAnalysisEntityCollector& iCollector);

} // namespace voxtest
