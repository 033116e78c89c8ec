// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/AttrKey.h"

#include "host/ComponentRuntime/VOXListVal.tpp.h"
#include "host/FeatureModeler/Feature.h"
#include "host/Instruments/Faults.h"

template class VOXListVal<VOXISpecAttrKey_var>;

namespace voxhost
{
namespace
{

//! Keeps its feature, so that it answers as long as it lives.
class AttrKey final : public VOXISpecAttrKey
{
public:
  AttrKey(Feature& iFeature, int iAttribute) : _Feature(&iFeature), _Index(iAttribute) { iFeature.AddRef(); }
  ~AttrKey() override { _Feature->Release(); }

  VOXUnicodeString GetName() const override
  {
    if (Faults::Enter("VOXISpecAttrKey::GetName"))
      return {};
    return VOXUnicodeString(_Feature->Type().Attributes()[static_cast<std::size_t>(_Index)].name.c_str());
  }
  int GetType() const override { return Faults::Enter("VOXISpecAttrKey::GetType") ? 0 : _Feature->TypeOf(_Index); }
  int GetElementType() const override
  {
    return Faults::Enter("VOXISpecAttrKey::GetElementType") ? 0 : _Feature->ElementTypeOf(_Index);
  }

  int IndexIn(const Feature& iFeature) const
  {
    if (&iFeature.Type() == &_Feature->Type())
      return _Index;
    return iFeature.IndexOf(_Feature->Type().Attributes()[static_cast<std::size_t>(_Index)].name);
  }

  VOXComponentRecord record;

private:
  Feature* _Feature;
  int _Index;
};

constexpr const char* kLateType = "SpecAttrKey";

} // namespace

VOXISpecAttrKey* NewAttrKey(Feature& iFeature, int iAttribute)
{
  static const bool declared =
      SUCCEEDED(VOXDeclareLateType(kLateType, nullptr)) && SUCCEEDED(DeclareOwnInterface<VOXISpecAttrKey>(kLateType));
  AttrKey* const key = declared ? new AttrKey(iFeature, iAttribute) : nullptr;
  if (key != nullptr)
    VOXComponentRuntime::Implement(key, key->record, kLateType);
  return key;
}

int IndexOfKey(const Feature& iFeature, const VOXISpecAttrKey* iKey)
{
  const auto* const key = dynamic_cast<const AttrKey*>(iKey);
  return key == nullptr ? -1 : key->IndexIn(iFeature);
}

} // namespace voxhost
