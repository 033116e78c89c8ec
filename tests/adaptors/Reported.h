// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Torture.h"

#include <ostream>
#include <string>
#include <vector>

namespace voxtest
{

//! What a report says, without its line.
struct Reported
{
  VOXSamErrorType kind;
  std::string text; //!< "(null)" when there is none
  std::string file;
  int depth = 1;
  int number = -1;

  bool operator==(const Reported&) const = default;

  friend std::ostream& operator<<(std::ostream& ioStream, const Reported& iReported)
  {
    return ioStream << "{kind " << iReported.kind << ", \"" << iReported.text << "\", " << iReported.file << ", depth "
                    << iReported.depth << ", number " << iReported.number << "}";
  }
};

//! All reports since the errors were reset. Each must have a line and the severity 0.
inline std::vector<Reported> AllReported()
{
  std::vector<Reported> all;
  for (const voxhost::ErrorReport& report : voxhost::ErrorLog::Reports())
  {
    EXPECT_GT(report.line, 0);
    EXPECT_EQ(report.severity, 0);
    all.push_back({report.kind, report.hasText ? report.text : "(null)", report.file, report.depth, report.number});
  }
  return all;
}

//! An error that an earlier operation recorded and the host has kept.
class PendingError
{
public:
  PendingError()
  {
    ResetErrors();
    voxhost::ErrorLog::SetResetsPendingError(false);
    ErrorDepthHandler::_ier_ = VOXSamErrorCondition;
    ErrorDepthHandler::_c_err_ = "an earlier condition";
    ErrorDepthHandler::_i_err_ = 41;
    ErrorDepthHandler::_errfile_ = "earlier/file";
    ErrorDepthHandler::_i_errline_ = 4711;
  }
  ~PendingError() { ResetErrors(); }
  PendingError(const PendingError&) = delete;
  PendingError& operator=(const PendingError&) = delete;

  //! Whether the five statics stand as the earlier operation left them.
  static bool Stands()
  {
    return ErrorDepthHandler::_ier_ == VOXSamErrorCondition &&
           std::string(ErrorDepthHandler::_c_err_) == "an earlier condition" && ErrorDepthHandler::_i_err_ == 41 &&
           std::string(ErrorDepthHandler::_errfile_) == "earlier/file" && ErrorDepthHandler::_i_errline_ == 4711;
  }

  static Reported AsReported(int iDepth)
  {
    return {VOXSamErrorCondition, "an earlier condition", "earlier/file", iDepth, 41};
  }
};

} // namespace voxtest
