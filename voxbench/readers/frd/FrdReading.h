// SPDX-License-Identifier: MIT
#pragma once
#include "ByteWindow.h"
#include "FrdReader.h"

#include <map>
#include <string>
#include <string_view>
#include <tuple>

namespace voxbench::frd
{

//! How a block writes its rows: the digit at the end of its first line.
enum class Form : std::uint8_t
{
  Short = 0, //!< text, ids of 5 characters
  Long = 1,  //!< text, ids of 10 characters
  Single = 2,
  Double = 3
};

inline bool IsBinary(Form iForm)
{
  return iForm == Form::Single || iForm == Form::Double;
}

//! What the first line of a block tells.
struct BlockHead
{
  Form form = Form::Long;
  std::int64_t count = -1; //!< of rows; -1 when it is left blank
  std::int32_t line = 0;
};

//! The text in columns iFrom to iTo (from 0, exclusive) without blanks around it; what the line lacks is blank.
std::string_view Field(std::string_view iLine, std::size_t iFrom, std::size_t iTo);

//! One reading of a file. Operations that return bool return false once the file is refused; `outcome` tells why.
class FrdReading
{
public:
  FrdReading(const ResultOptions& iOptions, ResultRecords& oRecords) : _Options(iOptions), _Records(oRecords) {}

  bool ReadFile(const std::filesystem::path& iPath);

  ReadOutcome outcome;

private:
  // FrdReading.cpp: lines and blocks
  bool Refuse(std::string iReason, std::string iAdvice = {});
  bool RefuseLine(std::string_view iLine, const char* iReason);
  bool RefuseEnd();
  bool TakeLine(std::string_view& oLine);
  bool BeginsAResultFile();
  bool ReadBlocks();
  bool ReadParameter(std::string_view iLine);
  bool ReadBlockHead(std::string_view iLine, std::size_t iFormColumn, BlockHead& oHead);
  bool EndBinary();
  void Progress();

  // FrdMesh.cpp
  bool ReadNodes(std::string_view iLine);
  bool SortNodes();
  bool ReadElements(std::string_view iLine);
  bool ReadTextElements(const BlockHead& iHead);
  bool ReadTextElement(std::string_view iLine, int iWidth);
  bool ReadBinaryElements(const BlockHead& iHead);
  bool AddElement(std::int32_t iId, std::int32_t iType);
  void IntoOrderOfSolver(std::size_t iFirst, std::int32_t iType);
  bool SortElements();
  bool AtKey();

  // FrdRows.cpp
  bool ReadRows(const BlockHead& iHead, std::size_t iNumbers);
  bool ReadTextRows(int iWidth, std::size_t iNumbers);
  bool TakeFixedRows(int iWidth, std::size_t iNumbers);
  bool ReadTextRow(std::string_view iLine, int iWidth, std::size_t iNumbers);
  bool TakeNumbers(std::string_view iLine, std::size_t iFrom, std::size_t iNumbers, std::size_t& ioTaken);
  template <class Real>
  bool ReadBinaryRows(std::int64_t iCount, std::size_t iNumbers);
  void Reserve(const BlockHead& iHead, std::size_t iNumbers);

  // FrdResults.cpp
  bool ReadResults(std::string_view iLine);
  bool ReadState(std::string_view iLine, std::int32_t& oState);
  bool ReadComponents(ResultBlock& ioBlock);
  void CheckNodesOf(const ResultBlock& iBlock);
  void ShareNodes(ResultBlock& ioBlock);
  void PairImaginaryParts();
  void NumberStates();

  const ResultOptions& _Options;
  ResultRecords& _Records;
  ByteWindow _Window;
  std::int32_t _Line = 0;  // of the line taken last
  bool _Uncounted = false; // binary data came before: lines have no numbers any more
  std::string _Force;      // the block that is read, for messages
  bool _HasMesh = false;
  std::map<std::string, std::int32_t> _Parameters; // of the next block of results
  std::uint64_t _NextProgress = 0;

  Column<std::int32_t> _Ids; // rows of the block that is read
  Column<double> _Numbers;
  std::int64_t _NoNumbers = 0; // values that are not finite
  using StateKey = std::tuple<int, std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t, double>;
  std::map<StateKey, std::int32_t> _States;
  std::shared_ptr<const Column<std::int32_t>> _LastNodes;
};

} // namespace voxbench::frd
