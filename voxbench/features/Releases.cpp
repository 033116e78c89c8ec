// SPDX-License-Identifier: MIT
#include "voxbench/features/Releases.h"
#include "ComponentRuntime/VOXFatalError.h"
#include "voxbench/features/CatalogueTexts.h"
#include "voxbench/features/TypeText.h"

#include <array>

namespace voxbench
{
namespace
{

Release Parse(const char* iText)
{
  const TypeText text = TypeText::parse(iText);
  Release release{text.at("release"), {}, text.at("replaced")};
  for (const TypeText& type : text.at("types"))
    release.types.push_back(DeclarationOf(type));
  return release;
}

std::array<Release, kNewestRelease> ParseAll()
{
  std::array<Release, kNewestRelease> releases;
  try
  {
    for (std::size_t place = 0; place < releases.size(); ++place)
      releases[place] = Parse(kCatalogueTexts[place]);
  }
  catch (const std::exception& wrong) // a mistake in this program
  {
    VOXFatalError(wrong.what(), nullptr, nullptr, nullptr, __FILE__, __LINE__);
  }
  return releases;
}

} // namespace

const Release& ReleaseOf(int iNumber)
{
  static const std::array<Release, kNewestRelease> releases = ParseAll();
  return releases.at(static_cast<std::size_t>(iNumber) - 1);
}

} // namespace voxbench
