// SPDX-License-Identifier: MIT
#include "voxbench/build/RecordsSource.h"
#include "voxbench/build/ResultNames.h"

#include <algorithm>
#include <cmath>

namespace voxbench
{
namespace
{

constexpr const char* kNodePosition = "NODE";

std::size_t SizeOf(const ResultBlock& iBlock)
{
  return static_cast<std::size_t>(iBlock.count) * iBlock.components.size() * sizeof(double);
}

bool AreAlike(const ResultBlock& iLeft, const ResultBlock& iRight)
{
  return iLeft.nameInFile == iRight.nameInFile && iLeft.count == iRight.count &&
         iLeft.components.size() == iRight.components.size();
}

} // namespace

VOXSamCharacVersion VersionOf(const ResultState& iState, bool iImaginary)
{
  VOXSamCharacVersion version;
  version._KindCode = static_cast<std::int32_t>(iState.kind);
  version._Occurrence = iState.number;
  version._Step = iState.step;
  version._Variant = iImaginary ? 1 : 0;
  return version;
}

std::string PhysicalTypeOfQuantity(const std::string& iName)
{
  return "RESULT_" + iName;
}

RecordsSource::RecordsSource(ResultRecords ioRecords, const voxhost::ExplicitModel& iModel, ReadAgain iReadAgain)
    : _Records(std::move(ioRecords)),
      _Model(iModel),
      _ReadAgain(std::move(iReadAgain))
{
  for (std::size_t block = 0; block < _Records.blocks.size(); ++block)
    Publish(block);
}

//! Of blocks of the same name and state the first counts.
void RecordsSource::Publish(std::size_t iBlock)
{
  const ResultBlock& block = _Records.blocks[iBlock];
  const int type = _Model.Rules()->NumberOf(PhysicalTypeOfQuantity(block.name));
  auto found = std::find_if(_Quantities.begin(), _Quantities.end(),
                            [type](const Quantity& iQuantity) { return iQuantity.physicalType == type; });
  if (found == _Quantities.end())
  {
    found = _Quantities.insert(found, {type, block.name.c_str(), TitleOf(block.name).c_str(), {}, {kNodePosition}});
    _Blocks.emplace_back();
  }
  const VOXSamCharacVersion version = VersionOf(StateOf(block), block.imaginary);
  if (std::find(found->versions.begin(), found->versions.end(), version) != found->versions.end())
    return;
  found->versions.push_back(version);
  _Blocks[static_cast<std::size_t>(found - _Quantities.begin())].push_back(iBlock);
}

const ResultState& RecordsSource::StateOf(const ResultBlock& iBlock) const
{
  return _Records.states[static_cast<std::size_t>(iBlock.state)];
}

const ResultBlock* RecordsSource::BlockOf(int iPhysicalType, const VOXSamCharacVersion& iVersion) const
{
  for (std::size_t place = 0; place < _Quantities.size(); ++place)
  {
    if (_Quantities[place].physicalType != iPhysicalType)
      continue;
    const auto& versions = _Quantities[place].versions;
    const auto found = std::find(versions.begin(), versions.end(), iVersion);
    if (found != versions.end())
      return &_Records.blocks[_Blocks[place][static_cast<std::size_t>(found - versions.begin())]];
  }
  return nullptr;
}

HRESULT RecordsSource::Read(std::size_t iQuantity, const VOXSamCharacVersion& iVersion, Values& oValues)
{
  _Failure.clear();
  const ResultBlock* const block = BlockOf(_Quantities[iQuantity].physicalType, iVersion);
  if (block == nullptr)
    return E_FAIL;
  if (!block->kept && !Keep(static_cast<std::size_t>(block - _Records.blocks.data())))
    return E_FAIL;
  Resolve(*block, oValues);
  return S_OK;
}

bool RecordsSource::Keep(std::size_t iBlock)
{
  for (ResultBlock& block : _Records.blocks)
  {
    block.kept = false;
    block.values = {};
  }
  const std::string name = _Records.blocks[iBlock].name;
  std::size_t bytes = 0;
  const auto wants = [&](const ResultRecords& iSoFar, const ResultBlock&)
  {
    const std::size_t place = iSoFar.blocks.size();
    if (place < iBlock || place >= _Records.blocks.size() || _Records.blocks[place].name != name)
      return false;
    bytes += SizeOf(_Records.blocks[place]);
    return place == iBlock || bytes <= kBudget;
  };
  ResultRecords again;
  if (const ReadOutcome outcome = _ReadAgain(wants, again); !outcome.ok)
  {
    _Failure = outcome.Describe();
    return false;
  }
  const bool isTheSame = again.blocks.size() == _Records.blocks.size() &&
                         std::equal(again.blocks.begin(), again.blocks.end(), _Records.blocks.begin(), AreAlike);
  if (!isTheSame)
  {
    _Failure = _Records.file + " has changed since it was opened: open it again";
    return false;
  }
  for (std::size_t place = 0; place < again.blocks.size(); ++place)
    if (again.blocks[place].kept)
    {
      _Records.blocks[place].kept = true;
      _Records.blocks[place].nodes = again.blocks[place].nodes;
      _Records.blocks[place].values.Swap(again.blocks[place].values);
    }
  return true;
}

//! Nodes that have no place in the mesh have none in the model.
void RecordsSource::Resolve(const ResultBlock& iBlock, Values& oValues) const
{
  const std::size_t components = iBlock.components.size();
  const std::size_t count = iBlock.nodes->size();
  oValues.components = static_cast<int>(components);
  oValues.entities.reserve(count);
  oValues.numbers.reserve(count * components);
  oValues.flags.reserve(count);
  for (std::size_t row = 0; row < count; ++row)
  {
    const std::int64_t place = PlaceOfId(_Model.Mesh().nodeIds, (*iBlock.nodes)[row]);
    if (place < 0)
      continue;
    const double* const first = iBlock.values.data() + row * components;
    const bool isWhole = std::none_of(first, first + components, [](double iNumber) { return std::isnan(iNumber); });
    oValues.entities.push_back(_Model.NodeBlock() + place);
    oValues.numbers.insert(oValues.numbers.end(), first, first + components);
    oValues.flags.push_back(isWhole ? 1 : 0);
  }
}

} // namespace voxbench
