// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/TypeCatalogue.h"

#include "host/ComponentRuntime/Component.h"
#include "host/FeatureModeler/FaceDeclarations.h"

#include <algorithm>

namespace voxhost
{
namespace
{

constexpr const char* kRootType = "SpecFeature";

bool IsKnownCode(int iCode)
{
  switch (iCode)
  {
  case VOXSpecReal:
  case VOXSpecBoolean:
  case VOXSpecString:
  case VOXSpecReference:
  case VOXSpecComponent:
  case VOXSpecInteger:
    return true;
  default:
    return false;
  }
}

// What is wrong with an attribute, a sentence; empty when nothing is.
std::string FaultOf(const AttributeDeclaration& iAttribute, const std::string& iType)
{
  const std::string where = "attribute '" + iAttribute.name + "' of type '" + iType + "' ";
  if (iAttribute.name.empty())
    return "an attribute of type '" + iType + "' has no name";
  const bool isList = iAttribute.type == VOXSpecList;
  if (!isList && !IsKnownCode(iAttribute.type))
    return where + "has the unknown type code " + std::to_string(iAttribute.type);
  if (isList && !IsKnownCode(iAttribute.elementType))
    return where + "is a list of the unknown type code " + std::to_string(iAttribute.elementType);
  const bool holds = iAttribute.type == VOXSpecComponent || (isList && iAttribute.elementType == VOXSpecComponent);
  if (!iAttribute.components.empty() && !holds)
    return where + "has default components but does not hold components";
  return {};
}

} // namespace

int FeatureType::IndexOf(std::string_view iAttribute) const
{
  const auto found = _Indices.find(iAttribute);
  return found == _Indices.end() ? -1 : found->second;
}

bool FeatureType::IsSubTypeOf(std::string_view iType) const
{
  for (const FeatureType* type = this; type != nullptr; type = type->_Base)
    if (type->_Name == iType ||
        std::find(type->_AlsoKindOf.begin(), type->_AlsoKindOf.end(), iType) != type->_AlsoKindOf.end())
      return true;
  return false;
}

TypeCatalogue::TypeCatalogue()
{
  auto root = std::make_unique<FeatureType>();
  root->_Name = kRootType;
  root->_IsAbstract = true;
  root->_Attributes.push_back({"Alias", VOXSpecString, 0, {}, {}});
  root->_Indices.emplace(root->_Attributes.front().name, 0);
  DeclareFeatureFaces(kRootType, nullptr, kNoFaces);
  _ByName.emplace(root->_Name, root.get());
  _Types.push_back(std::move(root));
}

TypeCatalogue::~TypeCatalogue() = default;

const FeatureType* TypeCatalogue::Find(std::string_view iName) const
{
  const auto found = _ByName.find(iName);
  return found == _ByName.end() ? nullptr : found->second;
}

std::string TypeCatalogue::Declare(const std::vector<TypeDeclaration>& iDeclarations)
{
  for (const TypeDeclaration& declaration : iDeclarations)
    if (std::string fault = Declare(declaration); !fault.empty())
      return fault;
  return {};
}

std::string TypeCatalogue::Declare(const TypeDeclaration& iDeclaration)
{
  if (iDeclaration.name.empty())
    return "a type has no name";
  if (Find(iDeclaration.name) != nullptr)
    return "type '" + iDeclaration.name + "' is declared twice";
  const std::string baseName = iDeclaration.base.empty() ? kRootType : iDeclaration.base;
  const FeatureType* const base = Find(baseName);
  if (base == nullptr)
    return "type '" + iDeclaration.name + "' derives from the unknown type '" + baseName + "'";

  auto type = std::make_unique<FeatureType>();
  type->_Name = iDeclaration.name;
  type->_Base = base;
  type->_PhysicalType = iDeclaration.physicalType.empty() ? base->_PhysicalType : iDeclaration.physicalType;
  type->_Faces = base->_Faces | iDeclaration.faces;
  type->_Attributes = base->_Attributes;
  type->_AlsoKindOf = iDeclaration.alsoKindOf;
  type->_IsAbstract = iDeclaration.isAbstract;
  type->_Parameter = iDeclaration.parameter.has_value() ? iDeclaration.parameter : base->_Parameter;
  for (const AttributeDeclaration& declared : iDeclaration.attributes)
  {
    if (std::string fault = FaultOf(declared, iDeclaration.name); !fault.empty())
      return fault;
    Attribute attribute{declared.name, declared.type, declared.elementType, declared.value, declared.components};
    const auto same = std::find_if(type->_Attributes.begin(), type->_Attributes.end(),
                                   [&](const Attribute& known) { return known.name == declared.name; });
    if (same == type->_Attributes.end())
      type->_Attributes.push_back(std::move(attribute));
    else if (same->type != declared.type || same->elementType != declared.elementType)
      return "attribute '" + declared.name + "' of type '" + iDeclaration.name + "' has another type code in its base";
    else
      *same = std::move(attribute);
  }
  if (!DeclareFeatureFaces(iDeclaration.name.c_str(), baseName.c_str(), iDeclaration.faces))
    return "the late type '" + iDeclaration.name + "' stands with another base than '" + baseName + "'";
  for (std::size_t i = 0; i < type->_Attributes.size(); ++i)
    type->_Indices.emplace(type->_Attributes[i].name, static_cast<int>(i));
  type->_TagAttribute = type->IndexOf("ExplicitTag");
  _ByName.emplace(type->_Name, type.get());
  _Types.push_back(std::move(type));
  return {};
}

} // namespace voxhost
