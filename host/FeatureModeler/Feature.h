// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXISpecObject.h"
#include "host/ComponentRuntime/Component.h"
#include "host/FeatureModeler/ReferrerSet.h"
#include "host/FeatureModeler/TypeCatalogue.h"

#include <span>

class VOXAnalysisExplicitModel;
class VOXICkeParm;

namespace voxhost
{

class Container;
class Document;

//! Implementation object of every feature. It carries VOXISpecObject itself; its other faces are extension objects that
//! are made when they are first asked for.
//!
//! - Owned by its document, which holds the reference that the feature was born with until it removes the feature.
//!   A removed feature that somebody still holds has no document, attributes or father, and its operations fail.
//! - Values are kept for local attributes only. Scalars, texts, lists of them, and references are inherited from the
//!   start-up until they are written; components are the feature's own from the start.
//! - Writing a component into a component attribute takes it out of the attribute that held it: a feature has one father.
//! - The operations below are the host's own: builders and stores use them; no fault point stands in their way.
class VOX_HOST_API Feature final : public VOXISpecObject
{
public:
  //! The feature that a face belongs to, borrowed; null when its component is no feature of the reference host.
  static Feature* Of(const VOXBaseUnknown* iFace);

  const FeatureType& Type() const { return *_Type; }
  Document* OwningDocument() const { return _Document; } //!< borrowed; null once removed
  Container* OwningContainer() const { return _Container; }
  Feature* Father() const { return _Father; } //!< feature that holds this one, borrowed; null for none
  int HoldingAttribute() const { return _Father == nullptr ? -1 : _HoldingAttribute; }
  Feature* StartUp() const { return _StartUp; } //!< borrowed; null for a start-up
  bool IsStartUp() const { return Flag(kIsStartUp); }
  bool IsRemoved() const { return _Document == nullptr; }
  std::uint32_t Identifier() const { return _Identifier; } //!< from 1, unique in the document
  const VOXUnicodeString& Name() const { return _Name; }
  void SetName(const VOXUnicodeString& iName);

  //! Attributes by index: -1 when there is none. The type of an attribute is the declared one, except for an integer
  //! that was made a list of integers.
  int IndexOf(std::string_view iAttribute) const { return _Type->IndexOf(iAttribute); }
  int TypeOf(int iAttribute) const;
  int ElementTypeOf(int iAttribute) const;

  //! The value, local or inherited, borrowed until the feature changes; null when there has never been one.
  const StoredValue* Find(int iAttribute) const;
  const StoredValue* FindLocal(int iAttribute) const;

  //! Elements of a list of features, or the one feature of a single attribute; empty when there is none.
  std::span<Feature* const> Features(int iAttribute) const;
  std::span<Feature* const> Features(std::string_view iAttribute) const { return Features(IndexOf(iAttribute)); }

  //! Typed reads of a single value; a list, another type or no value gives the default.
  std::int32_t Integer(std::string_view iAttribute, std::int32_t iDefault = 0) const;
  double Real(std::string_view iAttribute, double iDefault = 0) const;
  VOXUnicodeString Text(std::string_view iAttribute) const;

  //! A value as data; none for features and when there has never been one.
  Value Get(int iAttribute) const;
  Value Get(std::string_view iAttribute) const { return Get(IndexOf(iAttribute)); }

  //! Writes a whole value; its kind must fit the attribute. @return S_OK; E_FAIL: nothing changed.
  HRESULT Set(int iAttribute, const Value& iValue);
  HRESULT Set(std::string_view iAttribute, const Value& iValue) { return Set(IndexOf(iAttribute), iValue); }

  //! Writes one element: index 0 is the single value or a new last element of a list; from 1 that element.
  //! @return S_OK; E_FAIL: nothing changed.
  HRESULT SetElement(int iAttribute, int iIndex, double iValue);
  HRESULT SetElement(int iAttribute, int iIndex, unsigned char iValue);
  HRESULT SetElement(int iAttribute, int iIndex, std::int32_t iValue);
  HRESULT SetElement(int iAttribute, int iIndex, const VOXUnicodeString& iValue);

  //! Writes a feature of the same document: the single reference or component, a new last element of a list (index 0),
  //! or in the place of an element (from 1). What stood there before stays in the document, held by nobody.
  //! @return S_OK; E_FAIL: nothing changed.
  HRESULT SetFeature(int iAttribute, int iIndex, Feature& iFeature);
  HRESULT Add(std::string_view iAttribute, Feature& iFeature) { return SetFeature(IndexOf(iAttribute), 0, iFeature); }

  //! Moves an element of a list of features to a position from 1; past the end means to the end.
  HRESULT Place(int iAttribute, Feature& iFeature, int iPosition);

  //! Position of a feature in a list of features, from 1; 0 when it is not there.
  int PositionOf(int iAttribute, const Feature& iFeature) const;

  //! Makes the attribute local and empty; components that it held are removed from the document.
  HRESULT Reset(int iAttribute);

  //! Writes a list of integers; a single integer attribute becomes a list of integers until it is reset.
  HRESULT SetIntegerList(int iAttribute, std::vector<std::int32_t> iValues);

  //! Whether the value is the feature's own.
  bool IsLocal(int iAttribute) const { return FindLocal(iAttribute) != nullptr; }

  //! What refers to this feature, each attribute once, by the identifiers of the features; its father's attribute is not
  //! among them.
  std::vector<Referrer> Referrers() const;

  std::int32_t TimeStamp() const { return _TimeStamp; }
  bool IsOutOfDate() const { return Flag(kOutOfDate) || Flag(kMarked); }

  //! States as they are, for stores and tests: nothing else follows from them.
  void SetOutOfDate(bool iOutOfDate) { SetFlag(kOutOfDate, iOutOfDate); }
  void SetMarked(bool iMarked) { SetFlag(kMarked, iMarked); }
  void SetUpdateFails(bool iFails) { SetFlag(kUpdateFails, iFails); } //!< every update of the feature fails
  bool IsActive() const { return !Flag(kInactive); }
  void SetActive(bool iActive);
  bool IsSubscribed() const { return Flag(kSubscribed); }
  void SetSubscribed(bool iSubscribed) { SetFlag(kSubscribed, iSubscribed); }
  int ExplicitState() const { return _ExplicitState; } //!< what SetExplicitState was told last; 1 at the start
  void SetExplicitState(int iState) { _ExplicitState = static_cast<std::int16_t>(iState); }

  //! Physical type name: the feature's own when it was set, else its type's. An empty one takes the own name away.
  std::string PhysicalType() const;
  void SetPhysicalType(const std::string& iName);

  //! Identifying string: the feature's own when it was set, else its name.
  VOXUnicodeString IdentifyingString() const;
  void SetIdentifyingString(const std::string& iString);

  //! Explicit model of the feature and of all below it, borrowed; null leaves it to the father, and to the document.
  void SetExplicitModel(VOXAnalysisExplicitModel* iModel);
  VOXAnalysisExplicitModel* ExplicitModel() const;

  //! Value of a basic component: keeper takes its own. A feature whose type declares a parameter makes it when it is
  //! first asked. Borrowed; null when there is none.
  VOXBaseUnknown* ComponentValue();
  void SetComponentValue(VOXBaseUnknown* iValue);

  //! Nearest feature from this one upwards whose type carries a face, borrowed; null when there is none.
  Feature* NearestWith(FeatureFaces iFace) const;

  //! Tags in "ExplicitTag": none, one, or a list. A tag of 0 is none.
  std::vector<std::int32_t> ExplicitTags() const;

  //! The first of them; 0 when there is none.
  std::int32_t FirstExplicitTag() const;

  // VOXISpecObject
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

private:
  friend class Document;
  friend class Restoration;
  friend class Container;

  struct Slot
  {
    StoredValue value;
    std::uint16_t attribute;
  };
  struct Rarities; // what few features have: identifying string, physical type, explicit model, component value

  enum Flags : std::uint16_t
  {
    kIsStartUp = 1,
    kOutOfDate = 2,
    kMarked = 4,
    kUpdateFails = 8,
    kInactive = 16,
    kSubscribed = 32,
    kVisiting = 64,
    kTried = 128,
    kDoomed = 256
  };

  Feature(Document& iDocument, const FeatureType& iType, Feature* iStartUp, const VOXUnicodeString& iName);
  ~Feature() override;

  bool Flag(Flags iFlag) const { return (_Flags & iFlag) != 0; }
  void SetFlag(Flags iFlag, bool iOn) { _Flags = static_cast<std::uint16_t>(iOn ? _Flags | iFlag : _Flags & ~iFlag); }

  const Attribute* Declared(int iAttribute) const;
  StoredValue* MutableLocal(int iAttribute);
  StoredValue& MakeLocal(int iAttribute, StoredValue iValue);
  StoredValue& LocalCopy(int iAttribute);
  template <class Element>
  HRESULT WriteElement(int iAttribute, int iCode, int iIndex, const Element& iValue);
  template <class Element>
  HRESULT WriteList(int iAttribute, int iCode, std::vector<Element> iValues);
  std::vector<Feature*>& MutableList(int iAttribute);
  void Changed();

  HRESULT SetReference(int iAttribute, int iIndex, Feature& iFeature);
  HRESULT SetComponent(int iAttribute, int iIndex, Feature& iFeature);
  bool IsBelow(const Feature& iOther) const;
  void LeaveFather();
  void TakeOut(int iAttribute, const Feature& iFeature);
  void NoteReference(int iAttribute, Feature& iTarget);
  void ForgetReference(int iAttribute, Feature& iTarget);
  void ForgetReferencesOf(int iAttribute);
  void InstantiateComponents();
  void Detach();
  Rarities& Rare();

  VOXComponentRecord _Record;
  const FeatureType* _Type;
  Document* _Document;
  Feature* _StartUp;
  Feature* _Father = nullptr;
  Container* _Container = nullptr;
  std::unique_ptr<std::vector<Slot>> _Locals; // null while nothing is local
  std::unique_ptr<ReferrerSet> _Referrers;    // null while nothing refers to the feature
  std::unique_ptr<Rarities> _Rarities;
  VOXUnicodeString _Name;
  std::uint32_t _Identifier = 0;
  std::uint32_t _PlaceInContainer = 0;
  std::int32_t _TimeStamp = 0;
  std::uint16_t _HoldingAttribute = 0;
  std::uint16_t _Flags = kOutOfDate;
  std::int16_t _ExplicitState = 1;
};

} // namespace voxhost
