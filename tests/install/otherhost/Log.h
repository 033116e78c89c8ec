// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisCore/ErrorDepthHandler.h"

#include <string>
#include <vector>

namespace otherhost
{

//! What was reported to this host, oldest first.
struct Log
{
  struct Error
  {
    VOXSamErrorType kind;
    std::string text;
    std::string file;
    int line;
    int number;
  };

  std::vector<Error> errors;
  std::vector<std::string> failedChecks;

  static Log& Get();
};

} // namespace otherhost
