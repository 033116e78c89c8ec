// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"

#include <cstdint>
#include <functional>
#include <string>

namespace voxbench
{

//! Told how many rows of how many are done.
using StoreProgress = std::function<void(std::uint64_t iDone, std::uint64_t iTotal)>;

//! Whether a file is to be opened by the operations below: by its first bytes, or because it is called *.voxdoc.
bool IsDocumentFile(const std::string& iFile);

//! Opens a document. The file is never written to.
//! @return what is wrong, a sentence that begins with the file: the model is then of no use; else "".
std::string ReadDocumentFile(const std::string& iFile, LoadedModel& oModel, const StoreProgress& iProgress);

//! Reads the records of a document and its mesh, as a reader of decks leaves them; the members of sets are left out.
//! @return as ReadDocumentFile.
std::string ReadDocumentRecords(const std::string& iFile, NeutralModel& oRecords, const StoreProgress& iProgress);

//! Writes features and objects of an opened document back in one transaction; mesh, records, and what this program does
//! not know of the file stay. The old file is kept.
//! @param iRelease whose start-ups the features have now. @param oBackup name of the old file: the new one's with
//! ".backup-" and the first number that is free behind. @return what is wrong, a sentence: the file is as it was; else "".
std::string RewriteDocumentFile(const std::string& iFile, const LoadedModel& iModel, int iRelease,
                                const StoreProgress& iProgress, std::string& oBackup);

//! Writes a new document in one step. @param iOverwrite whether a file of that name may go. @return what is wrong, a
//! sentence: nothing was written; else "".
std::string WriteDocumentFile(const std::string& iFile, const LoadedModel& iModel, bool iOverwrite,
                              const StoreProgress& iProgress);

} // namespace voxbench
