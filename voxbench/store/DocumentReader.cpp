// SPDX-License-Identifier: MIT
#include "voxbench/store/DocumentTables.h"
#include "voxbench/store/FeatureBits.h"
#include "voxbench/store/Meta.h"
#include "voxbench/store/StartUpPaths.h"
#include "voxbench/store/StoredTypes.h"
#include "voxbench/store/StoredValue.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

using voxhost::Feature;

constexpr std::int64_t kMostFeatures = 1 << 30;
constexpr std::int64_t kMostContainers = 1 << 16;

class DocumentReader
{
public:
  DocumentReader(Database& ioDatabase, Checksum& ioSum) : _Database(ioDatabase), _Sum(ioSum) {}

  std::unique_ptr<voxhost::Document> Read(const StoreProgress& iProgress)
  {
    _Total = static_cast<std::uint64_t>(ReadMetaNumber(_Database, "last_feature"));
    if (_Database.Integer("SELECT coalesce(max(id), 0) FROM feature") != static_cast<std::int64_t>(_Total))
      throw Damaged("its last feature is another one");
    _Types = ReadStoredTypes(_Database, _Sum);
    _Document = std::make_unique<voxhost::Document>(_Types.catalogue);
    _Restoration.emplace(*_Document, static_cast<std::uint32_t>(_Total));
    ReadStartUps();
    ReadContainers();
    ReadFeatures(iProgress);
    ReadValues(iProgress);
    RefuseCircles();
    return std::move(_Document);
  }

private:
  void ReadStartUps()
  {
    Statement row(_Database, "SELECT id, type, path, names_given FROM startup ORDER BY id", &_Sum);
    while (row.Next())
    {
      const auto number = static_cast<std::size_t>(row.Integer(1, kMostFeatures));
      const voxhost::FeatureType& type = _Types.Find(row.Integer());
      const std::string path(row.Text());
      Feature* const startUp = FindStartUpAt(*_Document, path, type.Name());
      if (startUp == nullptr)
        throw Damaged(fmt::format("type {} has no start-up", type.Name()));
      if (const std::int64_t names = row.Integer(0, UINT32_MAX); names > 0)
        _Restoration->SetNamesGiven(*startUp, static_cast<std::uint32_t>(names));
      if (_StartUps.size() <= number)
        _StartUps.resize(number + 1, nullptr);
      _StartUps[number] = startUp;
    }
  }

  void ReadContainers()
  {
    Statement row(_Database, "SELECT id, name, late_type, holds FROM container ORDER BY id", &_Sum);
    std::int64_t expected = 1;
    while (row.Next())
    {
      row.Integer(expected, expected);
      const std::string name(row.Text());
      const std::string lateType(row.Text());
      const bool holds = row.Integer(0, 1) != 0;
      if (expected > 1 &&
          (expected > kMostContainers || _Document->NewContainer(name, lateType.c_str(), holds) == nullptr))
        throw Damaged(fmt::format("container {} cannot be made", name));
      ++expected;
    }
  }

  void ReadFeatures(const StoreProgress& iProgress)
  {
    Statement row(_Database,
                  "SELECT id, startup, container, name, stamp, state, explicit_state, shown, identifying_string, "
                  "physical_type FROM feature ORDER BY id",
                  &_Sum);
    std::uint64_t done = 0;
    std::int32_t clock = 0;
    while (row.Next())
    {
      clock = std::max(clock, ReadFeature(row));
      if (++done % 1024 == 0 && iProgress)
        iProgress(done, 2 * _Total);
    }
    _Restoration->SetClock(std::max(clock, _Document->Clock()));
  }

  std::int32_t ReadFeature(Statement& ioRow)
  {
    const auto identifier = static_cast<std::uint32_t>(ioRow.Integer(1, static_cast<std::int64_t>(_Total)));
    if (_Document->FindFeature(identifier) != nullptr)
      throw Damaged(fmt::format("there are two features {}", identifier));
    Feature& startUp = *At(_StartUps, ioRow.Integer(), "start-up");
    voxhost::Container& container = *At(_Document->Containers(), ioRow.Integer(1, kMostContainers), "container");
    const VOXUnicodeString name(ioRow.Text().data());
    voxhost::FeatureState state;
    state.timeStamp = static_cast<std::int32_t>(ioRow.Integer(INT32_MIN, INT32_MAX));
    TakeBits(ioRow.Integer(0, kAllStateBits), state);
    state.explicitState = static_cast<int>(ioRow.Integer(INT16_MIN, INT16_MAX));
    const int shown = static_cast<int>(ioRow.Integer(0, 3));
    if (!ioRow.Null())
      state.identifyingString = ioRow.Text();
    if (!ioRow.Null())
      state.physicalType = ioRow.Text();
    Feature* const made = _Restoration->Make(identifier, startUp, name, container, state);
    if (made == nullptr)
      throw std::bad_alloc();
    if (shown != 0)
      _Document->ShownViews().Restore(made, shown);
    return state.timeStamp;
  }

  void ReadValues(const StoreProgress& iProgress)
  {
    Statement row(_Database, "SELECT feature, attribute, value FROM value ORDER BY feature, attribute", &_Sum);
    std::uint64_t done = 0;
    while (row.Next())
    {
      const std::int64_t identifier = row.Integer(1, kMostFeatures);
      Feature* const feature = _Document->FindFeature(static_cast<std::uint32_t>(identifier));
      const std::int64_t number = row.Integer();
      if (feature == nullptr || feature->IsStartUp() || number < 0 ||
          static_cast<std::size_t>(number) >= _Types.attributes.size())
        throw Damaged("a value belongs to nothing");
      const auto& [type, index] = _Types.attributes[static_cast<std::size_t>(number)];
      if (type != &feature->Type() ||
          !_Restoration->Put(*feature, index,
                             ReadValue(row, type->Attributes()[static_cast<std::size_t>(index)], *_Document)))
        throw Damaged(fmt::format("feature {} has a value that does not fit", identifier));
      if (++done % 1024 == 0 && iProgress)
        iProgress(_Total + static_cast<std::uint64_t>(identifier), 2 * _Total);
    }
  }

  //! A feature that stood below itself would be walked through for ever.
  void RefuseCircles() const
  {
    std::vector<std::uint32_t> visitedFrom(_Total + 1, 0);
    for (const Feature* const feature : _Document->AllFeatures())
      for (const Feature* above = feature; above != nullptr && visitedFrom[above->Identifier()] == 0;
           above = above->Father())
      {
        visitedFrom[above->Identifier()] = feature->Identifier();
        const Feature* const father = above->Father();
        if (father != nullptr && visitedFrom[father->Identifier()] == feature->Identifier())
          throw Damaged(fmt::format("feature {} stands below itself", father->Identifier()));
      }
  }

  template <class Table>
  static typename Table::value_type At(const Table& iTable, std::int64_t iNumber, const char* iWhat)
  {
    const auto place = static_cast<std::size_t>(iNumber);
    if (iNumber < 0 || place >= iTable.size() || iTable[place] == nullptr)
      throw Damaged(fmt::format("there is no {} of the number {}", iWhat, iNumber));
    return iTable[place];
  }

  Database& _Database;
  Checksum& _Sum;
  std::uint64_t _Total = 0;
  ReadTypes _Types;
  std::unique_ptr<voxhost::Document> _Document;
  std::optional<voxhost::Restoration> _Restoration;
  std::vector<Feature*> _StartUps;
};

} // namespace

std::unique_ptr<voxhost::Document> ReadDocument(Database& ioDatabase, Checksum& ioSum, const StoreProgress& iProgress)
{
  return DocumentReader(ioDatabase, ioSum).Read(iProgress);
}

} // namespace voxbench
