// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/Restoration.h"
#include "voxbench/store/DocumentTables.h"
#include "voxbench/store/FeatureBits.h"
#include "voxbench/store/StartUpPaths.h"
#include "voxbench/store/StoredTypes.h"
#include "voxbench/store/StoredValue.h"

namespace voxbench
{
namespace
{

using voxhost::Feature;

class DocumentWriter
{
public:
  DocumentWriter(const Database& iDatabase, const voxhost::Document& iDocument, Checksum& ioSum)
      : _Database(iDatabase),
        _Document(iDocument),
        _Sum(ioSum),
        _Features(iDocument.AllFeatures())
  {
  }

  void Write(const StoreProgress& iProgress)
  {
    WriteTypesInUse();
    WriteStartUps();
    WriteContainers();
    WriteFeatures();
    WriteValues(iProgress);
  }

private:
  void WriteTypesInUse()
  {
    std::vector<const voxhost::FeatureType*> used;
    const voxhost::FeatureType* last = nullptr;
    for (const Feature* const feature : _Features)
      if (&feature->Type() != last)
        used.push_back(last = &feature->Type());
    _Types = WriteTypes(_Database, WithAllThatTheyNeed(_Document.Types(), used), _Sum);
  }

  void WriteStartUps()
  {
    Statement row(_Database, "INSERT INTO startup VALUES(?1, ?2, ?3, ?4)", &_Sum);
    for (const Feature* const feature : _Features)
    {
      const Feature* const startUp = feature->StartUp();
      const auto [place, isNew] = _StartUps.try_emplace(startUp, static_cast<std::int64_t>(_StartUps.size()) + 1);
      if (!isNew)
        continue;
      const std::string path = PathOfStartUp(*startUp);
      row.Add(place->second).Add(_Types.types.at(&startUp->Type())).Add(path);
      row.Add(std::int64_t{voxhost::Restoration::NamesGiven(*startUp)}).Insert();
    }
  }

  //! The container of the start-ups is every document's own.
  void WriteContainers()
  {
    Statement row(_Database, "INSERT INTO container VALUES(?1, ?2, ?3, ?4)", &_Sum);
    const auto& containers = _Document.Containers();
    for (std::size_t place = 1; place < containers.size(); ++place)
    {
      const voxhost::Container& container = *containers[place];
      const auto number = static_cast<std::int64_t>(place);
      row.Add(number).Add(container.Name()).Add(container.LateType());
      row.Add(std::int64_t{container.Holds()}).Insert();
      _Containers.emplace(&container, number);
    }
  }

  void WriteFeatures()
  {
    Statement row(_Database, "INSERT INTO feature VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10)", &_Sum);
    for (const Feature* const feature : _Features)
    {
      const voxhost::FeatureState state = voxhost::Restoration::StateOf(*feature);
      row.Add(std::int64_t{feature->Identifier()}).Add(_StartUps.at(feature->StartUp()));
      row.Add(_Containers.at(feature->OwningContainer())).Add(feature->Name().ConvertToChar());
      row.Add(std::int64_t{state.timeStamp}).Add(BitsOf(state)).Add(std::int64_t{state.explicitState});
      row.Add(std::int64_t{_Document.ShownViews().ShownIn(feature)});
      AddOptional(row, state.identifyingString);
      AddOptional(row, state.physicalType);
      row.Insert();
    }
  }

  static void AddOptional(Statement& ioRow, const std::optional<std::string>& iText)
  {
    if (iText)
      ioRow.Add(*iText);
    else
      ioRow.AddNull();
  }

  void WriteValues(const StoreProgress& iProgress)
  {
    Statement row(_Database, "INSERT INTO value VALUES(?1, ?2, ?3)", &_Sum);
    std::vector<std::byte> scratch;
    std::uint64_t done = 0;
    for (const Feature* const feature : _Features)
    {
      const std::vector<std::int64_t>& numbers = _Types.attributes.at(&feature->Type());
      for (std::size_t place = 0; place < numbers.size(); ++place)
      {
        const voxhost::StoredValue* const local = feature->FindLocal(static_cast<int>(place));
        if (local == nullptr)
          continue;
        row.Add(std::int64_t{feature->Identifier()}).Add(numbers[place]);
        AddValue(row, *local, scratch);
        row.Insert();
      }
      if (++done % 1024 == 0 && iProgress)
        iProgress(done, _Features.size());
    }
  }

  const Database& _Database;
  const voxhost::Document& _Document;
  Checksum& _Sum;
  const std::vector<Feature*> _Features;
  WrittenTypes _Types;
  std::unordered_map<const Feature*, std::int64_t> _StartUps;
  std::unordered_map<const voxhost::Container*, std::int64_t> _Containers;
};

} // namespace

void WriteDocument(const Database& iDatabase, const voxhost::Document& iDocument, Checksum& ioSum,
                   const StoreProgress& iProgress)
{
  DocumentWriter(iDatabase, iDocument, ioSum).Write(iProgress);
}

} // namespace voxbench
