// SPDX-License-Identifier: MIT
#include "voxbench/store/StartUpPaths.h"

#include <algorithm>
#include <utility>

namespace voxbench
{
namespace
{

//! Takes the first part off a path.
std::string_view TakePart(std::string_view& ioPath)
{
  const std::string_view part = ioPath.substr(0, ioPath.find('/'));
  ioPath.remove_prefix(std::min(part.size() + 1, ioPath.size()));
  return part;
}

voxhost::Feature* ComponentOf(const voxhost::Feature& iStartUp, std::string_view iAttribute, std::string_view iName)
{
  for (voxhost::Feature* const component : iStartUp.Features(iAttribute))
    if (component->Name().ConvertToChar() == iName)
      return component;
  return nullptr;
}

} // namespace

std::string PathOfStartUp(const voxhost::Feature& iStartUp)
{
  const voxhost::Feature* const father = iStartUp.Father();
  if (father == nullptr)
    return iStartUp.Type().Name();
  const auto attribute = static_cast<std::size_t>(iStartUp.HoldingAttribute());
  return PathOfStartUp(*father) + "/" + father->Type().Attributes()[attribute].name + "/" +
         iStartUp.Name().ConvertToChar();
}

voxhost::Feature* FindStartUpAt(voxhost::Document& ioDocument, std::string_view iPath, const std::string& iType)
{
  voxhost::Feature* found = ioDocument.StartUp(TakePart(iPath));
  while (found != nullptr && !iPath.empty())
  {
    const std::string_view attribute = TakePart(iPath);
    found = ComponentOf(*found, attribute, TakePart(iPath));
  }
  const bool fits = found != nullptr && found->Type().Name() == iType;
  return fits ? found : ioDocument.StartUp(iType);
}

} // namespace voxbench
