// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXBaseUnknown.h"
#include "tests/support/CallLog.h"

#include <map>

namespace voxtest
{

//! Base of the scripted interfaces: extension objects that record their calls and answer what they are told.
//!
//! - The script is kept per component, so that it can be written before the component is first queried.
//! - Each operation passes its fault point under its contract's name (CallLog::Enter) and answers a failure as its
//!   contract says when that is told to fail.
template <class Interface, class TheScript>
class Scripted : public Interface
{
public:
  using Carries = Interface;
  using Script = TheScript;

  //! The script of a component, made when it is first asked for. Kept until ForgetScripts.
  static Script& ScriptOf(const VOXBaseUnknown* iComponent) { return Scripts()[iComponent->GetImpl()]; }

  static void ForgetScripts(const VOXBaseUnknown* iComponent) { Scripts().erase(iComponent->GetImpl()); }

  unsigned long AddRef() override
  {
    CallLog::NoteReference("AddRef", Interface::ClassName());
    return Interface::AddRef();
  }

  unsigned long Release() override
  {
    CallLog::NoteReference("Release", Interface::ClassName());
    return Interface::Release();
  }

protected:
  Script& Told() const { return ScriptOf(this); }

private:
  static std::map<const VOXBaseUnknown*, Script>& Scripts()
  {
    static std::map<const VOXBaseUnknown*, Script> scripts;
    return scripts;
  }
};

} // namespace voxtest
