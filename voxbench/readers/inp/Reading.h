// SPDX-License-Identifier: MIT
#pragma once
#include "../NeutralModel.h"
#include "../ReadOutcome.h"
#include "Card.h"
#include "LineSource.h"
#include "SetBuilder.h"

#include <filesystem>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace voxbench::inp
{

enum class LineKind
{
  Data,
  Keyword,
  End
};

//! A deck being read: the stack of its open files as one stream of lines, and what has been gathered so far.
//!
//! Card handlers take data lines until `Peek` no longer answers Data. Included files open and close unseen between two
//! lines, so that an include may stand among the data lines of a card.
class Reading
{
public:
  Reading(const ReadOptions& iOptions, NeutralModel& ioModel);

  //! Opens the main file. @return false after a refusal.
  bool Open(const std::filesystem::path& iPath);

  //! The kind of the next line that is no comment; the source's cursor then stands at its start.
  //! @param iBlankLinesCount whether a line without anything is a data line (else it is skipped).
  LineKind Peek(bool iBlankLinesCount = false);

  //! The file in which the next line stands, after `Peek`.
  LineSource& Source() { return *_Open.back().source; }

  //! The next line as text, not taken. Borrowed until the next call of `Peek`.
  std::string_view PeekedLine();

  Where Here() const { return {_Open.back().index, _Open.back().source->Line()}; }

  //! Takes the next data line of the card in force. @return false when there is none.
  bool TakeFields(DataLine& oLine, bool iBlankLinesCount = false);

  //! Takes the next card: keyword line and its continuations. @return false at the end.
  bool TakeCard(CardRecord& oCard);

  //! Takes all data lines of the card in force.
  void TakeData(CardRecord& ioCard, bool iBlankLinesCount = false);

  //! The same, of a card whose fields are numbers; others are reported and kept as they are.
  void TakeNumbers(CardRecord& ioCard);

  void Refuse(Where iWhere, std::string iReason, std::string iAdvice);
  bool Refused() const { return !outcome.ok; }

  //! Adds a finding about the card in force.
  void Report(Severity iSeverity, Where iWhere, const std::string& iMessage);

  //! The step in force, 0 outside of steps.
  std::int32_t StepNow() const { return inStep ? static_cast<std::int32_t>(model.steps.size()) : 0; }

  //! The index of a name in NeutralModel::names, added if new.
  std::int32_t NameIndex(const std::string& iName);

  //! Tells the caller that all bytes are read.
  void Finished() const;

  NeutralModel& model;
  ReadOutcome outcome;
  std::string cardInForce; //!< "*NODE", "*END STEP" etc. for findings
  SetBuilders nodeSets;
  SetBuilders elementSets;
  SetBuilders nodeSurfaces;
  SetBuilders elementSurfaces;
  std::vector<std::string> surfaceOrder; //!< 'N' or 'E' and the name, in the order of first appearance
  std::unordered_map<std::string, std::int32_t> userElementNodes;
  using Places = std::unordered_map<std::string, std::size_t>; //!< by name
  Places materialPlaces;
  Places interactionPlaces;
  Places elementTypePlaces;
  bool nodesAscend = true;    //!< ids so far strictly ascending
  bool elementsAscend = true; //!< ids so far strictly ascending
  bool inStep = false;

  //! The material or interaction whose property cards come next.
  enum class Owner
  {
    None,
    Material,
    Interaction,
    Connection
  } owner = Owner::None;
  std::size_t ownerIndex = 0; //!< its place in the model

private:
  struct OpenFile
  {
    std::unique_ptr<LineSource> source;
    std::filesystem::path path;
    std::filesystem::path identity;
    std::int32_t index = -1;
  };

  std::string Push(const std::filesystem::path& iPath);
  void Progress() const;
  bool AtInclude(std::string_view iLine) const;
  void EnterInclude();
  void LeaveFile();

  const ReadOptions& _Options;
  std::vector<OpenFile> _Open;
  std::unordered_map<std::string, std::int32_t> _NameIndexes;
  std::uint64_t _BytesClosed = 0;
  std::uint64_t _BytesKnown = 0;
};

} // namespace voxbench::inp
