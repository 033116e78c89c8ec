// SPDX-License-Identifier: MIT
#pragma once
#include <string>

namespace voxbench
{

//! Whether a file is a database by its first bytes, or is called a document: it is then opened as one, or refused as one.
bool IsMeantAsDocument(const std::string& iFile);

//! Looks at the header of a file without touching it. @throw StoreError for what is no document of this or an earlier
//! format, or not all of one.
void RefuseByHeader(const std::string& iFile);

} // namespace voxbench
