// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

#include <string>

namespace voxhost
{

//! Fault points: any operation of the reference host can be told to fail at its k-th call, once or from then on.
//!
//! Every host operation that can fail asks `Faults::Enter("Class::Operation")` first, and answers as its contract says
//! for a failure when that is true. While nothing is armed this costs one test of a flag.
class VOX_HOST_API Faults
{
public:
  //! Counts a call of a host operation. @return true when this call is to fail.
  static bool Enter(const char* iOperation) { return _Armed && Decide(iOperation); }

  //! Counts calls from here on, failing none.
  static void Count();

  //! Counts from here on and fails the iCall-th call (from 1) of any operation; with iAndLater all that follow too.
  static void FailCall(int iCall, bool iAndLater);

  //! Fails the iCall-th call (from 1) of one operation, such as "VOXISpecObject::GetStartUp"; with iAndLater all that
  //! follow too.
  static void FailOperation(const char* iOperation, int iCall, bool iAndLater);

  //! Lets every call through again, and stops counting.
  static void Disarm();

  //! Calls counted since the last Count, FailCall or FailOperation (of the one operation in the last case).
  static int Calls();

  //! Name of the operation that was told to fail last; empty when none was.
  static std::string LastFailed();

  //! Calls iListener with the name of every operation that passes its fault point, whether it is to fail or not, and
  //! whether anything is armed or not; null for none.
  static void Listen(void (*iListener)(const char* iOperation));

private:
  static bool Decide(const char* iOperation);
  static bool _Armed;
};

} // namespace voxhost
