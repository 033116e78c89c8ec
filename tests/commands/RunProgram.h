// SPDX-License-Identifier: MIT
#pragma once
#include <string>
#include <vector>

namespace voxtest
{

//! What a run left: its exit code (128 + signal when a signal ended it) and both outputs.
struct RunResult
{
  int code = -1;
  std::string out;
  std::string errors;
};

//! Runs the built program as from a shell. @param iBefore shell commands that come first, such as limits.
RunResult RunBuiltProgram(const std::vector<std::string>& iArguments, const std::string& iBefore = "");

//! Runs the same in this process.
RunResult RunInProcess(const std::vector<std::string>& iArguments);

//! A deck of tests/data.
std::string DataFile(const std::string& iName);

std::string ReadText(const std::string& iPath);

//! Compares with the file of that name in tests/golden, the folder of the data left out of iText. With VOX_UPDATE_GOLDEN
//! in the environment the file is written instead. @return what is wrong; "" when they are equal.
std::string DifferenceToGolden(const std::string& iName, const std::string& iText);

//! A file of a text in a folder of the test run; the folder is emptied when the process ends. The name may begin with
//! a folder.
std::string TemporaryFile(const std::string& iName, const std::string& iText);

} // namespace voxtest
