// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisCore/ErrorDepthHandler.h"
#include "ComponentRuntime/VOXResult.h"
#include "ComponentRuntime/VOXString.h"

// How an operation fails. Written once for all adaptors; an operation reads like this:
//
//   const ErrorDepthHandler errorDepth;
//   oPointers = nullptr;                                      // out-parameters are preset before anything can fail
//   static LoopGuard loopGuard{VOX_SITE};                     // one for the operation, shared by all objects
//   const GuardedExit exit(loopGuard, [&] { delete[] owned; return S_OK; });
//   if (pModel == nullptr)
//     return exit.ReportAndFail(VOX_MISSING("pModel"));       // record the error here, then leave
//
// and one that has nothing to clean up leaves with `return ReportAndFail(VOX_FAILED_CALL);`.
//
// What happens at a site: the error is recorded, the exit cleans up behind its loop guard, the error is reported, the
// locals and the handler die, E_FAIL goes to the caller. The macros stay on one line, since the recorded line is theirs.

namespace voxframe
{

//! Place in the sources that an error or a failed check tells.
struct Site
{
  const char* file;
  int line;
};

//! What a recorded error leaves in the hand: the ticket for an exit. As a result it is E_FAIL, which is how a clean-up
//! that fails goes back to its exit.
struct Recorded
{
  operator HRESULT() const { return E_FAIL; }
};

//! Kind 1: a called operation failed. Leaves a pending error as it is.
Recorded RecordFailedCall(Site iSite);

//! Kind 3: a required object could not be obtained. Replaces a pending error, like all that follow.
//! @param iWhat the object's name or the failed fetch; a literal.
Recorded RecordMissing(Site iSite, const char* iWhat);

//! Kind 6: a precondition or state check failed. @param iCondition the failing condition; a literal.
Recorded RecordCondition(Site iSite, const char* iCondition);

//! Kind 6, explained first on the trace of explicitation failures if that is read and errors are displayed.
Recorded RecordTracedCondition(Site iSite, const char* iExplanation, const char* iCondition);

//! Kind 28: a value of an enumeration that the operation does not handle.
Recorded RecordEnumValue(Site iSite, int iValue);

//! Kind 34: an object of the explicit model that is needed is the empty handle. @param iWhat its name; a literal.
Recorded RecordNullExplicit(Site iSite, const char* iWhat);

//! Kind 55: a keyword that the operation does not know. The text of the error is the keyword itself: the frame keeps the
//! latest one, so that the text outlives the argument until another keyword is rejected.
Recorded RecordKeyword(Site iSite, const VOXString& iKeyword);

//! The exit of an operation that has nothing to clean up. @return E_FAIL.
HRESULT ReportAndFail(Recorded);

//! Finds out that the exit of an operation was entered again from its own clean-up. One static object per operation.
class LoopGuard
{
public:
  //! @param iSite the place that the failed check tells.
  explicit constexpr LoopGuard(Site iSite) : _Site(iSite), _Entered(0) {}

  //! One way through the exit, re-entries included.
  class Pass
  {
  public:
    explicit Pass(LoopGuard& ioGuard) : _Guard(ioGuard) {}
    ~Pass();
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;

    //! Counts an entry. @return whether the clean-up is to run; after a re-entry it is not, and that was said.
    bool MayCleanUp();

  private:
    LoopGuard& _Guard;
  };

private:
  Site _Site;
  int _Entered;
};

//! The exit of an operation that has something to clean up.
//! @param CleanUp a callable without arguments that returns S_OK, or the `Recorded` of a site of its own: then the exit
//! is entered again, warns about the loop, and skips the clean-up.
template <class CleanUp>
class GuardedExit
{
public:
  GuardedExit(LoopGuard& ioGuard, CleanUp iCleanUp) : _Guard(ioGuard), _CleanUp(iCleanUp) {}

  //! @return E_FAIL.
  HRESULT ReportAndFail(Recorded iRecorded) const
  {
    CleanUpOnce();
    return voxframe::ReportAndFail(iRecorded);
  }

private:
  void CleanUpOnce() const
  {
    LoopGuard::Pass pass(_Guard);
    while (pass.MayCleanUp() && FAILED(_CleanUp()))
    {
    }
  }

  LoopGuard& _Guard;
  CleanUp _CleanUp;
};

} // namespace voxframe

//! Names the source that the sites of a file tell: once per source, before its first site.
#define VOX_SOURCE_OF(Class) static constexpr char kSourceFile[] = "VOXAnalysisAdaptors.m/src/" #Class

// The sites.
#define VOX_SITE (voxframe::Site{kSourceFile, __LINE__})
#define VOX_FAILED_CALL (voxframe::RecordFailedCall(VOX_SITE))
#define VOX_MISSING(What) (voxframe::RecordMissing(VOX_SITE, What))
#define VOX_CONDITION(Condition) (voxframe::RecordCondition(VOX_SITE, Condition))
#define VOX_TRACED_CONDITION(Explanation, Condition) (voxframe::RecordTracedCondition(VOX_SITE, Explanation, Condition))
#define VOX_ENUM_VALUE(Value) (voxframe::RecordEnumValue(VOX_SITE, Value))
#define VOX_NULL_EXPLICIT(What) (voxframe::RecordNullExplicit(VOX_SITE, What))
#define VOX_KEYWORD(Keyword) (voxframe::RecordKeyword(VOX_SITE, Keyword))
