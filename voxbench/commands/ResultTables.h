// SPDX-License-Identifier: MIT
#pragma once
#include "AnalysisInterfaces/VOXICharacCollector.h"
#include "voxbench/build/LoadedResults.h"
#include "voxbench/commands/ResultGroups.h"
#include "voxbench/report/ResultsReport.h"

#include <string>
#include <vector>

namespace voxbench
{

//! One definition of results: what a charac collector holds values of.
struct ResultDefinition
{
  int physicalType = VOXSamPhysicalTypeNone;
  VOXSamCharacVersion version;
  VOXString position;
};

//! Asks a solution feature for its results as any program of the host would: through VOXICharacCollector.
class ResultTables
{
public:
  explicit ResultTables(const LoadedResults& iResults);

  //! Every definition that the feature says is available. @param oFailure why it could not be asked.
  std::vector<ResultDefinition> Available(std::string& oFailure) const;

  //! All of it for a listing; without file, deck and groups.
  ResultsListing Listing(const std::vector<ResultDefinition>& iAvailable) const;

  std::string NameOf(int iPhysicalType) const;
  static std::string NameOf(const VOXSamCharacVersion& iVersion); //!< "3", "3i"

  //! The values of a definition on groups. @param iGroups null for all nodes.
  ResultTable Table(const ResultDefinition& iDefinition, const std::vector<GroupNodes>* iGroups) const;

  //! Deletes the collectors of these definitions one by one, or all that stand. @param oFailure why one stayed.
  ResultsDeleted Delete(const std::vector<ResultDefinition>& iDefinitions, std::string& oFailure) const;
  ResultsDeleted DeleteAll(std::string& oFailure) const;

  int Standing() const; //!< number of collectors

private:
  void AddAvailable(int iPhysicalType, std::vector<ResultDefinition>& ioAvailable, std::string& oFailure) const;
  ResultVersion VersionOf(const ResultDefinition& iDefinition) const;
  std::string TitleOf(int iPhysicalType) const;
  std::string ArchiverOf(const ResultDefinition& iDefinition) const;

  const LoadedResults& _Results;
  VOXICharacCollector_var _Feature;
};

} // namespace voxbench
