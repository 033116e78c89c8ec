// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <nlohmann/json.hpp>

#include <string>

namespace voxbench
{

using Json = nlohmann::ordered_json;

//! JSON text of a value. Bytes that are no UTF-8 become replacement characters: names of old files may have some.
inline std::string JsonText(const Json& iValue, int iIndent = -1)
{
  return iValue.dump(iIndent, ' ', false, Json::error_handler_t::replace);
}

//! A whole document: indented, with a line end.
inline void WriteJson(Output& ioOutput, const Json& iValue)
{
  ioOutput.Write(JsonText(iValue, 2));
  ioOutput.Write("\n");
}

} // namespace voxbench
