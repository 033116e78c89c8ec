// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

//! Kinds of recorded errors. Only these are written by the adaptors; the host may know more.
enum VOXSamErrorType : int
{
  VOXSamErrorNone = 0,          //!< nothing pending
  VOXSamErrorPropagated = 1,    //!< a called operation failed; never replaces a pending error
  VOXSamErrorMissingObject = 3, //!< a required object could not be obtained
  VOXSamErrorCondition = 6,     //!< a precondition or state check failed
  VOXSamErrorEnumValue = 28,    //!< an enumeration argument has a value that is not handled
  VOXSamErrorNullExplicit = 34, //!< an explicit-model object that is needed is the null object
  VOXSamErrorKeyword = 55       //!< a keyword is none of those that are known
};

//! The pending error, process-wide. Implemented by: the analysis core services of the host.
//! - One lives on the stack of each operation that can report; `_SamDepth_` tells how many do.
//! - The texts are borrowed: whoever writes them keeps them alive until the report is made, and after it while the
//!   record stands.
class VOX_HOST_API ErrorDepthHandler
{
public:
  ErrorDepthHandler();
  ~ErrorDepthHandler();
  ErrorDepthHandler(const ErrorDepthHandler&) = delete;
  ErrorDepthHandler& operator=(const ErrorDepthHandler&) = delete;

  static VOXSamErrorType _ier_;    //!< kind; VOXSamErrorNone when nothing is pending
  static const char* _c_err_;      //!< text, may be null
  static int _i_err_;              //!< number; -1 when the kind has none
  static const char* _errfile_;    //!< source file of the site
  static int _i_errline_;          //!< source line of the site
  static const char* _errincfile_; //!< included file of the site; never written by the adaptors
  static int _i_errincline_;       //!< its line; never written by the adaptors
  static int _MustJump_;           //!< 0 only while the clean-up of an error exit runs
  static int _SamDepth_;           //!< number of handlers that live
};

//! Reports the pending error. The adaptors never take it back: until the host does, here or when the last handler dies, a
//! failed call of any later operation is reported as this error.
//! @param ioKind kind of the error; the host may set it back to VOXSamErrorNone.
//! @param iDepth number of live handlers. @param iFile, iLine the site. @param iIncludedFile, iIncludedLine likewise.
//! @param iText text of the error, may be null. @param iNumber its number. @param iSeverity always 0.
VOX_HOST_API void VOXSamInstanciateError(VOXSamErrorType& ioKind, int iDepth, const char* iFile, int iLine,
                                         const char* iIncludedFile, int iIncludedLine, const char* iText, int iNumber,
                                         int iSeverity);

//! Switches the display of errors. @param iDisplay 0 or 1. @return the previous setting, in its low byte.
VOX_HOST_API int VOXSamDisplayError(unsigned char iDisplay);
