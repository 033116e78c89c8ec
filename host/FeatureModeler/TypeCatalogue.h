// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"
#include "FeatureModeler/VOXISpecAttrKey.h"
#include "KnowledgeParameters/VOXICke.h"
#include "host/FeatureModeler/AttributeValue.h"

#include <optional>
#include <string_view>
#include <unordered_map>

namespace voxhost
{

//! Interfaces of the host that features of a type carry beside those of every feature (VOXISpecObject,
//! VOXISpecAttrAccess, VOXIAlias, VOXILinkableObject, VOXIRedrawEvent, VOXISamViewManager). Bits, inherited by the types
//! that derive.
enum FeatureFaces : std::uint32_t
{
  kNoFaces = 0,
  kExplicitFace = 1,        //!< VOXISamExplicit
  kEntityFace = 2,          //!< VOXISamAnalysisEntity
  kSetFace = 4,             //!< VOXISamAnalysisSet
  kBasicComponentFace = 8,  //!< VOXISamBasicComponent
  kSupportFace = 16,        //!< VOXISamAnalysisSupport
  kMeshPartFilterFace = 32, //!< VOXISamMeshPartFilter
  kModelFactoryFace = 64,   //!< VOXISamAnalysisModelFactory
  kVisuGrouperFace = 128    //!< VOXIMSHVisuGrouper
};

//! Default value of one attribute of a default component, over that of the component's type.
struct DefaultValue
{
  std::string attribute;
  Value value;
};

//! One component that a start-up holds and that every instance is made with.
struct ComponentDeclaration
{
  std::string name;
  std::string type;
  std::vector<DefaultValue> values{};
};

//! One attribute of a type. A type that declares an attribute of its base again gives it another default and keeps the
//! attribute's place; its type codes must be the same.
struct AttributeDeclaration
{
  std::string name;
  int type = VOXSpecInteger;                      //!< VOXSpecAttrType
  int elementType = 0;                            //!< of a list: type code of its elements
  Value value{};                                  //!< default; none: the attribute has never had a value
  std::vector<ComponentDeclaration> components{}; //!< of component attributes: what the start-up holds
};

//! Knowledge parameter that stands for the value of a basic component. Its value is kept in the attribute "Value" of the
//! component, whose type code must fit: real 7, integer 28, string 18, boolean 8, enumeration 28 (index from 1).
struct ParameterDeclaration
{
  VOXCkeContext::TypeKind kind = VOXCkeContext::RealType;
  std::vector<std::string> entries{}; //!< of an enumeration: the names, in order
};

//! A feature type, as data.
struct TypeDeclaration
{
  std::string name;                                //!< also the late type of its features and the name of its start-up
  std::string base{};                              //!< a type declared before; empty for the root type "SpecFeature"
  std::string physicalType{};                      //!< explicit physical type; empty: the base's
  std::uint32_t faces = kNoFaces;                  //!< FeatureFaces added to those of the base
  std::vector<AttributeDeclaration> attributes{};  //!< after those of the base, in this order
  std::vector<std::string> alsoKindOf{};           //!< further type names that the type test says yes to
  bool isAbstract = false;                         //!< has no start-up
  std::optional<ParameterDeclaration> parameter{}; //!< of basic components; none: the base's
};

//! One attribute of a declared type.
struct Attribute
{
  std::string name;
  int type = 0;
  int elementType = 0;
  Value value;
  std::vector<ComponentDeclaration> components;

  bool HoldsComponents() const
  {
    return type == VOXSpecComponent || (type == VOXSpecList && elementType == VOXSpecComponent);
  }
  bool RefersToFeatures() const
  {
    return type == VOXSpecReference || (type == VOXSpecList && elementType == VOXSpecReference);
  }
};

//! A declared type: what all features of the type share, so that none of them carries a name of an attribute.
class VOX_HOST_API FeatureType
{
public:
  const std::string& Name() const { return _Name; }
  const FeatureType* Base() const { return _Base; }
  const std::string& PhysicalType() const { return _PhysicalType; }
  std::uint32_t Faces() const { return _Faces; }
  bool Has(FeatureFaces iFace) const { return (_Faces & iFace) != 0; }
  bool IsAbstract() const { return _IsAbstract; }
  const std::optional<ParameterDeclaration>& Parameter() const { return _Parameter; }

  //! All attributes, those of the base first. The index of an attribute is its place here, from 0.
  const std::vector<Attribute>& Attributes() const { return _Attributes; }

  //! Index of an attribute; -1 when the type has none of that name.
  int IndexOf(std::string_view iAttribute) const;

  //! Index of "ExplicitTag", which is asked for at every step into the explicit model; -1 when the type has none.
  int TagAttribute() const { return _TagAttribute; }

  //! Further type names that the type test says yes to, those of the bases left out.
  const std::vector<std::string>& AlsoKindOf() const { return _AlsoKindOf; }

  //! Whether the type is iType, derives from it, or was declared to be of that kind too.
  bool IsSubTypeOf(std::string_view iType) const;

private:
  friend class TypeCatalogue;

  std::string _Name;
  const FeatureType* _Base = nullptr;
  std::string _PhysicalType;
  std::uint32_t _Faces = 0;
  std::vector<Attribute> _Attributes;
  std::unordered_map<std::string_view, int> _Indices; // names stand in _Attributes
  std::vector<std::string> _AlsoKindOf;
  int _TagAttribute = -1;
  bool _IsAbstract = false;
  std::optional<ParameterDeclaration> _Parameter;
};

//! The types that a document's start-ups are made of. Built first, then shared by documents and never changed again.
//!
//! - It starts with the root type "SpecFeature", whose one attribute is "Alias" (string), kept by VOXIAlias.
//! - Declaring a type makes its late type known to the component runtime; late types are process-wide, so a name keeps
//!   its base in every catalogue. Extensions of the feature's own must be declared before a start-up of the type is used.
class VOX_HOST_API TypeCatalogue
{
public:
  TypeCatalogue();
  ~TypeCatalogue();
  TypeCatalogue(const TypeCatalogue&) = delete;
  TypeCatalogue& operator=(const TypeCatalogue&) = delete;

  //! Adds a type. @return empty when it stands; else what is wrong with it, a sentence: nothing was added.
  //! The types of default components may be declared later.
  std::string Declare(const TypeDeclaration& iDeclaration);

  //! Adds types up to the first that is wrong. @return as for one type.
  std::string Declare(const std::vector<TypeDeclaration>& iDeclarations);

  //! A type by name, borrowed; null when it was not declared.
  const FeatureType* Find(std::string_view iName) const;

  //! All types in the order in which they were declared.
  const std::vector<std::unique_ptr<FeatureType>>& Types() const { return _Types; }

private:
  std::vector<std::unique_ptr<FeatureType>> _Types;
  std::unordered_map<std::string_view, const FeatureType*> _ByName;
};

//! The types of an analysis document that every catalogue of analysis features derives from: analysis model, sets,
//! entities, basic components, mesh containers, implicit axes. See AnalysisTypes.cpp for the table.
VOX_HOST_API const std::vector<TypeDeclaration>& AnalysisTypes();

} // namespace voxhost
