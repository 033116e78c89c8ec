// SPDX-License-Identifier: MIT
#include "ResultFile.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>

namespace
{

//! " -1", an id, and numbers of twelve characters.
void AppendRow(std::string& ioText, std::int64_t iId, int iNumbers, double iSeed)
{
  char field[32];
  std::snprintf(field, sizeof field, " -1%10lld", static_cast<long long>(iId));
  ioText += field;
  for (int number = 0; number < iNumbers; ++number)
  {
    const double value = std::sin(iSeed + number) * std::pow(10., (static_cast<int>(iId) + number) % 9 - 4);
    std::snprintf(field, sizeof field, "%12.5E", value);
    ioText += field;
  }
  ioText += '\n';
}

std::string Rows(std::int64_t iNodes, int iNumbers)
{
  std::string rows;
  for (std::int64_t node = 1; node <= iNodes; ++node)
    AppendRow(rows, node, iNumbers, static_cast<double>(node));
  return rows + " -3\n";
}

template <class... Values>
std::string Printed(const char* iFormat, Values... iValues)
{
  char text[256];
  std::snprintf(text, sizeof text, iFormat, iValues...);
  return text;
}

std::string Elements(std::int64_t iNodes)
{
  const std::int64_t count = iNodes - 3;
  std::string text = Printed("    3C%18s%12lld%37s%1d\n", "", static_cast<long long>(count), "", 1);
  for (std::int64_t element = 1; element <= count; ++element)
    text += Printed(" -1%10lld    3    0    1\n -2%10lld%10lld%10lld%10lld\n", static_cast<long long>(element),
                    static_cast<long long>(element), static_cast<long long>(element + 1),
                    static_cast<long long>(element + 2), static_cast<long long>(element + 3));
  return text + " -3\n";
}

std::string Head(std::int64_t iState, std::int64_t iNodes, const char* iName, int iComponents)
{
  std::string head = Printed("    1PSTEP%26lld%12d%12d          \n", static_cast<long long>(iState), 1, 1);
  head += Printed("  100CL  %3lld%11lld.%12lld%20s%2d%5lld%-10s%2d\n", static_cast<long long>(100 + iState % 800),
                  static_cast<long long>(iState), static_cast<long long>(iNodes), "", 1, static_cast<long long>(iState),
                  "", 1);
  head += Printed(" -4  %-8s%5d    1\n", iName, iComponents);
  for (int component = 1; component <= iComponents; ++component)
    head += Printed(" -5  C%-7d    1    2    1    0\n", component);
  return head;
}

} // namespace

ResultFile::ResultFile(std::int64_t iMegabytes)
{
  constexpr std::int64_t kBytesPerState = kNodes * (50 + 86);
  _States = std::max<std::int64_t>(1, iMegabytes * 1000000 / kBytesPerState);
}

bool ResultFile::Write(const std::string& iPath) const
{
  std::ofstream file(iPath, std::ios::binary);
  const std::string vectors = Rows(kNodes, 3);
  const std::string tensors = Rows(kNodes, 6);
  file << "    1C\n    1UUSER\n"
       << Printed("    2C%18s%12lld%37s%1d\n", "", static_cast<long long>(kNodes), "", 1) << vectors
       << Elements(kNodes);
  for (std::int64_t state = 1; state <= _States; ++state)
    file << Head(state, kNodes, "DISP", 3) << vectors << Head(state, kNodes, "STRESS", 6) << tensors;
  file << " 9999\n";
  return file.good();
}
