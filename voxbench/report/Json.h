// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <nlohmann/json.hpp>

#include <string>

namespace voxbench
{

using Json = nlohmann::ordered_json;

//! Writes the controls that JSON lets stand in strings (DEL, and those of eight bits) as escapes.
inline std::string WithControlsEscaped(std::string iText)
{
  for (std::size_t at = iText.find_first_of("\x7F\xC2"); at != std::string::npos;
       at = iText.find_first_of("\x7F\xC2", at + 1))
  {
    const auto next = static_cast<unsigned char>(at + 1 < iText.size() ? iText[at + 1] : 0);
    if (iText[at] == '\x7F')
      iText.replace(at, 1, "\\u007f");
    else if ((next & 0xE0) == 0x80)
      iText.replace(at, 2, std::string("\\u00") + (next < 0x90 ? '8' : '9') + "0123456789abcdef"[next & 0xF]);
  }
  return iText;
}

//! JSON text of a value. Bytes that are no UTF-8 become replacement characters: names of old files may have some.
inline std::string JsonText(const Json& iValue, int iIndent = -1)
{
  return WithControlsEscaped(iValue.dump(iIndent, ' ', false, Json::error_handler_t::replace));
}

//! A whole document: indented, with a line end.
inline void WriteJson(Output& ioOutput, const Json& iValue)
{
  ioOutput.Write(JsonText(iValue, 2));
  ioOutput.Write("\n");
}

} // namespace voxbench
