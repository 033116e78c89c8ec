// SPDX-License-Identifier: MIT
#include "voxbench/commands/SelectionLists.h"
#include "AnalysisInterfaces/VOXISamSelectionList.h"

#include <charconv>
#include <fmt/format.h>
#include <map>
#include <strings.h>

namespace voxbench
{
namespace
{

std::string Text(const VOXUnicodeString& iText)
{
  return static_cast<const char*>(iText);
}

void AskComponents(const voxhost::Feature& iChoice, ParameterRow& ioRow)
{
  for (const voxhost::Feature* const component : LoadedModel::ComponentsOf(iChoice))
  {
    ComponentRow row{Text(component->IdentifyingString()), {}};
    const voxhost::Value value = component->Get("Value");
    if (const double* const number = std::get_if<double>(&value))
      row.value = *number;
    ioRow.components.push_back(std::move(row));
  }
}

void AskList(const VOXISamSelectionList_var& iList, ParameterRow& ioRow)
{
  VOXSamSelectionMode mode = VOXSamSelectFree;
  VOXListValVOXUnicodeString entries;
  VOXUnicodeString selected;
  if (FAILED(iList->GetMode(mode)) || FAILED(iList->GetList(entries)) ||
      FAILED(iList->GetSelected(selected, ioRow.index)))
  {
    ioRow.failure = "the choice cannot be asked";
    return;
  }
  ioRow.mode = mode == VOXSamSelectFromList ? "list" : "free";
  for (int i = 1; i <= entries.Size(); ++i)
    ioRow.entries.push_back(Text(entries[i]));
  ioRow.selected = Text(selected);
}

//! Index of an entry; 0 when there is none.
int IndexOf(const std::vector<std::string>& iEntries, const std::string& iValue)
{
  for (std::size_t place = 0; place < iEntries.size(); ++place)
    if (strcasecmp(iEntries[place].c_str(), iValue.c_str()) == 0)
      return static_cast<int>(place) + 1;
  int index = 0;
  const char* const end = iValue.data() + iValue.size();
  const auto parsed = std::from_chars(iValue.data(), end, index);
  const bool isIndex = parsed.ec == std::errc() && parsed.ptr == end;
  return isIndex && index >= 1 && index <= static_cast<int>(iEntries.size()) ? index : 0;
}

using Names = std::map<std::uint32_t, std::string>; // by identifier of the component

Names NamesBelow(const voxhost::Feature& iChoice)
{
  Names names;
  for (const voxhost::Feature* const component : LoadedModel::ComponentsOf(iChoice))
    names[component->Identifier()] = Text(component->IdentifyingString());
  return names;
}

SelectionChange Compare(const Names& iBefore, const Names& iAfter)
{
  SelectionChange change;
  for (const auto& [identifier, name] : iBefore)
  {
    const auto after = iAfter.find(identifier);
    if (after == iAfter.end())
      change.removed.push_back(name);
    else if (after->second == name)
      change.kept.push_back(name);
    else
      change.renamed.push_back(fmt::format("{} to {}", name, after->second));
  }
  for (const auto& [identifier, name] : iAfter)
    if (iBefore.find(identifier) == iBefore.end())
      change.created.push_back(name);
  return change;
}

} // namespace

ParameterRow AskSelection(const voxhost::Feature& iFeature, voxhost::Feature& iChoice)
{
  ParameterRow row;
  row.feature = LoadedModel::DisplayName(iFeature);
  row.component = LoadedModel::DisplayName(iChoice);
  const VOXISamSelectionList_var spList(static_cast<VOXBaseUnknown*>(&iChoice));
  if (!spList)
    row.failure = "the component has no VOXISamSelectionList";
  else
    AskList(spList, row);
  AskComponents(iChoice, row);
  return row;
}

ParameterRow Select(const voxhost::Feature& iFeature, voxhost::Feature& iChoice, const std::string& iValue)
{
  const ParameterRow before = AskSelection(iFeature, iChoice);
  const int index = IndexOf(before.entries, iValue);
  const VOXISamSelectionList_var spList(static_cast<VOXBaseUnknown*>(&iChoice));
  if (!before.failure.empty() || index == 0 || !spList)
  {
    ParameterRow refused = before;
    if (refused.failure.empty())
      refused.failure = fmt::format("there is no entry {}: take one of {}", iValue, fmt::join(before.entries, ", "));
    return refused;
  }
  const Names names = NamesBelow(iChoice);
  const bool done = SUCCEEDED(spList->SetSelected(index));
  ParameterRow after = AskSelection(iFeature, iChoice);
  after.change = Compare(names, NamesBelow(iChoice));
  after.change->from = before.selected;
  after.change->to = after.selected;
  if (!done)
    after.failure = "SetSelected failed";
  return after;
}

} // namespace voxbench
