// SPDX-License-Identifier: MIT
#include "voxbench/store/DocumentFile.h"
#include "host/FeatureModeler/Restoration.h"
#include "voxbench/store/DocumentTables.h"
#include "voxbench/store/ExplicitTables.h"
#include "voxbench/store/Header.h"
#include "voxbench/store/Meta.h"
#include "voxbench/store/PendingFile.h"
#include "voxbench/store/RecordTables.h"
#include "voxbench/store/Schema.h"

#include <fmt/format.h>
#include <new>
#include <utility>

namespace voxbench
{
namespace
{

//! Does work that may be refused. @return the reason behind the file's name; "" when all went well.
template <class Work>
std::string Guarded(const std::string& iFile, Work iWork)
{
  try
  {
    iWork();
    return "";
  }
  catch (const std::bad_alloc&)
  {
    throw;
  }
  catch (const StoreError& refused)
  {
    return fmt::format("{}: {}", iFile, refused.what());
  }
  catch (const std::exception& unexpected)
  {
    return fmt::format("{}: {}", iFile, Damaged(unexpected.what()).what());
  }
}

//! A copy of a document must be what was opened: another program may have written meanwhile.
void RefuseOther(const Database& iDatabase, const LoadedModel& iModel)
{
  if (ReadSeal(iDatabase) != iModel.Seal())
    throw StoreError("another program has changed it meanwhile: try again.");
}

void Compare(const Database& iDatabase, const char* iName, const Checksum& iSum)
{
  if (ReadMetaText(iDatabase, iName) != iSum.Text())
    throw Damaged(fmt::format("its {} does not add up", iName));
}

//! Opens a file for reading as one state, whatever others do to it meanwhile.
class DocumentAtRest
{
public:
  explicit DocumentAtRest(const std::string& iFile) : database(Checked(iFile), Database::Mode::kRead)
  {
    database.Execute("BEGIN");
    RefuseBrokenSeal(database);
  }

  Database database;

private:
  static const std::string& Checked(const std::string& iFile)
  {
    RefuseByHeader(iFile);
    return iFile;
  }
};

//! Features come first, then the mesh: two progresses that add up to one.
std::pair<StoreProgress, StoreProgress> InTwoParts(Database& ioDatabase, const StoreProgress& iWhole)
{
  if (!iWhole)
    return {};
  constexpr std::uint64_t kRowsPerChunk = 20000; // that take about as long as a chunk
  const auto rows = 2 * static_cast<std::uint64_t>(ReadMetaNumber(ioDatabase, "last_feature"));
  const auto chunks = static_cast<std::uint64_t>(ioDatabase.Integer("SELECT count(*) FROM mesh"));
  const std::uint64_t total = rows + kRowsPerChunk * chunks;
  return {[iWhole, total](std::uint64_t iDone, std::uint64_t) { iWhole(iDone, total); },
          [iWhole, rows, total](std::uint64_t iDone, std::uint64_t) { iWhole(rows + kRowsPerChunk * iDone, total); }};
}

void WriteFeaturesAndObjects(const Database& ioDatabase, const LoadedModel& iModel, int iRelease,
                             const StoreProgress& iProgress)
{
  Checksum document;
  WriteDocument(ioDatabase, iModel.Document(), document, iProgress);
  Checksum objects;
  WriteObjects(ioDatabase, iModel.Explicit(), objects);
  const auto tagOf = [&iModel](const VOXSamModelDataRoot* iObject)
  { return std::int64_t{iObject == nullptr ? 0 : iModel.Explicit().TagOf(*iObject)}; };
  WriteMeta(ioDatabase, "program", std::string(VOXBENCH_VERSION));
  WriteMeta(ioDatabase, "catalogue", std::int64_t{iRelease});
  WriteMeta(ioDatabase, "last_feature", std::int64_t{voxhost::Restoration::LastIdentifier(iModel.Document())});
  WriteMeta(ioDatabase, "tags", static_cast<std::int64_t>(iModel.Explicit().RecordCount()));
  WriteMeta(ioDatabase, "global_frame", tagOf(iModel.Explicit().GlobalFrame()));
  WriteMeta(ioDatabase, "mesh_owner", tagOf(iModel.Explicit().MeshOwner()));
  WriteMeta(ioDatabase, "feature_sum", document.Text());
  WriteMeta(ioDatabase, "object_sum", objects.Text());
}

void WriteAll(const std::string& iFile, const LoadedModel& iModel, const StoreProgress& iProgress)
{
  Database database(iFile, Database::Mode::kCreate);
  database.KeepNoJournal(); // nobody has seen the file yet
  database.Execute("PRAGMA synchronous = OFF");
  database.Execute(fmt::format("PRAGMA application_id = {}", kApplicationId).c_str());
  database.Execute(fmt::format("PRAGMA user_version = {}", kFormatVersion).c_str());
  database.Execute("BEGIN");
  database.Execute(kMakeTables);
  WriteFeaturesAndObjects(database, iModel, iModel.Release(), iProgress);
  Checksum mesh;
  WriteMesh(database, iModel.Explicit().Mesh(), mesh);
  Checksum records;
  WriteRecords(database, iModel.Records(), records);
  WriteMeta(database, "mesh_sum", mesh.Text());
  WriteMeta(database, "record_sum", records.Text());
  SealMeta(database);
  database.Execute("COMMIT");
  database.Close();
}

} // namespace

bool IsDocumentFile(const std::string& iFile)
{
  return IsMeantAsDocument(iFile);
}

std::string ReadDocumentFile(const std::string& iFile, LoadedModel& oModel, const StoreProgress& iProgress)
{
  return Guarded(iFile,
                 [&]
                 {
                   DocumentAtRest file(iFile);
                   const auto [ofFeatures, ofMesh] = InTwoParts(file.database, iProgress);
                   Checksum features;
                   std::unique_ptr<voxhost::Document> document = ReadDocument(file.database, features, ofFeatures);
                   Compare(file.database, "feature_sum", features);
                   Checksum meshSum;
                   voxhost::MeshData mesh = ReadMesh(file.database, meshSum, ofMesh);
                   Compare(file.database, "mesh_sum", meshSum);
                   Checksum objectSum;
                   auto objects = ReadObjects(file.database, std::move(mesh), *document, objectSum);
                   Compare(file.database, "object_sum", objectSum);
                   Checksum recordSum;
                   const std::vector<StoredRecord> records = ReadRecordTable(file.database, recordSum);
                   Compare(file.database, "record_sum", recordSum);
                   const auto release = static_cast<int>(ReadMetaNumber(file.database, "catalogue"));
                   if (!oModel.Restore(UnpackRecords(records), std::move(objects), std::move(document), release))
                     throw Damaged("it has no analysis model");
                   oModel.SetSeal(ReadSeal(file.database));
                 });
}

std::string ReadDocumentRecords(const std::string& iFile, NeutralModel& oRecords, const StoreProgress& iProgress)
{
  return Guarded(iFile,
                 [&]
                 {
                   DocumentAtRest file(iFile);
                   Checksum recordSum;
                   const std::vector<StoredRecord> records = ReadRecordTable(file.database, recordSum);
                   Compare(file.database, "record_sum", recordSum);
                   Checksum meshSum;
                   const voxhost::MeshData mesh = ReadMesh(file.database, meshSum, iProgress);
                   Compare(file.database, "mesh_sum", meshSum);
                   oRecords = UnpackRecords(records);
                   FillMesh(mesh, oRecords);
                 });
}

std::string RewriteDocumentFile(const std::string& iFile, const LoadedModel& iModel, int iRelease,
                                const StoreProgress& iProgress, std::string& oBackup)
{
  return Guarded(iFile,
                 [&]
                 {
                   PendingFile pending(iFile);
                   pending.CopyFrom(iFile);
                   Database database(pending.Path(), Database::Mode::kWrite);
                   database.KeepNoJournal(); // the old file is the journal
                   database.Execute("PRAGMA synchronous = OFF");
                   database.Execute("BEGIN IMMEDIATE");
                   RefuseOther(database, iModel);
                   database.Execute(kEmptyTables);
                   WriteFeaturesAndObjects(database, iModel, iRelease, iProgress);
                   SealMeta(database);
                   database.Execute("COMMIT");
                   database.Close();
                   oBackup = pending.ReplaceKeepingOld();
                 });
}

std::string WriteDocumentFile(const std::string& iFile, const LoadedModel& iModel, bool iOverwrite,
                              const StoreProgress& iProgress)
{
  return Guarded(iFile,
                 [&]
                 {
                   PendingFile pending(iFile);
                   WriteAll(pending.Path(), iModel, iProgress);
                   if (iOverwrite)
                     pending.Replace();
                   else if (!pending.TakeFreePlace())
                     throw StoreError("it is there already: give another name, or --force to replace it.");
                 });
}

} // namespace voxbench
