// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXTypeDictionary.h"
#include "ExplicitModel/VOXAnalysisCollectorRoot.h"
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "tests/anyhost/TestHost.h"

#include <cstring>

#include <gtest/gtest.h>

namespace anyhost
{

//! The types of the tests.
const std::vector<Type>& TestTypes();

//! A world per test, all of which is gone at its end.
class AnyHost : public testing::Test
{
protected:
  AnyHost();
  ~AnyHost() override; // behind the members of the deriving class, which may hold references

  VOXBaseUnknown* New(const char* iType, const char* iName = "");

  //! A feature that holds others in its attribute "SonsList".
  void Hold(VOXBaseUnknown* iFather, VOXBaseUnknown* iSon);

  //! Makes a feature the one that produced an object of the model, and brings it up to date.
  void Link(VOXBaseUnknown* iFeature, const VOXAnalysisExplicitChild& iObject);

  //! The objects of the model that a collector gathers, as handles.
  std::vector<VOXAnalysisExplicitChild> EntitiesOf(const VOXAnalysisCollectorRoot& iCollector);

  //! Expects that exactly one error was reported first, and forgets all.
  void ExpectFirstReport(VOXSamErrorType iKind, const char* iText, const char* iClass);

  std::unique_ptr<World> world;
  long leftOver = 0; // objects that an adaptor is known not to give back

private:
  long _LiveBefore;
};

//! The key of an attribute, and the access to it.
struct AttributeOf
{
  AttributeOf(VOXBaseUnknown* iFeature, const char* iName) : access(iFeature)
  {
    VOXISpecAttrKey* const found = access->GetAttrKey(iName);
    key = found;
    if (found != nullptr)
      found->Release();
  }
  VOXISpecAttrAccess_var access;
  VOXISpecAttrKey_var key;
};

//! References on a component, those of the caller among them.
unsigned long References(VOXBaseUnknown* iObject);

void SetUpToDate(VOXBaseUnknown* iFeature, bool iUpToDate);
void WriteInteger(VOXBaseUnknown* iFeature, const char* iAttribute, int iValue);
void Refer(VOXBaseUnknown* iFeature, const char* iAttribute, VOXBaseUnknown* iReferred);
std::vector<std::string> NamesIn(VOXBaseUnknown* iFeature, const char* iAttribute);
std::string NameOf(const VOXBaseUnknown* iFeature);

} // namespace anyhost
