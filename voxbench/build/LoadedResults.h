// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"
#include "voxbench/build/RecordsSource.h"

#include <memory>
#include <string>

namespace voxbench
{

//! A result file, opened: a model of its mesh, the groups of the deck that was solved, and a solution feature that has
//! the results.
//!
//! - Groups gather by id what the mesh of the file has. Nodes that a solver made of shells and beams are in no node set;
//!   elements keep their ids.
class LoadedResults
{
public:
  //! Makes everything; once. @param ioDeck records of the deck, for title and groups; null without a deck.
  //! @return what is wrong, a sentence: the results are then of no use; else "".
  std::string Build(ResultRecords ioRecords, NeutralModel* ioDeck, ReadAgain iReadAgain);

  const LoadedModel& Model() const { return _Model; }
  const RecordsSource& Source() const { return *_Source; }
  voxhost::Feature& Solution() const { return *_Solution; }

private:
  std::string AddSolution();

  LoadedModel _Model;
  std::shared_ptr<RecordsSource> _Source;
  voxhost::Feature* _Solution = nullptr;
};

} // namespace voxbench
