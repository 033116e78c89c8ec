// SPDX-License-Identifier: MIT
#pragma once
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace voxtest
{

//! Where a JSON value breaks a schema; empty when it keeps it. Understands type, required, properties, items, enum,
//! additionalProperties: false, minimum, minItems, maxItems and $ref to "#/$defs/...". Of a schema with another word it
//! says so: nothing is passed over in silence.
std::vector<std::string> Violations(const nlohmann::json& iSchema, const nlohmann::json& iValue);

//! The schema that is kept for a subcommand's --json.
nlohmann::json SchemaOf(const std::string& iSubcommand);

} // namespace voxtest
