// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"
#include "voxbench/commands/Command.h"
#include "voxbench/commands/Console.h"
#include "voxbench/report/Output.h"

#include <string>

namespace CLI
{
class App;
}

namespace voxbench
{

//! An argument that is a deck; FILE unless it has another name.
CommandDescription::Values DeckValues(std::string iArgument = "FILE");

//! An argument that is a document.
CommandDescription::Values DocumentValues(std::string iArgument = "FILE");

//! FILE where it is a deck or a document.
CommandDescription::Values ModelValues();

//! A check of options that name a file. @return what is wrong with the name; "" when it can be one.
std::string ReasonToRefuseName(const std::string& iName);

//! What every subcommand on one file is told.
struct FileOptions
{
  std::string file;
  bool json = false;

  void Declare(CLI::App& ioParser);
};

//! Reads a file with a progress bar. @return kExitDone; kExitUnreadable after a sentence to the error stream.
int OpenRecords(const std::string& iFile, Console& ioConsole, NeutralModel& oRecords);

//! @param iRelease whose start-ups are used for a deck; a document has its own.
int OpenModel(const std::string& iFile, Console& ioConsole, LoadedModel& oModel, int iRelease = kNewestRelease);

//! Hands the output over. @return iCode, or kExitSomeFailed after a sentence when it cannot be written.
int FinishOutput(Output& ioOutput, Console& ioConsole, int iCode);

} // namespace voxbench
