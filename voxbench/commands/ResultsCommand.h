// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/ResultTables.h"

#include <string>
#include <vector>

namespace voxbench
{

//! voxbench results FILE: what a solver's result file has, and its values.
class ResultsCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  int Open(Console& ioConsole, LoadedResults& oResults);
  int OpenDeck(Console& ioConsole, NeutralModel& oDeck);
  bool IsWanted(const ResultBlock& iBlock) const;
  std::vector<ResultDefinition> Chosen(const ResultTables& iTables, const std::vector<ResultDefinition>& iAvailable,
                                       Console& ioConsole);
  std::vector<GroupNodes> ChosenGroups(const LoadedResults& iResults, Console& ioConsole);
  void Show(const LoadedResults& iResults, const ResultTables& iTables, const std::vector<ResultDefinition>& iAvailable,
            Console& ioConsole, ResultsReport& ioReport);
  static ResultsDeleted CollectAndDelete(const ResultTables& iTables, const std::vector<ResultDefinition>& iAvailable,
                                         std::string& oFailure);
  void ShowTables(const LoadedResults& iResults, const ResultTables& iTables,
                  const std::vector<ResultDefinition>& iChosen, Console& ioConsole, ResultsReport& ioReport);
  void TellStrangers(Console& ioConsole);
  void Complain(Console& ioConsole, const std::string& iSentence);

  std::string _File;
  std::string _Deck; //!< "" for none
  std::string _Type; //!< "" for a listing
  std::vector<std::string> _Versions;
  std::string _Position;
  std::vector<std::string> _Groups;
  std::vector<GroupStrangers> _Strangers; //!< of these groups
  bool _ExtremesOnly = false;
  bool _Json = false;
  bool _Csv = false;
  bool _Delete = false;
  bool _SomeFailed = false;
};

} // namespace voxbench
