// SPDX-License-Identifier: MIT
#pragma once
#include "benchmarks/support/MappedFile.h"

#include <charconv>
#include <cstring>
#include <string>
#include <vector>

//! The yardstick: what reading a deck costs at least when nothing but nodes, elements and sets goes into flat arrays.
//! Knows C3D4 elements, NODE, ELEMENT, NSET and ELSET cards with plain lines only, and trusts the file.
struct PlainScanner
{
  std::vector<int> nodeIds, elementIds, connectivity;
  std::vector<double> coordinates;
  std::vector<std::vector<int>> sets;

  explicit PlainScanner(const std::string& iPath)
  {
    const MappedFile file(iPath);
    Scan(file.begin(), file.end());
  }

private:
  template <typename T>
  static T Number(const char*& ioText, const char* iEnd)
  {
    T value{};
    while (ioText < iEnd && (*ioText == ' ' || *ioText == ','))
      ++ioText;
    ioText = std::from_chars(ioText, iEnd, value).ptr;
    return value;
  }

  void Scan(const char* iText, const char* iEnd)
  {
    char card = ' ';
    while (iText < iEnd)
    {
      const void* const found = memchr(iText, '\n', static_cast<std::size_t>(iEnd - iText));
      const char* const end = found == nullptr ? iEnd : static_cast<const char*>(found);
      if (*iText == '*' && iText[1] != '*')
      {
        card = strncmp(iText, "*NODE,", 6) == 0 ? 'N' : strncmp(iText, "*ELEMENT", 8) == 0 ? 'E' : ' ';
        if (strncmp(iText, "*NSET", 5) == 0 || strncmp(iText, "*ELSET", 6) == 0)
          card = 'S';
        if (card == 'S')
          sets.emplace_back();
      }
      else if (card == 'N')
      {
        nodeIds.push_back(Number<int>(iText, end));
        for (int axis = 0; axis < 3; ++axis)
          coordinates.push_back(Number<double>(iText, end));
      }
      else if (card == 'E')
      {
        elementIds.push_back(Number<int>(iText, end));
        for (int node = 0; node < 4; ++node)
          connectivity.push_back(Number<int>(iText, end));
      }
      else if (card == 'S')
      {
        for (int id = Number<int>(iText, end); id > 0; id = Number<int>(iText, end))
          sets.back().push_back(id);
      }
      iText = end + 1;
    }
  }
};
