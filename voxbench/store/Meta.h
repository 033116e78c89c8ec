// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/store/Database.h"

#include <string>

namespace voxbench
{

//! Facts about a document that stand in no other table: numbers and texts by name. Names that are not known are kept.
void WriteMeta(const Database& iDatabase, const char* iName, std::int64_t iValue);
void WriteMeta(const Database& iDatabase, const char* iName, const std::string& iValue);

//! @throw Damaged when there is no such fact, or one of another kind.
std::int64_t ReadMetaNumber(const Database& iDatabase, const char* iName);
std::string ReadMetaText(const Database& iDatabase, const char* iName);

//! Sums all facts up, and compares with the sum that was kept.
void SealMeta(const Database& iDatabase);
std::string ReadSeal(const Database& iDatabase); //!< other for every other content
void RefuseBrokenSeal(const Database& iDatabase);

} // namespace voxbench
