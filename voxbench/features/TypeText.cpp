// SPDX-License-Identifier: MIT
#include "voxbench/features/TypeText.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <stdexcept>

namespace voxbench
{
namespace
{

using voxhost::AttributeDeclaration;
using voxhost::ComponentDeclaration;
using voxhost::Value;

constexpr std::pair<const char*, int> kTypeWords[] = {{"real", VOXSpecReal},           {"boolean", VOXSpecBoolean},
                                                      {"string", VOXSpecString},       {"integer", VOXSpecInteger},
                                                      {"reference", VOXSpecReference}, {"component", VOXSpecComponent}};

constexpr std::pair<const char*, VOXCkeContext::TypeKind> kParameterWords[] = {
    {"real", VOXCkeContext::RealType},
    {"boolean", VOXCkeContext::BooleanType},
    {"string", VOXCkeContext::StringType},
    {"integer", VOXCkeContext::IntegerType},
    {"enumeration", VOXCkeContext::EnumType}};

void SetType(const std::string& iWord, AttributeDeclaration& ioAttribute)
{
  for (const auto& [word, code] : kTypeWords)
  {
    if (iWord != word && iWord != word + std::string("s"))
      continue;
    ioAttribute.type = iWord == word ? code : static_cast<int>(VOXSpecList);
    ioAttribute.elementType = iWord == word ? 0 : code;
    return;
  }
  throw std::runtime_error(fmt::format("attribute '{}' has the unknown type '{}'", ioAttribute.name, iWord));
}

std::string WordOf(const voxhost::Attribute& iAttribute)
{
  const bool isList = iAttribute.type == VOXSpecList;
  for (const auto& [word, code] : kTypeWords)
    if (code == (isList ? iAttribute.elementType : iAttribute.type))
      return isList ? word + std::string("s") : word;
  throw std::runtime_error(fmt::format("attribute '{}' has a type without a name", iAttribute.name));
}

//! @param iCode type of the elements.
Value ListOf(const TypeText& iText, int iCode)
{
  switch (iCode)
  {
  case VOXSpecReal:
    return iText.get<std::vector<double>>();
  case VOXSpecBoolean:
    return iText.get<std::vector<bool>>();
  case VOXSpecInteger:
    return iText.get<std::vector<std::int32_t>>();
  case VOXSpecString:
    return iText.get<std::vector<std::string>>();
  default:
    return {};
  }
}

Value SingleOf(const TypeText& iText, int iCode)
{
  switch (iCode)
  {
  case VOXSpecReal:
    return iText.get<double>();
  case VOXSpecBoolean:
    return iText.get<bool>();
  case VOXSpecInteger:
    return iText.get<std::int32_t>();
  case VOXSpecString:
    return iText.get<std::string>();
  default:
    return {};
  }
}

//! The code that a value without a declaration tells by its form.
int CodeOf(const TypeText& iText)
{
  if (iText.is_boolean())
    return VOXSpecBoolean;
  if (iText.is_number_integer())
    return VOXSpecInteger;
  return iText.is_number() ? VOXSpecReal : VOXSpecString;
}

Value ValueOf(const TypeText& iText)
{
  if (!iText.is_array())
    return iText.is_null() ? Value() : SingleOf(iText, CodeOf(iText));
  return iText.empty() ? Value() : ListOf(iText, CodeOf(iText.front()));
}

TypeText TextOf(const Value& iValue)
{
  return std::visit(
      [](const auto& iKind) -> TypeText
      {
        if constexpr (std::is_same_v<std::decay_t<decltype(iKind)>, std::monostate>)
          return nullptr;
        else
          return iKind;
      },
      iValue);
}

ComponentDeclaration ComponentOf(const TypeText& iText)
{
  ComponentDeclaration component{iText.at("name"), iText.at("type"), {}};
  if (iText.contains("values"))
    for (const auto& [name, value] : iText.at("values").items())
      component.values.push_back({name, ValueOf(value)});
  return component;
}

AttributeDeclaration AttributeOf(const TypeText& iText)
{
  AttributeDeclaration attribute;
  attribute.name = iText.at("name");
  SetType(iText.at("type"), attribute);
  if (iText.contains("value") && !iText.at("value").is_null())
    attribute.value = attribute.type == VOXSpecList ? ListOf(iText.at("value"), attribute.elementType)
                                                    : SingleOf(iText.at("value"), attribute.type);
  if (iText.contains("components"))
    for (const TypeText& component : iText.at("components"))
      attribute.components.push_back(ComponentOf(component));
  return attribute;
}

TypeText TextOf(const voxhost::Attribute& iAttribute)
{
  TypeText text{{"name", iAttribute.name}, {"type", WordOf(iAttribute)}};
  if (!std::holds_alternative<std::monostate>(iAttribute.value))
    text["value"] = TextOf(iAttribute.value);
  for (const ComponentDeclaration& component : iAttribute.components)
  {
    TypeText made{{"name", component.name}, {"type", component.type}};
    for (const voxhost::DefaultValue& value : component.values)
      made["values"][value.attribute] = TextOf(value.value);
    text["components"].push_back(std::move(made));
  }
  return text;
}

voxhost::ParameterDeclaration ParameterOf(const TypeText& iText)
{
  const std::string kind = iText.at("kind");
  for (const auto& [word, code] : kParameterWords)
    if (kind == word)
      return {code, iText.value("entries", std::vector<std::string>())};
  throw std::runtime_error(fmt::format("a parameter has the unknown kind '{}'", kind));
}

bool IsSame(const ComponentDeclaration& iLeft, const ComponentDeclaration& iRight)
{
  const auto sameValue = [](const voxhost::DefaultValue& iOne, const voxhost::DefaultValue& iOther)
  { return iOne.attribute == iOther.attribute && iOne.value == iOther.value; };
  return iLeft.name == iRight.name && iLeft.type == iRight.type &&
         std::equal(iLeft.values.begin(), iLeft.values.end(), iRight.values.begin(), iRight.values.end(), sameValue);
}

//! Whether a type says nothing about an attribute that its base does not say.
bool IsFromBase(const voxhost::Attribute& iAttribute, const voxhost::FeatureType* iBase)
{
  const int index = iBase == nullptr ? -1 : iBase->IndexOf(iAttribute.name);
  if (index < 0)
    return false;
  const voxhost::Attribute& inBase = iBase->Attributes()[static_cast<std::size_t>(index)];
  return inBase.value == iAttribute.value &&
         std::equal(inBase.components.begin(), inBase.components.end(), iAttribute.components.begin(),
                    iAttribute.components.end(), IsSame);
}

bool IsFromBase(const voxhost::ParameterDeclaration& iParameter, const voxhost::FeatureType* iBase)
{
  return iBase != nullptr && iBase->Parameter().has_value() && iBase->Parameter()->kind == iParameter.kind &&
         iBase->Parameter()->entries == iParameter.entries;
}

} // namespace

voxhost::TypeDeclaration DeclarationOf(const TypeText& iText)
{
  try
  {
    voxhost::TypeDeclaration declaration;
    declaration.name = iText.at("name");
    declaration.base = iText.value("base", "");
    declaration.physicalType = iText.value("physicalType", "");
    declaration.faces = iText.value("faces", std::uint32_t{0});
    declaration.isAbstract = iText.value("abstract", false);
    declaration.alsoKindOf = iText.value("alsoKindOf", std::vector<std::string>());
    if (iText.contains("attributes"))
      for (const TypeText& attribute : iText.at("attributes"))
        declaration.attributes.push_back(AttributeOf(attribute));
    if (iText.contains("parameter"))
      declaration.parameter = ParameterOf(iText.at("parameter"));
    return declaration;
  }
  catch (const nlohmann::json::exception& wrong)
  {
    throw std::runtime_error(fmt::format("a feature type is not declared as it must be: {}", wrong.what()));
  }
}

TypeText TextOf(const voxhost::FeatureType& iType)
{
  const voxhost::FeatureType* const base = iType.Base();
  TypeText text{{"name", iType.Name()}};
  if (base != nullptr)
    text["base"] = base->Name();
  if (base == nullptr || base->PhysicalType() != iType.PhysicalType())
    text["physicalType"] = iType.PhysicalType();
  if (const std::uint32_t added = iType.Faces() & ~(base == nullptr ? 0U : base->Faces()); added != 0)
    text["faces"] = added;
  if (!iType.AlsoKindOf().empty())
    text["alsoKindOf"] = iType.AlsoKindOf();
  if (iType.IsAbstract())
    text["abstract"] = true;
  for (const voxhost::Attribute& attribute : iType.Attributes())
    if (!IsFromBase(attribute, base))
      text["attributes"].push_back(TextOf(attribute));
  if (iType.Parameter().has_value() && !IsFromBase(*iType.Parameter(), base))
    for (const auto& [word, code] : kParameterWords)
      if (code == iType.Parameter()->kind)
        text["parameter"] = {{"kind", word}, {"entries", iType.Parameter()->entries}};
  return text;
}

} // namespace voxbench
