// SPDX-License-Identifier: MIT
#pragma once
#include "host/ExplicitModel/ExplicitModel.h"
#include "voxbench/features/ResultSource.h"
#include "voxbench/readers/ReadOutcome.h"
#include "voxbench/readers/ResultRecords.h"

#include <functional>
#include <string>

namespace voxbench
{

//! Reads the records of a result file anew, with the values of the blocks that are wanted.
using ReadAgain =
    std::function<ReadOutcome(const std::function<bool(const ResultRecords&, const ResultBlock&)>&, ResultRecords&)>;

//! The version that a block of results stands for: a state, and its real or imaginary part.
VOXSamCharacVersion VersionOf(const ResultState& iState, bool iImaginary);

//! The name of a quantity among the physical types of a model.
std::string PhysicalTypeOfQuantity(const std::string& iName);

//! Results of a model out of the records of a file. Values that the records do not keep are read anew when they are asked
//! for, with as many of the following ones of the same quantity as `kBudget` allows; those kept before are forgotten then.
class RecordsSource final : public ResultSource
{
public:
  static constexpr std::size_t kBudget = std::size_t{1} << 28; //!< bytes of values

  //! @param iModel outlives the source; its rules know the quantities.
  RecordsSource(ResultRecords ioRecords, const voxhost::ExplicitModel& iModel, ReadAgain iReadAgain);

  const std::vector<Quantity>& Quantities() const override { return _Quantities; }
  HRESULT Read(std::size_t iQuantity, const VOXSamCharacVersion& iVersion, Values& oValues) override;

  const ResultRecords& Records() const { return _Records; }
  const ResultBlock* BlockOf(int iPhysicalType, const VOXSamCharacVersion& iVersion) const; //!< null when there is none
  const ResultState& StateOf(const ResultBlock& iBlock) const;

  //! Why the last Read failed; "" when it did not.
  const std::string& Failure() const { return _Failure; }

private:
  void Publish(std::size_t iBlock);
  bool Keep(std::size_t iBlock);
  void Resolve(const ResultBlock& iBlock, Values& oValues) const;

  ResultRecords _Records;
  const voxhost::ExplicitModel& _Model;
  ReadAgain _ReadAgain;
  std::vector<Quantity> _Quantities;
  std::vector<std::vector<std::size_t>> _Blocks; // of the records, per quantity and version
  std::string _Failure;
};

} // namespace voxbench
