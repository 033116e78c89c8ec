// SPDX-License-Identifier: MIT
#include "JsonSchema.h"

#include <fstream>
#include <set>

namespace voxtest
{
namespace
{

using nlohmann::json;

class Checker
{
public:
  explicit Checker(const json& iRoot) : _Root(iRoot) {}

  std::vector<std::string> found;

  void Check(const json& iSchema, const json& iValue, const std::string& iPath)
  {
    if (iSchema.contains("$ref"))
    {
      const std::string reference = iSchema["$ref"];
      Check(_Root.at(json::json_pointer(reference.substr(1))), iValue, iPath);
      return;
    }
    CheckWords(iSchema, iPath);
    if (iSchema.contains("type") && !HasType(iSchema["type"], iValue))
    {
      found.push_back(iPath + ": is no " + iSchema["type"].dump() + ": " + iValue.dump().substr(0, 80));
      return;
    }
    if (iSchema.contains("enum") && !Contains(iSchema["enum"], iValue))
      found.push_back(iPath + ": is none of " + iSchema["enum"].dump());
    if (iSchema.contains("minimum") && iValue.is_number() && iValue < iSchema["minimum"])
      found.push_back(iPath + ": is less than " + iSchema["minimum"].dump());
    if (iValue.is_object())
      CheckObject(iSchema, iValue, iPath);
    if (iValue.is_array())
      CheckArray(iSchema, iValue, iPath);
  }

private:
  static bool Contains(const json& iArray, const json& iValue)
  {
    return std::find(iArray.begin(), iArray.end(), iValue) != iArray.end();
  }

  static bool HasType(const json& iTypes, const json& iValue)
  {
    if (iTypes.is_array())
      return std::any_of(iTypes.begin(), iTypes.end(), [&iValue](const json& iType) { return HasType(iType, iValue); });
    const std::string type = iTypes;
    return (type == "object" && iValue.is_object()) || (type == "array" && iValue.is_array()) ||
           (type == "string" && iValue.is_string()) || (type == "boolean" && iValue.is_boolean()) ||
           (type == "null" && iValue.is_null()) || (type == "integer" && iValue.is_number_integer()) ||
           (type == "number" && iValue.is_number());
  }

  void CheckWords(const json& iSchema, const std::string& iPath)
  {
    static const std::set<std::string> known{"$schema",  "$defs",      "title",   "description", "type",
                                             "required", "properties", "items",   "enum",        "additionalProperties",
                                             "minimum",  "minItems",   "maxItems"};
    for (const auto& [word, value] : iSchema.items())
      if (!known.contains(word))
        found.push_back(iPath + ": the schema says \"" + word + "\", which the checker does not know");
  }

  void CheckObject(const json& iSchema, const json& iValue, const std::string& iPath)
  {
    for (const json& name : iSchema.value("required", json::array()))
      if (!iValue.contains(name))
        found.push_back(iPath + ": lacks " + name.dump());
    const json properties = iSchema.value("properties", json::object());
    for (const auto& [name, member] : iValue.items())
    {
      if (properties.contains(name))
        Check(properties[name], member, iPath + "/" + name);
      else if (iSchema.value("additionalProperties", json(true)) == json(false))
        found.push_back(iPath + ": has \"" + name + "\", which is not allowed");
    }
  }

  void CheckArray(const json& iSchema, const json& iValue, const std::string& iPath)
  {
    if (iValue.size() < iSchema.value("minItems", std::size_t{0}))
      found.push_back(iPath + ": has too few items");
    if (iSchema.contains("maxItems") && iValue.size() > iSchema["maxItems"])
      found.push_back(iPath + ": has too many items");
    if (!iSchema.contains("items"))
      return;
    for (std::size_t place = 0; place < iValue.size(); ++place)
      Check(iSchema["items"], iValue[place], iPath + "/" + std::to_string(place));
  }

  const json& _Root;
};

} // namespace

std::vector<std::string> Violations(const json& iSchema, const json& iValue)
{
  Checker checker(iSchema);
  checker.Check(iSchema, iValue, "");
  return checker.found;
}

json SchemaOf(const std::string& iSubcommand)
{
  std::ifstream file(VOX_SOURCE_DIR "/voxbench/report/schemas/" + iSubcommand + ".json");
  return json::parse(file);
}

} // namespace voxtest
