// SPDX-License-Identifier: MIT
#pragma once
#include <zlib.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

//! A second, simple reading of a deck's sets and surfaces, to compare with: no line of the reader's code, no errors known.
//! Keys are "NSET name", "ELSET name", "NODESURFACE name", "SURFACE name"; members "7", or "7.1" with their side label.
struct PlainParser
{
  std::map<std::string, std::set<std::string>> members, named;
  std::set<std::string> nodes, elements;

  explicit PlainParser(const std::filesystem::path& iPath)
  {
    gzFile file = gzopen(iPath.c_str(), "rb");
    std::string keyword, key, type, line;
    bool generate = false;
    std::size_t nodesToCome = 0;
    for (int character = gzgetc(file); character >= 0; character = gzgetc(file))
    {
      if (character != '\n')
      {
        if (character > ' ')
          line += static_cast<char>(std::toupper(character));
        continue;
      }
      const std::vector<std::string> fields = Split(std::exchange(line, ""));
      if (fields.empty() || fields[0].substr(0, 2) == "**")
        continue;
      if (fields[0][0] == '*')
      {
        keyword = fields[0], key = type = "", generate = false, nodesToCome = 0;
        for (const std::string& field : fields)
        {
          const std::string name = field.substr(field.find('=') + 1);
          generate |= field == "GENERATE";
          type = field.rfind("TYPE=", 0) == 0 ? name : type;
          if (field.rfind("NSET=", 0) == 0 && (keyword == "*NSET" || keyword == "*NODE"))
            key = "NSET " + name;
          if (field.rfind("ELSET=", 0) == 0 && (keyword == "*ELSET" || keyword == "*ELEMENT"))
            key = "ELSET " + name;
          if (field.rfind("NAME=", 0) == 0 && keyword == "*SURFACE")
            key = "SURFACE " + name;
        }
        key = type == "NODE" && keyword == "*SURFACE" ? "NODE" + key : key;
        if (!key.empty())
          members[key];
      }
      else
        TakeData(keyword, key, type, generate, fields, nodesToCome);
    }
    gzclose(file);
    for (int depth = 0; depth < 5; ++depth)
      for (auto& [name, all] : named)
        for (const std::string& one : all)
        {
          const bool surface = name.rfind("SURFACE", 0) == 0;
          const std::string side = surface ? one.substr(one.find('.')) : "";
          const std::string kind = surface || name[0] == 'E' ? "ELSET " : "NSET ";
          for (const std::string& member : members[kind + one.substr(0, surface ? one.find('.') : one.size())])
            members[name].insert(member + side);
        }
  }

private:
  static std::vector<std::string> Split(const std::string& iLine)
  {
    std::vector<std::string> fields;
    std::stringstream stream(iLine);
    for (std::string field; std::getline(stream, field, ',');)
      fields.push_back(field);
    return fields;
  }

  static bool IsNumber(const std::string& iText) { return iText.find_first_not_of("0123456789") == std::string::npos; }

  // C3D20R has 20 nodes, B32 three, S8 eight; the others are few.
  static std::size_t NodeCount(const std::string& iType)
  {
    static const std::map<std::string, std::size_t> kOthers = {
        {"B21", 2},  {"B31", 2},     {"B31R", 2},     {"B32", 3},    {"B32R", 3},   {"D", 3},
        {"MASS", 1}, {"SPRINGA", 2}, {"DASHPOTA", 2}, {"GAPUNI", 2}, {"DCOUP3D", 1}};
    const std::size_t from = iType.find_first_of("0123456789", iType.find('D') + 1);
    return kOthers.count(iType) != 0 ? kOthers.at(iType) : static_cast<std::size_t>(std::atoi(iType.c_str() + from));
  }

  void TakeData(const std::string& iKeyword, const std::string& iKey, const std::string& iType, bool iGenerate,
                const std::vector<std::string>& iFields, std::size_t& ioNodesToCome)
  {
    if (iKeyword == "*NODE")
      nodes.insert(iFields[0]);
    if (iKeyword == "*ELEMENT" && ioNodesToCome > 0) // the element goes on
    {
      ioNodesToCome -= std::min(ioNodesToCome, iFields.size());
      return;
    }
    if (iKeyword == "*ELEMENT")
    {
      elements.insert(iFields[0]);
      ioNodesToCome = NodeCount(iType) - std::min(NodeCount(iType), iFields.size() - 1);
    }
    if (iKey.empty())
      return;
    if (iKeyword == "*NODE" || iKeyword == "*ELEMENT")
      members[iKey].insert(iFields[0]);
    else if (iGenerate)
      for (int id = std::stoi(iFields[0]); id <= std::stoi(iFields[1]);
           id += iFields.size() > 2 ? std::stoi(iFields[2]) : 1)
        members[iKey].insert(std::to_string(id));
    else if (iKey[0] == 'S')
      (IsNumber(iFields[0]) ? members : named)[iKey].insert(iFields[0] + "." + iFields[1]);
    else
      for (const std::string& field : iFields)
        if (!field.empty())
          (IsNumber(field) ? members : named)[iKey].insert(field);
  }
};
