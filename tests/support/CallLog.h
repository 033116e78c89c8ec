// SPDX-License-Identifier: MIT
#pragma once

#include "host/Instruments/Faults.h"

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace voxtest
{

//! Calls in the order in which they came: "VOXISamExplicit::GetExplicitParent(1)".
using Calls = std::vector<std::string>;

//! Records the calls of the host's operations while it lives. One at a time.
//!
//! - An operation of the reference host is recorded by its name, when it passes its fault point.
//! - An operation of a scripted interface (see Bench.h) is recorded with its plain arguments in brackets.
//! - References are recorded for scripted interfaces only, and only when asked for: "AddRef VOXISamExplicit".
class CallLog
{
public:
  enum class References
  {
    Ignored,
    Recorded
  };

  explicit CallLog(References iReferences = References::Ignored);
  ~CallLog();
  CallLog(const CallLog&) = delete;
  CallLog& operator=(const CallLog&) = delete;

  //! Everything since the log was made or cleared.
  const Calls& All() const { return _Calls; }

  //! The calls that begin with one of these texts, such as "VOXISamExplicit::" or "Release".
  Calls Only(const std::vector<std::string_view>& iBeginnings) const;

  //! The calls that begin with none of these texts.
  Calls Without(const std::vector<std::string_view>& iBeginnings) const;

  //! How many calls begin with a text.
  int Count(std::string_view iBeginning) const;

  void Clear() { _Calls.clear(); }

  //! Passes a scripted operation through its fault point, recording it with its arguments.
  //! @return true when this call is to fail.
  template <class... Arguments>
  static bool Enter(const char* iOperation, const Arguments&... iArguments)
  {
    if (_Current != nullptr)
      _Current->_Arguments = Describe(iArguments...);
    return voxhost::Faults::Enter(iOperation);
  }

  //! Records a line of a test's own.
  static void Note(const std::string& iCall);

  //! Records that a reference moved; nothing unless references are recorded.
  static void NoteReference(const char* iWhat, const char* iInterface);

private:
  static std::string Describe() { return {}; }

  template <class First, class... Others>
  static std::string Describe(const First& iFirst, const Others&... iOthers)
  {
    std::ostringstream text;
    text << "(" << iFirst;
    ((text << ", " << iOthers), ...);
    text << ")";
    return text.str();
  }

  static void Hear(const char* iOperation);

  static CallLog* _Current;

  References _References;
  Calls _Calls;
  std::string _Arguments; // of the scripted operation that is about to pass its fault point
};

} // namespace voxtest
