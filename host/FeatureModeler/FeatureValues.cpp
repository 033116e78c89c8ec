// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/Document.h"
#include "host/FeatureModeler/Rarities.h"

#include <algorithm>
#include <type_traits>

namespace voxhost
{
namespace
{

template <class Element>
StoredList<Element> ListOf(std::vector<Element> iElements)
{
  if (iElements.empty())
    return nullptr;
  return std::make_unique<std::vector<Element>>(std::move(iElements));
}

// The value of an attribute that was reset.
StoredValue EmptyValue(const Attribute& iAttribute)
{
  switch (iAttribute.type == VOXSpecList ? iAttribute.elementType + 100 : iAttribute.type)
  {
  case VOXSpecReal:
    return 0.;
  case VOXSpecBoolean:
    return static_cast<unsigned char>(0);
  case VOXSpecString:
    return VOXUnicodeString();
  case VOXSpecInteger:
    return std::int32_t{0};
  case VOXSpecReal + 100:
    return StoredList<double>();
  case VOXSpecBoolean + 100:
    return StoredList<unsigned char>();
  case VOXSpecString + 100:
    return StoredList<VOXUnicodeString>();
  case VOXSpecInteger + 100:
    return StoredList<std::int32_t>();
  case VOXSpecReference + 100:
  case VOXSpecComponent + 100:
    return StoredList<Feature*>();
  default:
    return static_cast<Feature*>(nullptr);
  }
}

StoredValue CopyOf(const StoredValue& iValue)
{
  return std::visit(
      [](const auto& value) -> StoredValue
      {
        using Kind = std::decay_t<decltype(value)>;
        if constexpr (std::is_copy_constructible_v<Kind>)
          return value;
        else
          return value == nullptr ? Kind() : std::make_unique<typename Kind::element_type>(*value);
      },
      iValue);
}

} // namespace

const StoredValue* Feature::FindLocal(int iAttribute) const
{
  return const_cast<Feature*>(this)->MutableLocal(iAttribute);
}

StoredValue* Feature::MutableLocal(int iAttribute)
{
  if (_Locals == nullptr)
    return nullptr;
  for (Slot& slot : *_Locals)
    if (slot.attribute == iAttribute)
      return &slot.value;
  return nullptr;
}

const StoredValue* Feature::Find(int iAttribute) const
{
  const Attribute* const attribute = Declared(iAttribute);
  if (attribute == nullptr)
    return nullptr;
  const StoredValue* const local = FindLocal(iAttribute);
  if (local != nullptr || _StartUp == nullptr || attribute->HoldsComponents())
    return local;
  return _StartUp->Find(_StartUp->_Type == _Type ? iAttribute : _StartUp->IndexOf(attribute->name));
}

StoredValue& Feature::MakeLocal(int iAttribute, StoredValue iValue)
{
  if (StoredValue* const local = MutableLocal(iAttribute))
  {
    *local = std::move(iValue);
    return *local;
  }
  if (_Locals == nullptr)
    _Locals = std::make_unique<std::vector<Slot>>();
  _Locals->push_back({std::move(iValue), static_cast<std::uint16_t>(iAttribute)});
  return _Locals->back().value;
}

StoredValue& Feature::LocalCopy(int iAttribute)
{
  if (StoredValue* const local = MutableLocal(iAttribute))
    return *local;
  const StoredValue* const inherited = Find(iAttribute);
  const Attribute& attribute = *Declared(iAttribute);
  StoredValue& copy = MakeLocal(iAttribute, inherited == nullptr ? EmptyValue(attribute) : CopyOf(*inherited));
  if (attribute.RefersToFeatures())
    for (Feature* const target : Features(iAttribute))
      NoteReference(iAttribute, *target);
  return copy;
}

std::span<Feature* const> Feature::Features(int iAttribute) const
{
  const StoredValue* const value = Find(iAttribute);
  if (value == nullptr)
    return {};
  if (const auto* const single = std::get_if<Feature*>(value))
    return *single == nullptr ? std::span<Feature* const>() : std::span<Feature* const>(single, 1);
  const auto* const list = std::get_if<StoredList<Feature*>>(value);
  return list == nullptr || *list == nullptr ? std::span<Feature* const>() : std::span<Feature* const>(**list);
}

std::int32_t Feature::Integer(std::string_view iAttribute, std::int32_t iDefault) const
{
  const StoredValue* const value = Find(IndexOf(iAttribute));
  const auto* const number = value == nullptr ? nullptr : std::get_if<std::int32_t>(value);
  return number == nullptr ? iDefault : *number;
}

double Feature::Real(std::string_view iAttribute, double iDefault) const
{
  const StoredValue* const value = Find(IndexOf(iAttribute));
  const auto* const number = value == nullptr ? nullptr : std::get_if<double>(value);
  return number == nullptr ? iDefault : *number;
}

VOXUnicodeString Feature::Text(std::string_view iAttribute) const
{
  const StoredValue* const value = Find(IndexOf(iAttribute));
  const auto* const text = value == nullptr ? nullptr : std::get_if<VOXUnicodeString>(value);
  return text == nullptr ? VOXUnicodeString() : *text;
}

Value Feature::Get(int iAttribute) const
{
  const StoredValue* const stored = Find(iAttribute);
  if (stored == nullptr)
    return {};
  struct ToValue
  {
    Value operator()(double iValue) const { return iValue; }
    Value operator()(unsigned char iValue) const { return iValue != 0; }
    Value operator()(std::int32_t iValue) const { return iValue; }
    Value operator()(const VOXUnicodeString& iValue) const { return std::string(iValue.ConvertToChar()); }
    Value operator()(Feature* const&) const { return {}; }
    Value operator()(const StoredList<double>& iList) const { return iList ? *iList : std::vector<double>(); }
    Value operator()(const StoredList<std::int32_t>& iList) const
    {
      return iList ? *iList : std::vector<std::int32_t>();
    }
    Value operator()(const StoredList<unsigned char>& iList) const
    {
      return iList ? std::vector<bool>(iList->begin(), iList->end()) : std::vector<bool>();
    }
    Value operator()(const StoredList<VOXUnicodeString>& iList) const
    {
      std::vector<std::string> texts;
      for (std::size_t i = 0; iList != nullptr && i < iList->size(); ++i)
        texts.emplace_back((*iList)[i].ConvertToChar());
      return texts;
    }
    Value operator()(const StoredList<Feature*>&) const { return {}; }
  };
  return std::visit(ToValue(), *stored);
}

HRESULT Feature::Set(int iAttribute, const Value& iValue)
{
  if (const auto* const real = std::get_if<double>(&iValue))
    return TypeOf(iAttribute) == VOXSpecReal ? SetElement(iAttribute, 0, *real) : E_FAIL;
  if (const auto* const boolean = std::get_if<bool>(&iValue))
    return TypeOf(iAttribute) == VOXSpecBoolean
               ? SetElement(iAttribute, 0, static_cast<unsigned char>(*boolean ? 1 : 0))
               : E_FAIL;
  if (const auto* const integer = std::get_if<std::int32_t>(&iValue))
    return TypeOf(iAttribute) == VOXSpecInteger ? SetElement(iAttribute, 0, *integer) : E_FAIL;
  if (const auto* const text = std::get_if<std::string>(&iValue))
    return TypeOf(iAttribute) == VOXSpecString ? SetElement(iAttribute, 0, VOXUnicodeString(text->c_str())) : E_FAIL;
  if (const auto* const reals = std::get_if<std::vector<double>>(&iValue))
    return WriteList(iAttribute, VOXSpecReal, *reals);
  if (const auto* const integers = std::get_if<std::vector<std::int32_t>>(&iValue))
    return WriteList(iAttribute, VOXSpecInteger, *integers);
  if (const auto* const booleans = std::get_if<std::vector<bool>>(&iValue))
    return WriteList(iAttribute, VOXSpecBoolean, std::vector<unsigned char>(booleans->begin(), booleans->end()));
  if (const auto* const texts = std::get_if<std::vector<std::string>>(&iValue))
  {
    std::vector<VOXUnicodeString> stored;
    for (const std::string& text : *texts)
      stored.emplace_back(text.c_str());
    return WriteList(iAttribute, VOXSpecString, std::move(stored));
  }
  return E_FAIL;
}

template <class Element>
HRESULT Feature::WriteList(int iAttribute, int iCode, std::vector<Element> iValues)
{
  if (TypeOf(iAttribute) != VOXSpecList || ElementTypeOf(iAttribute) != iCode)
    return E_FAIL;
  MakeLocal(iAttribute, ListOf(std::move(iValues)));
  Changed();
  return S_OK;
}

template <class Element>
HRESULT Feature::WriteElement(int iAttribute, int iCode, int iIndex, const Element& iValue)
{
  const int type = TypeOf(iAttribute);
  if (type == iCode && iIndex == 0)
  {
    MakeLocal(iAttribute, iValue);
    Changed();
    return S_OK;
  }
  const bool isList = type == VOXSpecList && ElementTypeOf(iAttribute) == iCode;
  const StoredValue* const present = Find(iAttribute);
  const auto* const list = present == nullptr ? nullptr : std::get_if<StoredList<Element>>(present);
  const int size = list == nullptr || *list == nullptr ? 0 : static_cast<int>((*list)->size());
  if (!isList || iIndex < 0 || iIndex > size)
    return E_FAIL;
  auto& local = std::get<StoredList<Element>>(LocalCopy(iAttribute));
  if (local == nullptr)
    local = std::make_unique<std::vector<Element>>();
  if (iIndex == 0)
    local->push_back(iValue);
  else
    (*local)[static_cast<std::size_t>(iIndex - 1)] = iValue;
  Changed();
  return S_OK;
}

HRESULT Feature::SetElement(int iAttribute, int iIndex, double iValue)
{
  return WriteElement(iAttribute, VOXSpecReal, iIndex, iValue);
}

HRESULT Feature::SetElement(int iAttribute, int iIndex, unsigned char iValue)
{
  return WriteElement(iAttribute, VOXSpecBoolean, iIndex, static_cast<unsigned char>(iValue != 0 ? 1 : 0));
}

HRESULT Feature::SetElement(int iAttribute, int iIndex, std::int32_t iValue)
{
  return WriteElement(iAttribute, VOXSpecInteger, iIndex, iValue);
}

HRESULT Feature::SetElement(int iAttribute, int iIndex, const VOXUnicodeString& iValue)
{
  return WriteElement(iAttribute, VOXSpecString, iIndex, iValue);
}

HRESULT Feature::SetIntegerList(int iAttribute, std::vector<std::int32_t> iValues)
{
  const Attribute* const attribute = Declared(iAttribute);
  const bool fits =
      attribute != nullptr && (attribute->type == VOXSpecInteger ||
                               (attribute->type == VOXSpecList && attribute->elementType == VOXSpecInteger));
  if (!fits)
    return E_FAIL;
  MakeLocal(iAttribute, ListOf(std::move(iValues)));
  Changed();
  return S_OK;
}

HRESULT Feature::Reset(int iAttribute)
{
  const Attribute* const attribute = Declared(iAttribute);
  if (attribute == nullptr)
    return E_FAIL;
  const std::span<Feature* const> held = Features(iAttribute);
  const std::vector<Feature*> components(held.begin(), held.end());
  if (attribute->RefersToFeatures())
    ForgetReferencesOf(iAttribute);
  MakeLocal(iAttribute, EmptyValue(*attribute));
  if (attribute->HoldsComponents())
    for (Feature* const component : components)
    {
      component->_Father = nullptr; // it left already: the attribute is empty
      _Document->Remove(*component);
    }
  Changed();
  return S_OK;
}

} // namespace voxhost
