// SPDX-License-Identifier: MIT
#include "host/KnowledgeParameters/Parameter.h"

#include "host/FeatureModeler/Feature.h"
#include "host/Instruments/Faults.h"

#include <string>

namespace voxhost
{
namespace
{

constexpr const char* kTypeType = "CkeType";
constexpr const char* kEnumTypeType = "CkeEnumType";
constexpr const char* kParameterType = "CkeParameter";
constexpr const char* kEnumParameterType = "CkeEnumParameter";
constexpr const char* kValueType = "CkeValue";

//! Value object: what the parameter was worth when it was asked.
class CkeValue final : public VOXICkeInst
{
public:
  CkeValue(std::string iText, int iInteger) : _Text(std::move(iText)), _Integer(iInteger) {}
  VOXUnicodeString AsString() const override
  {
    return Faults::Enter("VOXICkeInst::AsString") ? VOXUnicodeString() : VOXUnicodeString(_Text.c_str());
  }
  int AsInteger() const override { return Faults::Enter("VOXICkeInst::AsInteger") ? 0 : _Integer; }
  VOXComponentRecord record;

private:
  std::string _Text;
  int _Integer;
};

//! Type of a parameter, as a component of its own.
class CkeType final : public VOXICkeType
{
public:
  explicit CkeType(const ParameterDeclaration& iDeclaration) : declaration(iDeclaration) {}
  VOXCke::Boolean IsAKindOfType(VOXCkeContext::TypeKind iKind) const override
  {
    return !Faults::Enter("VOXICkeType::IsAKindOfType") && declaration.kind == iKind ? VOXCke::True : VOXCke::False;
  }
  VOXComponentRecord record;
  const ParameterDeclaration declaration;
};

//! A parameter; its value is its own, or stands in an attribute of a feature.
class CkeParameter final : public VOXICkeParm
{
public:
  CkeParameter(const ParameterDeclaration& iDeclaration, voxhost::Value iValue)
      : declaration(iDeclaration),
        _Value(std::move(iValue))
  {
  }
  CkeParameter(const ParameterDeclaration& iDeclaration, Feature& iFeature, int iAttribute)
      : declaration(iDeclaration),
        _Feature(iFeature.Identifier() == 0 ? nullptr : &iFeature),
        _Attribute(iAttribute)
  {
  }

  VOXICkeInst_var Value() const override;

  HRESULT Valuate(int iValue) override
  {
    const int entries = static_cast<int>(declaration.entries.size());
    const bool isEnumeration = declaration.kind == VOXCkeContext::EnumType;
    if (Faults::Enter("VOXICkeParm::Valuate") || (isEnumeration && (iValue < 0 || iValue > entries)))
      return E_FAIL;
    switch (declaration.kind)
    {
    case VOXCkeContext::RealType:
      return Store(static_cast<double>(iValue));
    case VOXCkeContext::BooleanType:
      return Store(iValue != 0);
    case VOXCkeContext::IntegerType:
    case VOXCkeContext::EnumType:
      return Store(std::int32_t{iValue});
    default:
      return E_FAIL;
    }
  }

  VOXComponentRecord record;
  const ParameterDeclaration declaration;

private:
  voxhost::Value Current() const { return _Feature == nullptr ? _Value : _Feature->Get(_Attribute); }
  HRESULT Store(voxhost::Value iValue)
  {
    if (_Feature != nullptr)
      return _Feature->Set(_Attribute, iValue);
    _Value = std::move(iValue);
    return S_OK;
  }

  voxhost::Value _Value;
  Feature* _Feature = nullptr; // which holds this parameter
  int _Attribute = -1;
};

const ParameterDeclaration* DeclarationOf(const VOXBaseUnknown* iFace)
{
  const VOXBaseUnknown* const root = iFace == nullptr ? nullptr : iFace->GetImpl();
  if (const auto* const parameter = dynamic_cast<const CkeParameter*>(root))
    return &parameter->declaration;
  const auto* const type = dynamic_cast<const CkeType*>(root);
  return type == nullptr ? nullptr : &type->declaration;
}

//! Face of a parameter that answers for its type.
class TypeOfParameter final : public VOXICkeType
{
public:
  VOXCke::Boolean IsAKindOfType(VOXCkeContext::TypeKind iKind) const override
  {
    return !Faults::Enter("VOXICkeType::IsAKindOfType") && DeclarationOf(this)->kind == iKind ? VOXCke::True
                                                                                              : VOXCke::False;
  }
};

class Enumeration final : public VOXIEnumere
{
public:
  VOXListValVOXUnicodeString GetValueList(int) const override
  {
    VOXListValVOXUnicodeString entries;
    if (Faults::Enter("VOXIEnumere::GetValueList"))
      return entries;
    for (const std::string& entry : DeclarationOf(this)->entries)
      entries.Append(VOXUnicodeString(entry.c_str()));
    return entries;
  }
};

VOXBaseUnknown* NewTypeOfParameter()
{
  return new TypeOfParameter;
}
VOXBaseUnknown* NewEnumeration()
{
  return new Enumeration;
}

bool DeclareLateTypes()
{
  VOXDeclareLateType(kValueType, nullptr);
  DeclareOwnInterface<VOXICkeInst>(kValueType);
  VOXDeclareLateType(kTypeType, nullptr);
  DeclareOwnInterface<VOXICkeType>(kTypeType);
  VOXDeclareLateType(kEnumTypeType, kTypeType);
  VOXDeclareLateType(kParameterType, nullptr);
  DeclareOwnInterface<VOXICkeParm>(kParameterType);
  VOXDeclareExtension(kParameterType, VOXICkeType::ClassId(), VOXICkeType::ClassName(), NewTypeOfParameter);
  VOXDeclareLateType(kEnumParameterType, kParameterType);
  for (const char* const type : {kEnumTypeType, kEnumParameterType})
    VOXDeclareExtension(type, VOXIEnumere::ClassId(), VOXIEnumere::ClassName(), NewEnumeration);
  return true;
}

template <class Object>
Object* Implemented(Object* iObject, const char* iLateType)
{
  static const bool declared = DeclareLateTypes();
  if (iObject != nullptr && declared)
    VOXComponentRuntime::Implement(iObject, iObject->record, iLateType);
  return iObject;
}

bool Fits(VOXCkeContext::TypeKind iKind, const Value& iValue)
{
  if (std::holds_alternative<std::monostate>(iValue))
    return true;
  switch (iKind)
  {
  case VOXCkeContext::RealType:
    return std::holds_alternative<double>(iValue);
  case VOXCkeContext::BooleanType:
    return std::holds_alternative<bool>(iValue);
  case VOXCkeContext::StringType:
    return std::holds_alternative<std::string>(iValue);
  default:
    return std::holds_alternative<std::int32_t>(iValue);
  }
}

std::string TextOf(const ParameterDeclaration& iDeclaration, const Value& iValue)
{
  if (const auto* const text = std::get_if<std::string>(&iValue))
    return *text;
  if (const auto* const real = std::get_if<double>(&iValue))
    return std::to_string(*real);
  if (const auto* const boolean = std::get_if<bool>(&iValue))
    return *boolean ? "true" : "false";
  const auto* const integer = std::get_if<std::int32_t>(&iValue);
  if (integer == nullptr)
    return {};
  if (iDeclaration.kind != VOXCkeContext::EnumType)
    return std::to_string(*integer);
  const auto place = static_cast<std::size_t>(*integer) - 1;
  return *integer >= 1 && place < iDeclaration.entries.size() ? iDeclaration.entries[place] : std::string();
}

int IntegerOf(const Value& iValue)
{
  if (const auto* const real = std::get_if<double>(&iValue))
    return static_cast<int>(*real);
  if (const auto* const boolean = std::get_if<bool>(&iValue))
    return *boolean ? 1 : 0;
  const auto* const integer = std::get_if<std::int32_t>(&iValue);
  return integer == nullptr ? 0 : *integer;
}

const char* ParameterTypeOf(const ParameterDeclaration& iDeclaration)
{
  return iDeclaration.kind == VOXCkeContext::EnumType ? kEnumParameterType : kParameterType;
}

VOXICkeInst_var CkeParameter::Value() const
{
  const voxhost::Value current = Current();
  if (Faults::Enter("VOXICkeParm::Value") || std::holds_alternative<std::monostate>(current))
    return {};
  VOXICkeInst* const value = Implemented(new CkeValue(TextOf(declaration, current), IntegerOf(current)), kValueType);
  const VOXICkeInst_var handle(static_cast<VOXBaseUnknown*>(value));
  if (value != nullptr)
    value->Release();
  return handle;
}

} // namespace

VOXICkeType* NewKnowledgeType(const ParameterDeclaration& iDeclaration)
{
  return Implemented(new CkeType(iDeclaration),
                     iDeclaration.kind == VOXCkeContext::EnumType ? kEnumTypeType : kTypeType);
}

VOXICkeParm* NewParameter(const ParameterDeclaration& iDeclaration, const Value& iValue)
{
  return Fits(iDeclaration.kind, iValue)
             ? Implemented(new CkeParameter(iDeclaration, iValue), ParameterTypeOf(iDeclaration))
             : nullptr;
}

VOXICkeParm* NewParameter(const ParameterDeclaration& iDeclaration, Feature& iFeature, int iAttribute)
{
  return Implemented(new CkeParameter(iDeclaration, iFeature, iAttribute), ParameterTypeOf(iDeclaration));
}

const ParameterDeclaration* KnowledgeTypeOf(const VOXBaseUnknown* iFace)
{
  return DeclarationOf(iFace);
}

} // namespace voxhost
