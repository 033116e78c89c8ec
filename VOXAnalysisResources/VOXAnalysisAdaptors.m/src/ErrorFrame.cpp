// SPDX-License-Identifier: MIT
#include "ErrorFrame.h"

#include "AnalysisCore/VOXTrace.h"
#include "ComponentRuntime/VOXFatalError.h"

namespace voxframe
{

namespace
{

Recorded Record(Site iSite, VOXSamErrorType iKind, const char* iText, int iNumber = -1)
{
  ErrorDepthHandler::_ier_ = iKind;
  ErrorDepthHandler::_c_err_ = iText;
  ErrorDepthHandler::_i_err_ = iNumber;
  ErrorDepthHandler::_errfile_ = iSite.file;
  ErrorDepthHandler::_i_errline_ = iSite.line;
  return {};
}

// The flag can only be read by setting it: both calls are made even when nothing is put.
void Explain(const char* iExplanation)
{
  const auto displayed = static_cast<unsigned char>(VOXSamDisplayError(0));
  VOXSamDisplayError(displayed);
  if (Tra_SAMTraceExpli.IsActive() && displayed != 0)
    Tra_SAMTraceExpli.TraPutLN(iExplanation);
}

} // namespace

Recorded RecordFailedCall(Site iSite)
{
  return ErrorDepthHandler::_ier_ == VOXSamErrorNone ? Record(iSite, VOXSamErrorPropagated, "") : Recorded{};
}

Recorded RecordMissing(Site iSite, const char* iWhat)
{
  return Record(iSite, VOXSamErrorMissingObject, iWhat);
}

Recorded RecordCondition(Site iSite, const char* iCondition)
{
  return Record(iSite, VOXSamErrorCondition, iCondition);
}

Recorded RecordTracedCondition(Site iSite, const char* iExplanation, const char* iCondition)
{
  Explain(iExplanation);
  return RecordCondition(iSite, iCondition);
}

Recorded RecordEnumValue(Site iSite, int iValue)
{
  return Record(iSite, VOXSamErrorEnumValue, nullptr, iValue);
}

Recorded RecordNullExplicit(Site iSite, const char* iWhat)
{
  return Record(iSite, VOXSamErrorNullExplicit, iWhat);
}

Recorded RecordKeyword(Site iSite, const VOXString& iKeyword)
{
  static VOXString latest; // the record only borrows its text
  latest = iKeyword;
  return Record(iSite, VOXSamErrorKeyword, latest.CastToCharPtr());
}

HRESULT ReportAndFail(Recorded)
{
  VOXSamInstanciateError(ErrorDepthHandler::_ier_, ErrorDepthHandler::_SamDepth_, ErrorDepthHandler::_errfile_,
                         ErrorDepthHandler::_i_errline_, ErrorDepthHandler::_errincfile_,
                         ErrorDepthHandler::_i_errincline_, ErrorDepthHandler::_c_err_, ErrorDepthHandler::_i_err_, 0);
  return E_FAIL;
}

bool LoopGuard::Pass::MayCleanUp()
{
  if (_Guard._Entered++ == 0)
  {
    ErrorDepthHandler::_MustJump_ = 0;
    return true;
  }
  Tra_SAMTraceExpli.TraPutLN("**************************************************************");
  Tra_SAMTraceExpli.TraPutLN("* WARNING : Programming Error in Error Management            *");
  Tra_SAMTraceExpli.TraPutLN("*   Cpu loop. Do not use error macro in VOXSamReturnE_FAIL_  *");
  Tra_SAMTraceExpli.TraPutLN("**************************************************************");
  VOXSysCheckFailure("ExpressionCheck:InfiniteLoopDetected == 0", nullptr, nullptr, nullptr, _Guard._Site.file,
                     _Guard._Site.line);
  return false;
}

LoopGuard::Pass::~Pass()
{
  _Guard._Entered = 0;
  ErrorDepthHandler::_MustJump_ = 1;
}

} // namespace voxframe
