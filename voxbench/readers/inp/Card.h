// SPDX-License-Identifier: MIT
#pragma once
#include "../NeutralModel.h"

#include <string>
#include <string_view>
#include <vector>

namespace voxbench::inp
{

//! ASCII upper case; other characters stay.
std::string Upper(std::string_view iText);

//! The text without blanks and tabs at both ends (and without a carriage return).
std::string_view Trim(std::string_view iText);

//! Splits a line at its commas: blanks vanish, letters become upper case, quotes protect both and vanish themselves.
//! A comma at the end of the line adds no field; a blank line has no fields.
void SplitFields(std::string_view iLine, std::vector<std::string>& oFields);

//! True for a comment ("**") or a line without anything.
bool IsCommentOrBlank(std::string_view iLine);

//! True for a keyword line ("*" and no second one).
bool IsKeyword(std::string_view iLine);

//! Reads a keyword line, or the continuation of one, into a record: the keyword (of a first line) and the parameters.
void AddKeywordLine(std::string_view iLine, CardRecord& ioCard);

//! The keyword of a keyword line as it is written there, in upper case, with single blanks; without the star.
std::string KeywordAsWritten(std::string_view iLine);

//! A sentence with words of the deck in it, for people: words beyond 80 characters, and texts beyond 500, end in "...".
std::string Readable(std::string_view iText);

//! True if the line can only go on a keyword line that ended with a comma: a parameter with a value, or flags alone.
bool ContinuesKeyword(std::string_view iLine);

} // namespace voxbench::inp
