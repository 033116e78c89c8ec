// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "FeatureModeler/VOXSpecPointing.h"
#include "Visualization/VOXIMSHVisuGrouper.h"
#include "tests/support/Scripted.h"

#include <functional>
#include <string>
#include <vector>

namespace voxtest
{

//! What a scripted VOXISamExplicit answers. The results are those of calls that are not told to fail.
struct ExplicitScript
{
  std::string physicalType;
  VOXAnalysisExplicitModel* model = nullptr; //!< borrowed
  VOXAnalysisExplicitParent parent;
  HRESULT parentResult = S_OK; //!< a failure leaves the caller's handle untouched
  std::vector<int> tags;
  bool replacesTags = false; //!< whether a listing empties the caller's list first; the contract says that it appends
  std::function<void(const VOXRawCollint& iSoFar)> whenAskedForTags;
  std::vector<VOXAnalysisExplicitParent> parents;
  unsigned char activity = 1;
  std::function<void()> whenAskedForParent; //!< something that happens meanwhile: a call back into the adaptor, say
};

class ScriptedExplicit : public Scripted<VOXISamExplicit, ExplicitScript>
{
public:
  VOXString GetPhysicalTypeName() const override;
  VOXAnalysisExplicitModel* GetExplicitModel() const override;
  HRESULT GetExplicitParent(VOXAnalysisExplicitParent& oParent, unsigned char iMode) const override;
  HRESULT ListTags(VOXRawCollint& ioTags) const override;
  HRESULT ListParents(VOXAnalysisExplicitListUsr& ioParents) const override;
  unsigned char GetActivity() const override;
  HRESULT SetExplicitState(int iState) override;
};

//! What a scripted VOXISpecObject answers. Pointers are borrowed and must outlive the script.
struct SpecObjectScript
{
  std::string type;                     //!< a type that the type test says yes to
  std::vector<std::string> alsoOfTypes; //!< further ones
  unsigned char upToDate = 1;
  HRESULT updateResult = S_OK; //!< a success makes the feature up to date
  VOXISpecObject* startUp = nullptr;
  VOXIContainer* container = nullptr;
  VOXBaseUnknown* father = nullptr;
  VOXISpecObject* instance = nullptr; //!< what an instantiation gives
  std::string name;
  std::string identifyingString;
  int timeStamp = 1;
  VOXISpecObject* related = nullptr;
  VOXBaseUnknown* modelFactory = nullptr;
  HRESULT removeResult = S_OK;
  HRESULT handOverResult = S_OK;
};

class ScriptedSpecObject : public Scripted<VOXISpecObject, SpecObjectScript>
{
public:
  int IsSubTypeOf(const VOXUnicodeString& iType) const override;
  unsigned char IsUpToDate(const VOXIDomain_var& iDomain) const override;
  HRESULT Update(const VOXIDomain_var& iDomain) override;
  VOXISpecObject* GetStartUp() const override;
  HRESULT GetContainer(VOXIContainer_var& oContainer) const override;
  HRESULT GetFather(VOXBaseUnknown_var& oFather) const override;
  VOXBaseUnknown* GetFatherObject() const override;
  VOXISpecObject* Instantiate(const VOXUnicodeString& iName, const VOXIContainer_var& iContainer,
                              VOXBaseUnknown* iContext) override;
  VOXUnicodeString GetName() const override;
  VOXUnicodeString GetIdentifyingString() const override;
  void SetIdentifyingString(const VOXUnicodeString& iString) override;
  std::int32_t GetTimeStamp() const override;
  HRESULT GetPointings(VOXListPtrVOXSpecPointing& ioPointings) const override;
  HRESULT RemoveComponent(const VOXBaseUnknown_var& iComponent, int iMode) override;
  HRESULT HandOver(const VOXUnicodeString& iFromAttribute, const VOXISpecObject_var& iNewFather,
                   const VOXUnicodeString& iToAttribute) override;
  VOXISpecObject* GetRelatedObject() const override;
  VOXBaseUnknown* GetModelFactory() const override;
  HRESULT Unsubscribe(int iMode) override;
};

//! What a scripted VOXIMSHVisuGrouper answers.
struct VisuGrouperScript
{
  void* visuObject = nullptr;
};

class ScriptedVisuGrouper : public Scripted<VOXIMSHVisuGrouper, VisuGrouperScript>
{
public:
  void* GetVisuObject() override;
};

} // namespace voxtest
