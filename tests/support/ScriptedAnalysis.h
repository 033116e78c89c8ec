// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamAnalysisSupport.h"
#include "AnalysisInterfaces/VOXISamMeshPartFilter.h"
#include "AnalysisInterfaces/VOXISamViewManager.h"
#include "ObjectModeler/VOXIRedrawEvent.h"
#include "tests/support/Scripted.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace voxtest
{

using Objects = std::vector<VOXBaseUnknown*>; // borrowed; null for an empty handle

//! A new list of handles; caller deletes.
VOXListValVOXBaseUnknown_var* NewList(const Objects& iObjects);

//! What a scripted VOXISamAnalysisEntity answers. Objects are borrowed and must outlive the script.
struct AnalysisEntityScript
{
  VOXBaseUnknown* set = nullptr;
  unsigned char shownUnderItsSet = 1;
  std::optional<Objects> shownUnder; //!< none: no list is given
  HRESULT roleResult = S_OK;         //!< of roles that are not in the results
  std::map<std::string, HRESULT> roleResults;
  std::map<std::string, Objects> roles; //!< a role that is not here gives no list, whatever the result
  std::function<void(const std::string& iRole)> whenAskedForRole;
};

class ScriptedAnalysisEntity : public Scripted<VOXISamAnalysisEntity, AnalysisEntityScript>
{
public:
  HRESULT ReservedEntity1() override { return E_NOTIMPL; }
  HRESULT ReservedEntity2() override { return E_NOTIMPL; }
  HRESULT ReservedEntity3() override { return E_NOTIMPL; }
  HRESULT ReservedEntity4() override { return E_NOTIMPL; }
  HRESULT ReservedEntity5() override { return E_NOTIMPL; }
  HRESULT ReservedEntity6() override { return E_NOTIMPL; }
  HRESULT ReservedEntity7() override { return E_NOTIMPL; }
  HRESULT ReservedEntity8() override { return E_NOTIMPL; }
  HRESULT ReservedEntity10() override { return E_NOTIMPL; }
  HRESULT ReservedEntity11() override { return E_NOTIMPL; }
  HRESULT ReservedEntity12() override { return E_NOTIMPL; }
  HRESULT ReservedEntity14() override { return E_NOTIMPL; }
  HRESULT ReservedEntity15() override { return E_NOTIMPL; }
  HRESULT ReservedEntity16() override { return E_NOTIMPL; }

  HRESULT GetAnalysisSet(VOXBaseUnknown_var& oSet) const override;
  unsigned char IsShownUnderItsSet() const override;
  HRESULT ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const override;
  HRESULT ListByRole(VOXListValVOXBaseUnknown_var*& oObjects, const VOXUnicodeString& iRole) const override;
};

//! What a scripted VOXISamAnalysisSet answers.
struct AnalysisSetScript
{
  std::optional<Objects> shownUnder; //!< none: no list is given
  std::map<std::string, VOXBaseUnknown*> membersByName;
  Objects members; //!< what a listing by interface gives
  std::function<void(VOXListValVOXISpecObject_var&)> whenListed;
};

class ScriptedAnalysisSet : public Scripted<VOXISamAnalysisSet, AnalysisSetScript>
{
public:
  HRESULT ReservedSet1() override { return E_NOTIMPL; }
  HRESULT ReservedSet2() override { return E_NOTIMPL; }
  HRESULT ReservedSet3() override { return E_NOTIMPL; }
  HRESULT ReservedSet4() override { return E_NOTIMPL; }
  HRESULT ReservedSet5() override { return E_NOTIMPL; }
  HRESULT ReservedSet6() override { return E_NOTIMPL; }
  HRESULT ReservedSet7() override { return E_NOTIMPL; }
  HRESULT ReservedSet8() override { return E_NOTIMPL; }
  HRESULT ReservedSet9() override { return E_NOTIMPL; }
  HRESULT ReservedSet10() override { return E_NOTIMPL; }
  HRESULT ReservedSet11() override { return E_NOTIMPL; }
  HRESULT ReservedSet12() override { return E_NOTIMPL; }
  HRESULT ReservedSet13() override { return E_NOTIMPL; }
  HRESULT ReservedSet14() override { return E_NOTIMPL; }
  HRESULT ReservedSet15() override { return E_NOTIMPL; }
  HRESULT ReservedSet16() override { return E_NOTIMPL; }
  HRESULT ReservedSet17() override { return E_NOTIMPL; }
  HRESULT ReservedSet18() override { return E_NOTIMPL; }
  HRESULT ReservedSet19() override { return E_NOTIMPL; }
  HRESULT ReservedSet20() override { return E_NOTIMPL; }
  HRESULT ReservedSet21() override { return E_NOTIMPL; }
  HRESULT ReservedSet22() override { return E_NOTIMPL; }
  HRESULT ReservedSet23() override { return E_NOTIMPL; }
  HRESULT ReservedSet24() override { return E_NOTIMPL; }
  HRESULT ReservedSet25() override { return E_NOTIMPL; }

  HRESULT ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const override;
  HRESULT GetMemberByName(const VOXUnicodeString& iName, VOXISpecObject_var& oMember, int iMode) const override;
  HRESULT ListMembers(const char* iInterfaceName, VOXListValVOXISpecObject_var& oMembers, int iMode) const override;
};

//! What a scripted VOXISamAnalysisSupport answers.
struct AnalysisSupportScript
{
  Objects supports; //!< appended
  HRESULT result = S_OK;
  std::function<void(const VOXListValVOXBaseUnknown_var& iSoFar)> whenAsked;
};

class ScriptedAnalysisSupport : public Scripted<VOXISamAnalysisSupport, AnalysisSupportScript>
{
public:
  HRESULT ListSupports(VOXListValVOXBaseUnknown_var& ioSupports, const CLSID& iType) const override;
};

//! What a scripted VOXISamMeshPartFilter answers.
struct MeshPartFilterScript
{
  std::optional<Objects> designers; //!< none: the caller's pointer is set to null
  HRESULT result = S_OK;
  std::function<void()> whenAsked;
};

class ScriptedMeshPartFilter : public Scripted<VOXISamMeshPartFilter, MeshPartFilterScript>
{
public:
  HRESULT ListDesigners(VOXListValVOXISpecObject_var*& oDesigners) const override;
};

//! What happens while a scripted VOXISamViewManager is called.
struct ViewManagerScript
{
  std::map<const VOXBaseUnknown*, std::string> names; //!< of the objects, for the record
  std::function<void(VOXBaseUnknown* iObject, int iView)> whenShown;
  std::function<void()> whenTold; //!< of a new no-show status
};

class ScriptedViewManager : public Scripted<VOXISamViewManager, ViewManagerScript>
{
public:
  void Show(VOXBaseUnknown* iObject, int iView) override;
  void UpdateShowStatus(int iMode) override;
};

struct RedrawEventScript
{
  std::function<void()> whenAsked;
};

class ScriptedRedrawEvent : public Scripted<VOXIRedrawEvent, RedrawEventScript>
{
public:
  void ReservedRedrawEvent1() override {}
  void ReservedRedrawEvent2() override {}
  void ReservedRedrawEvent3() override {}
  void ReservedRedrawEvent4() override {}
  void ReservedRedrawEvent5() override {}
  void ReservedRedrawEvent6() override {}
  void ReservedRedrawEvent7() override {}

  void RequestRedraw() override;
};

} // namespace voxtest
