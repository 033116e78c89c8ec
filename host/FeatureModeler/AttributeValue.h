// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXUnicodeString.h"

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace voxhost
{

class Feature;

//! A value as data: what a declaration gives as a default and what a whole-value write takes. No features in it.
//! The alternative tells the kind: real, boolean (0 or 1), integer, text, and lists of each; none at all for "no value".
using Value = std::variant<std::monostate, double, bool, std::int32_t, std::string, std::vector<double>,
                           std::vector<bool>, std::vector<std::int32_t>, std::vector<std::string>>;

//! List of a stored value; null stands for the list of no elements.
template <class Element>
using StoredList = std::unique_ptr<std::vector<Element>>;

//! A value as a feature stores it, in 16 bytes. Features are borrowed: the document owns them, and takes them out of
//! every attribute when it removes them.
using StoredValue = std::variant<double, unsigned char, std::int32_t, VOXUnicodeString, Feature*, StoredList<double>,
                                 StoredList<unsigned char>, StoredList<std::int32_t>, StoredList<VOXUnicodeString>,
                                 StoredList<Feature*>>;

static_assert(sizeof(StoredValue) == 16, "what a feature pays for one local value");

} // namespace voxhost
