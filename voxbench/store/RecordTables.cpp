// SPDX-License-Identifier: MIT
// Records are kept by the names of their members, so that members can be added: what a file does not have gets its
// default, what a program does not know is passed over.
#include "voxbench/store/RecordTables.h"

#include <nlohmann/json.hpp>

namespace voxbench
{

using nlohmann::json;

template <typename T>
void to_json(json& oText, const Column<T>& iColumn)
{
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(iColumn.data());
  oText = json::binary(bytes == nullptr ? std::vector<std::uint8_t>()
                                        : std::vector<std::uint8_t>(bytes, bytes + iColumn.size() * sizeof(T)));
}

template <typename T>
void from_json(const json& iText, Column<T>& oColumn)
{
  const std::vector<std::uint8_t>& bytes = iText.get_binary();
  if (bytes.size() % sizeof(T) != 0)
    throw Damaged("a column of a record ends within a row");
  oColumn.Truncate(0);
  if (!bytes.empty())
    std::memcpy(oColumn.GrowBy(bytes.size() / sizeof(T)), bytes.data(), bytes.size());
}

NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Where, file, line)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(SourceRun, firstRow, where)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(ElementType, name, nodeCount, dimension, order, cornerCount, family,
                                                shape)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(NamedSet, name, where, isPart)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Surface, name, kind, where)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Parameter, key, value)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(DataLine, line, fields)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(CardRecord, keyword, parameters, data, where, step)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Material, name, properties, where)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Interaction, name, properties, where)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Section::Layer, thickness, material, orientation)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Section, kind, elementSet, material, orientation, profile, value,
                                                layers, card)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(AppliedRow, id, name, label, firstDof, lastDof, line, firstValue,
                                                valueCount)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(AppliedCard, keyword, type, amplitude, parameters, rows, values, where,
                                                step, replaces)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(EquationTable, offsets, nodes, dofs, coefficients, wheres, steps)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(MultiPointConstraint, type, nodes, nodeSets, where, step)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Amplitude, name, times, values, card)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Connection, kind, name, interaction, dependent, independent,
                                                referenceNode, rotationNode, orientation, behavior, card)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Step, card, procedure, perturbation, nonlinearGeometry, end)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(OutputRequest, keyword, set, variables, card)
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE_WITH_DEFAULT(Diagnostic, severity, where, card, message)

static void to_json(json& oText, const LocalAxes& iAxes)
{
  oText = {{"name", iAxes.name},   {"nodeSet", iAxes.nodeSet}, {"cylindrical", iAxes.cylindrical},
           {"first", iAxes.first}, {"second", iAxes.second},   {"card", iAxes.card}};
}

static void from_json(const json& iText, LocalAxes& oAxes)
{
  oAxes.name = iText.value("name", "");
  oAxes.nodeSet = iText.value("nodeSet", "");
  oAxes.cylindrical = iText.value("cylindrical", false);
  iText.at("first").get_to(oAxes.first);
  iText.at("second").get_to(oAxes.second);
  oAxes.card = iText.value("card", CardRecord());
}

namespace
{

//! Calls iVisit with the kind and the list of all records that are kept one by one.
template <class Records, class Visitor>
void VisitLists(Records& ioRecords, Visitor iVisit)
{
  iVisit("node_set", ioRecords.nodeSets);
  iVisit("element_set", ioRecords.elementSets);
  iVisit("surface", ioRecords.surfaces);
  iVisit("material", ioRecords.materials);
  iVisit("interaction", ioRecords.interactions);
  iVisit("section", ioRecords.sections);
  iVisit("load", ioRecords.loads);
  iVisit("restraint", ioRecords.restraints);
  iVisit("initial_condition", ioRecords.initialConditions);
  iVisit("nodal_thickness", ioRecords.nodalThicknesses);
  iVisit("multi_point_constraint", ioRecords.multiPointConstraints);
  iVisit("amplitude", ioRecords.amplitudes);
  iVisit("orientation", ioRecords.orientations);
  iVisit("transform", ioRecords.transforms);
  iVisit("connection", ioRecords.connections);
  iVisit("step", ioRecords.steps);
  iVisit("output_request", ioRecords.outputRequests);
  iVisit("other_card", ioRecords.otherCards);
  iVisit("finding", ioRecords.diagnostics.list);
}

//! What is kept once.
json Rest(const NeutralModel& iRecords)
{
  return {{"files", iRecords.files},
          {"title", iRecords.title},
          {"names", iRecords.names},
          {"elementTypes", iRecords.elementTypes},
          {"nodeSources", iRecords.nodes.sources},
          {"elementSources", iRecords.elements.sources},
          {"equations", iRecords.equations},
          {"unknownCards", iRecords.diagnostics.unknownCards},
          {"unlistedFindings", iRecords.diagnostics.unlisted},
          {"errors", iRecords.diagnostics.errors},
          {"warnings", iRecords.diagnostics.warnings}};
}

template <class Value>
void Take(const json& iText, const char* iName, Value& oValue)
{
  if (const auto found = iText.find(iName); found != iText.end())
    found->get_to(oValue);
}

void TakeRest(const json& iText, NeutralModel& oRecords)
{
  Take(iText, "files", oRecords.files);
  Take(iText, "title", oRecords.title);
  Take(iText, "names", oRecords.names);
  Take(iText, "elementTypes", oRecords.elementTypes);
  Take(iText, "nodeSources", oRecords.nodes.sources);
  Take(iText, "elementSources", oRecords.elements.sources);
  Take(iText, "equations", oRecords.equations);
  Take(iText, "unknownCards", oRecords.diagnostics.unknownCards);
  Take(iText, "unlistedFindings", oRecords.diagnostics.unlisted);
  Take(iText, "errors", oRecords.diagnostics.errors);
  Take(iText, "warnings", oRecords.diagnostics.warnings);
}

void Unpack(const StoredRecord& iStored, NeutralModel& ioRecords)
{
  const json text = json::from_cbor(iStored.data);
  if (iStored.kind == "model")
    TakeRest(text, ioRecords);
  VisitLists(ioRecords,
             [&](const char* iKind, auto& ioList)
             {
               if (iStored.kind == iKind)
                 text.get_to(ioList.emplace_back());
             });
}

template <class T>
void Fill(const voxhost::SharedArray<T>& iArray, Column<T>& oColumn)
{
  oColumn.Truncate(0);
  oColumn.Append(iArray.data(), iArray.size());
}

} // namespace

void WriteRecords(const Database& iDatabase, const NeutralModel& iRecords, Checksum& ioSum)
{
  Statement row(iDatabase, "INSERT INTO record VALUES(?1, ?2, ?3)", &ioSum);
  std::int64_t number = 0;
  const auto write = [&](const char* iKind, const json& iText)
  {
    const std::vector<std::uint8_t> bytes = json::to_cbor(iText);
    row.Add(++number).Add(iKind).AddBlob(std::as_bytes(std::span(bytes)));
    row.Insert();
  };
  write("model", Rest(iRecords));
  VisitLists(iRecords,
             [&](const char* iKind, const auto& iList)
             {
               for (const auto& record : iList)
                 write(iKind, record);
             });
}

std::vector<StoredRecord> ReadRecordTable(const Database& iDatabase, Checksum& ioSum)
{
  std::vector<StoredRecord> stored;
  Statement row(iDatabase, "SELECT id, kind, data FROM record ORDER BY id", &ioSum);
  while (row.Next())
  {
    row.Integer();
    StoredRecord& record = stored.emplace_back();
    record.kind = row.Text();
    const std::span<const std::byte> bytes = row.Blob();
    const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    record.data.assign(data, data + bytes.size());
  }
  return stored;
}

NeutralModel UnpackRecords(const std::vector<StoredRecord>& iStored)
{
  NeutralModel records;
  try
  {
    for (const StoredRecord& stored : iStored)
      Unpack(stored, records);
  }
  catch (const json::exception& wrong)
  {
    throw Damaged(wrong.what());
  }
  return records;
}

void FillMesh(const voxhost::MeshData& iMesh, NeutralModel& ioRecords)
{
  Fill(iMesh.nodeIds, ioRecords.nodes.ids);
  Fill(iMesh.coordinates, ioRecords.nodes.xyz);
  Fill(iMesh.elementIds, ioRecords.elements.ids);
  Fill(iMesh.elementTypes, ioRecords.elements.types);
  Fill(iMesh.offsets, ioRecords.elements.offsets);
  Fill(iMesh.connectivity, ioRecords.elements.nodes);
}

} // namespace voxbench
