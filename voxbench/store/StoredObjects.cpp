// SPDX-License-Identifier: MIT
// The objects of the explicit model as they stand on disk.
#include "VOXSamGroupTools.h"
#include "voxbench/store/ExplicitTables.h"
#include "voxbench/store/Meta.h"

#include <fmt/format.h>
#include <map>
#include <nlohmann/json.hpp>

namespace voxhost
{

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(ExpressionData::Term, nodeId, dof, coefficient)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(ExpressionData, text, terms, constant, table)

static void to_json(nlohmann::json& oText, const AxisData& iAxis)
{
  oText = {
      {"origin", iAxis.origin}, {"i", iAxis.i}, {"j", iAxis.j}, {"k", iAxis.k}, {"cylindrical", iAxis.cylindrical}};
}

static void from_json(const nlohmann::json& iText, AxisData& oAxis)
{
  iText.at("origin").get_to(oAxis.origin);
  iText.at("i").get_to(oAxis.i);
  iText.at("j").get_to(oAxis.j);
  iText.at("k").get_to(oAxis.k);
  iText.at("cylindrical").get_to(oAxis.cylindrical);
}

} // namespace voxhost

namespace voxbench
{
namespace
{

using nlohmann::json;
using voxhost::ExplicitModel;
using voxhost::Record;

constexpr std::int64_t kMostTags = 0x1fffffff;

Record* RecordWithTag(const ExplicitModel& iModel, std::int64_t iTag)
{
  if (iTag < 1 || iTag > static_cast<std::int64_t>(iModel.RecordCount()))
    return nullptr;
  VOXSamModelDataRoot* const head = iModel.FindTag(static_cast<int>(iTag));
  return head == nullptr ? nullptr : ExplicitModel::RecordAt(*head);
}

//! An axis or an expression in a compact form, with all digits.
template <class Data>
void AddData(Statement& ioRow, const std::vector<Data>& iData, std::vector<std::uint8_t>& ioScratch)
{
  if (iData.empty())
  {
    ioRow.AddNull();
    return;
  }
  ioScratch = json::to_cbor(json(iData.front()));
  ioRow.AddBlob(std::as_bytes(std::span(ioScratch)));
}

template <class Data>
void ReadData(Statement& ioRow, std::vector<Data>& oData)
{
  if (ioRow.Null())
    return;
  try
  {
    const std::span<const std::byte> bytes = ioRow.Blob();
    const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    oData.push_back(json::from_cbor(data, data + bytes.size()).template get<Data>());
  }
  catch (const json::exception& wrong)
  {
    throw Damaged(wrong.what());
  }
}

class ObjectWriter
{
public:
  ObjectWriter(const Database& iDatabase, const ExplicitModel& iModel, Checksum& ioSum)
      : _Database(iDatabase),
        _Model(iModel),
        _Sum(ioSum)
  {
  }

  void Write()
  {
    WritePhysicalTypes();
    WriteSelections();
    Statement row(_Database, "INSERT INTO object VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13)",
                  &_Sum);
    ForEachRecord([&](std::int64_t iTag, const Record& iRecord) { WriteObject(row, iTag, iRecord); });
  }

private:
  //! Objects only: lists of entities belong to whoever asked for them.
  template <class Work>
  void ForEachRecord(Work iWork)
  {
    const auto records = static_cast<std::int64_t>(_Model.RecordCount());
    for (std::int64_t tag = 1; tag <= records; ++tag)
    {
      const Record* const record = RecordWithTag(_Model, tag);
      if (record != nullptr && record->head.Kind() == voxhost::ObjectKind::Record)
        iWork(tag, *record);
    }
  }

  void WritePhysicalTypes()
  {
    std::map<int, bool> used;
    ForEachRecord([&](std::int64_t, const Record& iRecord) { used[iRecord.physicalType] = true; });
    Statement row(_Database, "INSERT INTO physical_type VALUES(?1, ?2, ?3)", &_Sum);
    for (const auto& [number, isUsed] : used)
    {
      const voxhost::ExplicitRules::Type* const type =
          _Model.Rules() == nullptr ? nullptr : _Model.Rules()->Find(number);
      if (type != nullptr)
        row.Add(std::int64_t{number}).Add(type->name).Add(std::int64_t{type->category}).Insert();
    }
  }

  using Selection = std::pair<const std::uint32_t*, const std::uint8_t*>;
  static Selection SelectionOf(const Record& iRecord)
  {
    return {iRecord.applyTo.places.data(), iRecord.applyTo.sides.data()};
  }

  void WriteSelections()
  {
    Statement row(_Database, "INSERT INTO selection VALUES(?1, ?2, ?3)", &_Sum);
    ForEachRecord(
        [&](std::int64_t, const Record& iRecord)
        {
          const voxhost::ApplyTo& applyTo = iRecord.applyTo;
          const auto number = static_cast<std::int64_t>(_Selections.size()) + 1;
          if (applyTo.places.empty() || !_Selections.try_emplace(SelectionOf(iRecord), number).second)
            return;
          row.Add(number).AddBlob(BytesOf(applyTo.places.data(), applyTo.places.size()));
          row.AddBlob(BytesOf(applyTo.sides.data(), applyTo.sides.size()));
          row.Insert();
        });
  }

  void WriteObject(Statement& ioRow, std::int64_t iTag, const Record& iRecord)
  {
    const std::vector<std::int32_t> parents = TagsOf(iRecord.parents);
    const std::vector<std::int32_t> children = TagsOf(iRecord.children);
    const bool selects = !iRecord.applyTo.places.empty();
    ioRow.Add(iTag).Add(std::int64_t{iRecord.physicalType}).Add(iRecord.name).Add(std::int64_t{iRecord.status});
    ioRow.AddBlob(BytesOf(parents.data(), parents.size())).AddBlob(BytesOf(children.data(), children.size()));
    ioRow.Add(std::int64_t{iRecord.applyTo.position});
    ioRow.Add(selects ? _Selections.at(SelectionOf(iRecord)) : std::int64_t{0});
    ioRow.Add(std::int64_t{iRecord.featureKind}).Add(std::int64_t{iRecord.featureIdentifier});
    ioRow.Add(std::int64_t{iRecord.featurePointer != nullptr});
    AddData(ioRow, iRecord.axis, _AxisBytes);
    AddData(ioRow, iRecord.expression, _ExpressionBytes);
    ioRow.Insert();
  }

  template <class Objects>
  std::vector<std::int32_t> TagsOf(const Objects& iObjects) const
  {
    std::vector<std::int32_t> tags;
    tags.reserve(iObjects.size());
    for (const VOXSamModelDataRoot* const object : iObjects)
      tags.push_back(_Model.TagOf(*object));
    return tags;
  }

  const Database& _Database;
  const ExplicitModel& _Model;
  Checksum& _Sum;
  std::map<Selection, std::int64_t> _Selections;
  std::vector<std::uint8_t> _AxisBytes;
  std::vector<std::uint8_t> _ExpressionBytes;
};

class ObjectReader
{
public:
  ObjectReader(Database& ioDatabase, const voxhost::Document& iDocument, Checksum& ioSum)
      : _Database(ioDatabase),
        _Document(iDocument),
        _Sum(ioSum)
  {
  }

  std::unique_ptr<ExplicitModel> Read(voxhost::MeshData iMesh)
  {
    ReadPhysicalTypes();
    MakeRecords();
    _Nodes = iMesh.nodeIds.size();
    _Elements = iMesh.elementIds.size();
    ReadSelections();
    Statement row(_Database,
                  "SELECT tag, physical_type, name, status, parents, children, position, selection, feature_kind, "
                  "feature_identifier, feature_pointer, axis, expression FROM object ORDER BY tag",
                  &_Sum);
    while (row.Next())
      ReadObject(row);
    GiveTheMesh(std::move(iMesh));
    PointBack();
    return std::move(_Model);
  }

private:
  //! Types that the rules of this program do not have are added to them, without children.
  void ReadPhysicalTypes()
  {
    Statement row(_Database, "SELECT id, name, category FROM physical_type ORDER BY id", &_Sum);
    std::vector<std::pair<std::string, VOXSamValue>> unknown;
    std::map<std::int64_t, std::string> names;
    while (row.Next())
    {
      const std::int64_t number = row.Integer();
      const std::string name(row.Text());
      const auto category = static_cast<VOXSamValue>(row.Integer(0, VOXSamValueUnknown));
      names.emplace(number, name);
      if (voxhost::ExplicitRules::Default()->NumberOf(name) == VOXSamPhysicalTypeNone)
        unknown.emplace_back(name, category);
    }
    std::shared_ptr<const voxhost::ExplicitRules> rules = voxhost::ExplicitRules::Default();
    if (!unknown.empty())
    {
      std::vector<voxhost::PhysicalTypeRule> table = voxhost::ExplicitRules::DefaultTable();
      for (const auto& [name, category] : unknown)
        table.push_back({name.c_str(), category, {}});
      rules = std::make_shared<const voxhost::ExplicitRules>(table);
    }
    for (const auto& [number, name] : names)
      _PhysicalTypes.emplace(number, rules->NumberOf(name));
    _Model = std::make_unique<ExplicitModel>(rules);
  }

  //! One record per tag, so that objects can refer to later ones; those that the file does not have are deleted ones.
  void MakeRecords()
  {
    const std::int64_t last = _Database.Integer("SELECT coalesce(max(tag), 0) FROM object");
    const std::int64_t count = ReadMetaNumber(_Database, "tags");
    if (last > count || count > kMostTags)
      throw Damaged("an object has a tag out of range");
    while (static_cast<std::int64_t>(_Model->RecordCount()) < count)
      _Model->NewRecord(voxhost::ObjectKind::Record);
    _Exists.assign(static_cast<std::size_t>(count) + 1, false);
    Statement tags(_Database, "SELECT tag FROM object");
    while (tags.Next())
      _Exists[static_cast<std::size_t>(tags.Integer(1, count))] = true;
    for (std::int64_t tag = 1; tag <= count; ++tag)
      if (!_Exists[static_cast<std::size_t>(tag)])
        _Model->Kill(*RecordWithTag(*_Model, tag));
    const std::int64_t frame = ReadMetaNumber(_Database, "global_frame");
    Record* const record = RecordWithTag(*_Model, frame);
    _Model->DesignateGlobalFrame(record == nullptr ? nullptr : &record->head);
  }

  void ReadSelections()
  {
    Statement row(_Database, "SELECT id, places, sides FROM selection ORDER BY id", &_Sum);
    while (row.Next())
    {
      const std::int64_t number = row.Integer();
      voxhost::ApplyTo selection;
      selection.places = voxhost::SharedArray<std::uint32_t>(ArrayOf<std::uint32_t>(row.Blob()));
      selection.sides = voxhost::SharedArray<std::uint8_t>(ArrayOf<std::uint8_t>(row.Blob()));
      if (!selection.sides.empty() && selection.sides.size() != selection.places.size())
        throw Damaged("a selection has not as many sides as places");
      _Selections.emplace(number, std::move(selection));
    }
  }

  template <class T>
  static std::vector<T> ArrayOf(std::span<const std::byte> iBytes)
  {
    if (iBytes.size() % sizeof(T) != 0)
      throw Damaged("an array ends within an element");
    std::vector<T> values(iBytes.size() / sizeof(T));
    if (!iBytes.empty())
      std::memcpy(values.data(), iBytes.data(), iBytes.size());
    return values;
  }

  void ReadObject(Statement& ioRow)
  {
    Record& record = *RecordWithTag(*_Model, ioRow.Integer());
    const auto type = _PhysicalTypes.find(ioRow.Integer());
    record.physicalType = type == _PhysicalTypes.end() ? static_cast<int>(VOXSamPhysicalTypeNone) : type->second;
    record.name = ioRow.Text();
    record.status = static_cast<int>(ioRow.Integer(INT32_MIN, INT32_MAX));
    record.parents = ObjectsOf(ioRow.Blob());
    record.children = voxhost::ObjectList(ObjectsOf(ioRow.Blob()));
    const auto position = static_cast<VOXSamPosition>(ioRow.Integer(0, VOXSamPositionCenter));
    if (const std::int64_t number = ioRow.Integer(); number != 0)
    {
      const auto selection = _Selections.find(number);
      if (selection == _Selections.end())
        throw Damaged("an object applies to a selection that is not there");
      record.applyTo = selection->second;
    }
    record.applyTo.position = position;
    const std::size_t limit = position == VOXSamPositionNode ? _Nodes : _Elements;
    for (const std::uint32_t place : record.applyTo.places)
      if (place >= limit)
        throw Damaged("an object applies to something outside of the mesh");
    record.featureKind = static_cast<short>(ioRow.Integer(INT16_MIN, INT16_MAX));
    record.featureIdentifier = static_cast<unsigned int>(ioRow.Integer(0, UINT32_MAX));
    if (ioRow.Integer(0, 1) != 0)
      _Pointing.push_back(&record);
    record.axis.clear();
    ReadData(ioRow, record.axis);
    ReadData(ioRow, record.expression);
  }

  std::vector<VOXSamModelDataRoot*> ObjectsOf(std::span<const std::byte> iTags) const
  {
    std::vector<VOXSamModelDataRoot*> objects;
    for (const std::int32_t tag : ArrayOf<std::int32_t>(iTags))
    {
      Record* const record = RecordWithTag(*_Model, tag);
      if (record == nullptr)
        throw Damaged(fmt::format("there is no object of the tag {}", tag));
      objects.push_back(&record->head);
    }
    return objects;
  }

  void GiveTheMesh(voxhost::MeshData iMesh)
  {
    const std::int64_t tag = ReadMetaNumber(_Database, "mesh_owner");
    if (tag == 0)
      return;
    VOXAnalysisExplicitEntity owner;
    owner.LinkWithTag(static_cast<int>(tag), _Model.get());
    if (RecordWithTag(*_Model, tag) == nullptr || !_Model->SetMesh(owner, std::move(iMesh)))
      throw Damaged("nothing holds the mesh");
  }

  //! Objects that knew the visualization of their feature know it again.
  void PointBack() const
  {
    for (const Record* const record : _Pointing)
    {
      const voxhost::Feature* const feature = _Document.FindFeature(record->featureIdentifier);
      VOXAnalysisExplicitParent object;
      VOXAnalysisExplicitParent noSource;
      object.LinkWithTag(_Model->TagOf(record->head), _Model.get());
      VOXSamGroupTools::MakeReadyForVisu(feature, noSource, object);
    }
  }

  Database& _Database;
  const voxhost::Document& _Document;
  Checksum& _Sum;
  std::unique_ptr<ExplicitModel> _Model;
  std::map<std::int64_t, int> _PhysicalTypes;
  std::map<std::int64_t, voxhost::ApplyTo> _Selections;
  std::vector<bool> _Exists;
  std::vector<Record*> _Pointing;
  std::size_t _Nodes = 0;
  std::size_t _Elements = 0;
};

} // namespace

void WriteObjects(const Database& iDatabase, const ExplicitModel& iModel, Checksum& ioSum)
{
  ObjectWriter(iDatabase, iModel, ioSum).Write();
}

std::unique_ptr<ExplicitModel> ReadObjects(Database& ioDatabase, voxhost::MeshData iMesh,
                                           const voxhost::Document& iDocument, Checksum& ioSum)
{
  return ObjectReader(ioDatabase, iDocument, ioSum).Read(std::move(iMesh));
}

} // namespace voxbench
