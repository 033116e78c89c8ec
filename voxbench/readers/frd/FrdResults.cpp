// SPDX-License-Identifier: MIT
#include "../Numbers.h"
#include "FrdReading.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>

namespace voxbench::frd
{
namespace
{

bool HaveTheSameShape(const ResultBlock& iLeft, const ResultBlock& iRight)
{
  return iLeft.state == iRight.state && iLeft.components.size() == iRight.components.size();
}

} // namespace

bool FrdReading::ReadResults(std::string_view iLine)
{
  _Force = "results";
  BlockHead head;
  ResultBlock block;
  block.where = {0, _Uncounted ? 0 : _Line};
  if (!ReadBlockHead(iLine, 73, head) || !ReadState(iLine, block.state) || !ReadComponents(block))
    return false;
  const std::size_t numbers = block.components.size();
  if (!ReadRows(head, numbers))
    return false;
  CheckNodesOf(block);
  if (_NoNumbers > 0)
    _Records.diagnostics.Add(Severity::Warning, block.where, block.nameInFile,
                             fmt::format("{} value{} no number{}.", _NoNumbers, _NoNumbers == 1 ? " is" : "s are",
                                         _NoNumbers == 1 ? "" : "s"));
  block.count = static_cast<std::int64_t>(_Ids.size());
  block.kept = !_Options.wants || _Options.wants(_Records, block);
  if (block.kept)
  {
    ShareNodes(block);
    _Numbers.ReleaseSlack();
    block.values.Swap(_Numbers);
  }
  _Records.blocks.push_back(std::move(block));
  _Parameters.clear();
  return true;
}

bool FrdReading::ReadState(std::string_view iLine, std::int32_t& oState)
{
  std::int32_t kind = 0;
  ResultState state;
  if (!ParseReal(Field(iLine, 12, 24), state.value) || !ParseInteger(Field(iLine, 56, 58), kind) || kind < 0 ||
      kind > 4 || !ParseInteger(Field(iLine, 58, 63), state.number) || state.number < 1)
    return RefuseLine(iLine, "the value, kind or number of the state cannot be read");
  static constexpr ResultKind kKinds[] = {ResultKind::Static, ResultKind::Time, ResultKind::Mode, ResultKind::Static,
                                          ResultKind::Buckling};
  state.kind = kKinds[kind];
  const auto parameter = [this](const char* iName, std::int32_t iDefault)
  {
    const auto found = _Parameters.find(iName);
    return found == _Parameters.end() ? iDefault : found->second;
  };
  state.increment = parameter("STEP2", 0);
  state.step = parameter("STEP3", 0);
  state.mode = parameter("MODE1", 0);
  state.nodalDiameter = parameter("HID1", -1);
  const StateKey key{kind, state.number, state.step, state.increment, state.mode, state.nodalDiameter, state.value};
  const auto [found, isNew] = _States.try_emplace(key, static_cast<std::int32_t>(_Records.states.size()));
  if (isNew)
    _Records.states.push_back(state);
  oState = found->second;
  return true;
}

//! The name of the block and of the components that it has values of; derived ones are named without values.
bool FrdReading::ReadComponents(ResultBlock& ioBlock)
{
  std::string_view line;
  if (!TakeLine(line))
    return false;
  std::int32_t count = 0;
  std::int32_t kind = 0;
  if (!line.starts_with(" -4") || !ParseInteger(Field(line, 13, 18), count) || !ParseInteger(Field(line, 18, 23), kind))
    return RefuseLine(line, "results must name themselves in a record -4");
  ioBlock.nameInFile = Field(line, 5, 13);
  ioBlock.name = ioBlock.nameInFile;
  _Force = "results " + ioBlock.nameInFile;
  if (ioBlock.name.empty() || count < 1)
    return RefuseLine(line, "results must have a name and components");
  if (kind != 1)
    return RefuseLine(line, "only values on nodes (kind 1) are understood");
  for (std::int32_t component = 0; component < count; ++component)
  {
    std::int32_t derived = 0;
    if (!TakeLine(line))
      return false;
    const std::string_view flag = Field(line, 33, 38);
    if (!line.starts_with(" -5") || (!flag.empty() && !ParseInteger(flag, derived)))
      return RefuseLine(line, "a component must be named in a record -5");
    if (derived != 1)
      ioBlock.components.push_back({std::string(Field(line, 5, 13))});
  }
  return !ioBlock.components.empty() || RefuseLine(line, "results must have a component with values");
}

//! A solver may write values of nodes that it does not write as nodes.
void FrdReading::CheckNodesOf(const ResultBlock& iBlock)
{
  if (_Ids == _Records.nodes.ids || (_LastNodes != nullptr && _Ids == *_LastNodes))
    return;
  const auto placeless =
      std::count_if(_Ids.begin(), _Ids.end(), [this](std::int32_t iId) { return _Records.nodes.Find(iId) < 0; });
  if (placeless > 0)
    _Records.diagnostics.Add(Severity::Warning, iBlock.where, iBlock.nameInFile,
                             fmt::format("{} nodes have values but no place in the file.", placeless));
}

void FrdReading::ShareNodes(ResultBlock& ioBlock)
{
  if (_LastNodes == nullptr || *_LastNodes != _Ids)
    _LastNodes = std::make_shared<const Column<std::int32_t>>(_Ids);
  ioBlock.nodes = _LastNodes;
}

//! Known by their names beside those of the real parts. A state that knows no time but has imaginary parts is one of
//! harmonic excitation.
void FrdReading::PairImaginaryParts()
{
  std::map<std::pair<std::int32_t, std::string>, const ResultBlock*> realParts;
  for (const ResultBlock& block : _Records.blocks)
    realParts.try_emplace({block.state, NameOfImaginaryPart(block.nameInFile)}, &block);
  for (ResultBlock& block : _Records.blocks)
  {
    const auto found = realParts.find({block.state, block.nameInFile});
    if (found == realParts.end() || found->second == &block || !HaveTheSameShape(*found->second, block))
      continue;
    block.imaginary = true;
    block.name = found->second->nameInFile;
    ResultState& state = _Records.states[static_cast<std::size_t>(block.state)];
    if (state.kind == ResultKind::Time)
      state.kind = ResultKind::Frequency;
  }
}

//! States that share a number in one step are counted anew: a number must tell which one is meant.
void FrdReading::NumberStates()
{
  std::set<std::int32_t> numbers;
  for (const ResultState& state : _Records.states)
    numbers.insert(state.number);
  if (numbers.size() == _Records.states.size())
    return;
  std::int32_t number = 0;
  for (ResultState& state : _Records.states)
    state.number = ++number;
  _Records.diagnostics.Add(Severity::Note, {0, 0}, "", "several states have one number: they are counted anew.");
}

} // namespace voxbench::frd
