// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "Model.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace otherhost
{

class Document;
class Feature;

//! Interfaces that features of a type carry beside those of every feature (VOXISpecObject, VOXISpecAttrAccess, VOXIAlias,
//! VOXILinkableObject). Bits, inherited by the types that derive.
enum Roles : unsigned
{
  kExplicit = 1,
  kEntity = 2,
  kSet = 4,
  kBasicComponent = 8,
  kSupport = 16,
  kMeshPartFilter = 32,
  kModelFactory = 64
};

//! A component that a start-up holds, and each of its instances with it.
struct Part
{
  std::string name;
  std::string type;
};

struct Attribute
{
  std::string name;
  int type;
  int elementType = 0;
  std::vector<Part> parts{};

  bool HoldsComponents() const { return type == VOXSpecComponent || elementType == VOXSpecComponent; }
};

//! A feature type; its name is the late type of its features, and the name of its start-up.
struct FeatureType
{
  std::string name;
  std::string base{};
  std::string physicalType{};
  unsigned roles = 0;
  std::vector<Attribute> attributes{};    // those of the base first, once declared
  std::vector<std::string> enumeration{}; // of a basic component: its value is a parameter of this type

  int IndexOf(const std::string& iAttribute) const;
};

//! The value of one attribute; of a single one there is one element at most.
struct Value
{
  bool isIntegerList = false; // of an attribute that was declared to be a single integer
  std::vector<double> reals{};
  std::vector<std::int32_t> integers{};
  std::vector<VOXUnicodeString> texts{};
  std::vector<VOXBaseUnknown_var> objects{}; // implementation objects
};

//! Implementation object of a feature. The document holds the reference that it was born with until it removes it; a
//! removed feature has no document, and its operations fail.
class Feature final : public VOXBaseUnknown
{
public:
  Feature(Document& iDocument, const FeatureType& iType, Feature* iStartUp, const VOXUnicodeString& iName);

  //! The feature that a face belongs to, borrowed; null for none.
  static Feature* Of(const VOXBaseUnknown* iFace);

  //! @return -1 when there is no such attribute.
  int IndexOf(const VOXUnicodeString& iAttribute) const;
  int IndexOf(const VOXISpecAttrKey* iKey) const;
  int TypeOf(int iIndex) const;
  int ElementTypeOf(int iIndex) const;

  //! The value, the feature's own or its start-up's; null when there has never been one.
  const Value* Find(int iIndex) const;
  //! The feature's own value, to be changed: at first that of its start-up.
  Value& Own(int iIndex);
  bool IsOwn(int iIndex) const { return own.count(iIndex) != 0; }

  std::vector<Feature*> Features(const char* iAttribute) const;
  std::vector<std::int32_t> Integers(const char* iAttribute) const;
  HRESULT Hold(int iIndex, int iPosition, Feature& iObject);
  void Leave();
  void Changed();

  Document* document;
  const FeatureType* type;
  Feature* startUp; // null for a start-up
  Feature* father = nullptr;
  std::map<int, Value> own{};
  VOXUnicodeString name;
  VOXUnicodeString identifyingString;
  VOXUnicodeString alias{};
  VOXBaseUnknown_var parameter{};
  unsigned int identifier;
  std::int32_t timeStamp = 0;
  int explicitState = 1;
  bool isUpToDate = false;
  bool isSubscribed = true;
};

//! The features of an analysis, in one container, and their start-ups. It owns all of them.
class Document
{
public:
  explicit Document(Model& iModel);
  ~Document();
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  //! Adds a type behind its base.
  void Declare(FeatureType iType);

  //! Makes an instance, borrowed; null for an unknown type. @param iName empty for one of the document's choice.
  Feature* New(const std::string& iType, const VOXUnicodeString& iName);
  Feature* New(Feature& iStartUp, const VOXUnicodeString& iName);
  Feature* StartUp(const std::string& iType);
  void Remove(Feature& iFeature);

  //! The container, borrowed.
  VOXBaseUnknown* Container() const { return _Container; }

  //! Start-ups as well as instances, in the order in which they were made.
  const std::vector<Feature*>& All() const { return _Features; }

  Model& model;
  std::int32_t clock = 0;
  unsigned int lastIdentifier = 4000; // of another document

private:
  Feature* Keep(Feature* iFeature);
  Feature* NewStartUp(const FeatureType& iType, const VOXUnicodeString& iName);

  std::map<std::string, std::unique_ptr<FeatureType>> _Types;
  std::map<std::string, Feature*> _StartUps;
  std::vector<Feature*> _Features;
  VOXBaseUnknown* _Container;
};

//! The document behind a container; null for none.
Document* DocumentOf(const VOXBaseUnknown* iContainer);

//! Declares what features of every type and of one type carry.
void DeclareRootType();
void DeclareRoles(const FeatureType& iType);

//! A parameter of an enumeration, with one reference for the caller; its first value is none.
VOXBaseUnknown* NewParameter(const std::vector<std::string>& iEntries);

constexpr const char* kRootType = "OtherFeature";

//! The face of a component, with one reference for the caller; null when it has none.
template <class Interface>
Interface* NewReference(const VOXBaseUnknown* iComponent)
{
  void* face = nullptr;
  if (iComponent != nullptr)
    const_cast<VOXBaseUnknown*>(iComponent)->QueryInterface(Interface::ClassId(), &face);
  return static_cast<Interface*>(face);
}

//! What every face of a feature begins with.
template <class Interface>
class FeatureFace : public Interface
{
protected:
  Feature& My() const { return *Feature::Of(this); }
};

} // namespace otherhost
