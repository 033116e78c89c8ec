// SPDX-License-Identifier: MIT
#include "tests/support/CallLog.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace voxtest
{
namespace
{

bool BeginsWithAny(const std::string& iCall, const std::vector<std::string_view>& iBeginnings)
{
  return std::any_of(iBeginnings.begin(), iBeginnings.end(),
                     [&](std::string_view iBeginning) { return iCall.starts_with(iBeginning); });
}

} // namespace

CallLog* CallLog::_Current = nullptr;

CallLog::CallLog(References iReferences) : _References(iReferences)
{
  _Current = this;
  voxhost::Faults::Listen(&CallLog::Hear);
}

CallLog::~CallLog()
{
  voxhost::Faults::Listen(nullptr);
  _Current = nullptr;
}

Calls CallLog::Only(const std::vector<std::string_view>& iBeginnings) const
{
  Calls calls;
  std::copy_if(_Calls.begin(), _Calls.end(), std::back_inserter(calls),
               [&](const std::string& iCall) { return BeginsWithAny(iCall, iBeginnings); });
  return calls;
}

Calls CallLog::Without(const std::vector<std::string_view>& iBeginnings) const
{
  Calls calls;
  std::copy_if(_Calls.begin(), _Calls.end(), std::back_inserter(calls),
               [&](const std::string& iCall) { return !BeginsWithAny(iCall, iBeginnings); });
  return calls;
}

int CallLog::Count(std::string_view iBeginning) const
{
  return static_cast<int>(Only({iBeginning}).size());
}

void CallLog::Note(const std::string& iCall)
{
  if (_Current != nullptr)
    _Current->_Calls.push_back(iCall);
}

void CallLog::NoteReference(const char* iWhat, const char* iInterface)
{
  if (_Current != nullptr && _Current->_References == References::Recorded)
    Note(std::string(iWhat) + " " + iInterface);
}

void CallLog::Hear(const char* iOperation)
{
  Note(iOperation + std::exchange(_Current->_Arguments, {}));
}

} // namespace voxtest
