// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXTypeDictionary.h"

//! Base of the ties: an interface object that forwards to an adaptor which carries the operations of the interface
//! without deriving from it.
//!
//! - Instantiated where the feature type is defined, so that the host needs no header of the adaptor.
//! - A tie owns its adaptor: made with it, attached to the same component, destroyed with it.
//! - Each interface that is reached this way brings its own tie, which forwards its operations: VOXTieFeatureUpgrade
//!   stands beside VOXISamFeatureUpgrade, and so on.
template <class Interface, class Adaptor>
class VOXTieBase : public Interface
{
public:
  VOXTieBase() : _Adaptor(new Adaptor) {}
  ~VOXTieBase() override
  {
    if (_Adaptor == nullptr)
      return;
    _Adaptor->SetImpl(nullptr);
    _Adaptor->Release();
  }
  VOXTieBase(const VOXTieBase&) = delete;
  VOXTieBase& operator=(const VOXTieBase&) = delete;

  //! Attaches tie and adaptor to a component. @return as VOXBaseUnknown::SetImpl.
  VOXBaseUnknown* SetImpl(VOXBaseUnknown* iImplementation) override
  {
    _Adaptor->SetImpl(iImplementation);
    return Interface::SetImpl(iImplementation);
  }

  //! Whether the adaptor could be allocated.
  bool IsComplete() const { return _Adaptor != nullptr; }

protected:
  //! The adaptor, borrowed. A const operation of the interface may forward to an operation that is not const.
  Adaptor* Tied() const { return _Adaptor; }

private:
  Adaptor* _Adaptor;
};

//! Declares that Tie, over an adaptor that does not derive from Interface, carries it on components of iLateType.
template <class Interface, class Tie>
HRESULT VOXTieLateType(const char* iLateType)
{
  static_assert(std::is_base_of_v<Interface, Tie>,
                "declare the tie over the adaptor, from the template that stands beside the interface");
  return VOXDeclareExtension(iLateType, Interface::ClassId(), Interface::ClassName(),
                             []() -> VOXBaseUnknown*
                             {
                               Tie* const tie = new Tie;
                               if (tie != nullptr && tie->IsComplete())
                                 return static_cast<Interface*>(tie);
                               delete tie;
                               return nullptr;
                             });
}
