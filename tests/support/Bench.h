// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXTypeDictionary.h"
#include "host/ComponentRuntime/Component.h"

#include <functional>
#include <string>
#include <vector>

namespace voxtest
{

//! A place to put components together: each has a late type and the interfaces that the test picks, carried by scripted
//! interfaces (ScriptedInterfaces.h) or by adaptors and feature types under test.
//!
//! @code
//!   Bench bench;
//!   VOXBaseUnknown* const feature = bench.Component<ScriptedSpecObject, MyGroup>();
//!   ScriptedSpecObject::ScriptOf(feature).upToDate = 0;
//!   VOXISamGroup_var spGroup(feature); // as the host does it
//! @endcode
//! A class under test says which interface it carries: `using Carries = VOXISamGroup;`.
class Bench
{
public:
  Bench() = default;
  ~Bench();
  Bench(const Bench&) = delete;
  Bench& operator=(const Bench&) = delete;

  //! A component whose late type has these faces. Borrowed: the bench gives it back when it dies.
  template <class... Faces>
  VOXBaseUnknown* Component()
  {
    static const std::string lateType = DeclareLateType<Faces...>(NewName());
    return Keep<Faces...>(lateType);
  }

  //! The same with a late type of that name, for tests of what looks at names. The type is process-wide: faces that an
  //! earlier test gave it stay.
  template <class... Faces>
  VOXBaseUnknown* ComponentNamed(const char* iLateType)
  {
    return Keep<Faces...>(DeclareLateType<Faces...>(iLateType));
  }

  //! References on a component above the one of the bench.
  static long References(const VOXBaseUnknown* iComponent)
  {
    return static_cast<long>(VOXComponentRuntime::References(iComponent)) - 1;
  }

private:
  static std::string NewName();
  VOXBaseUnknown* Make(const std::string& iLateType);

  template <class... Faces>
  static std::string DeclareLateType(const std::string& iName)
  {
    VOXDeclareLateType(iName.c_str(), nullptr);
    (VOXExtendLateType<typename Faces::Carries, Faces>(iName.c_str()), ...);
    return iName;
  }

  template <class... Faces>
  VOXBaseUnknown* Keep(const std::string& iLateType)
  {
    VOXBaseUnknown* const component = Make(iLateType);
    (Forgets<Faces>(component), ...);
    return component;
  }

  template <class Face>
  void Forgets(VOXBaseUnknown* iComponent)
  {
    if constexpr (requires { Face::ForgetScripts(iComponent); })
      _Forgetters.push_back([iComponent] { Face::ForgetScripts(iComponent); });
  }

  std::vector<VOXBaseUnknown*> _Components;
  std::vector<std::function<void()>> _Forgetters;
};

} // namespace voxtest
