// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace voxbench
{

//! A place in the files of a model: index into `NeutralModel::files`, and line counted from 1. Unknown: -1 and 0.
struct Where
{
  std::int32_t file = -1;
  std::int32_t line = 0;

  friend bool operator==(const Where&, const Where&) = default;
};

enum class Severity : std::uint8_t
{
  Note,    //!< read as meant, worth knowing
  Warning, //!< read, but something of the input has no effect
  Error    //!< a line, a member or a card of the input could not be used
};

//! One finding of a reader.
struct Diagnostic
{
  Severity severity = Severity::Note;
  Where where;
  std::string card;    //!< keyword of the card in force, such as "*ELEMENT"
  std::string message; //!< one sentence
};

//! All findings of a reader. Nothing of the input is lost without a trace here.
//!
//! - Findings of one card keyword are listed up to `kListedPerCard`, later ones are only counted in `unlisted`.
//! - `unknownCards` counts every card whose keyword is not understood, listed or not.
struct Diagnostics
{
  static constexpr std::int64_t kListedPerCard = 2000;

  std::vector<Diagnostic> list; //!< in the order found
  std::map<std::string, std::int64_t> unknownCards;
  std::map<std::string, std::int64_t> unlisted;
  std::int64_t errors = 0;
  std::int64_t warnings = 0;

  void Add(Severity iSeverity, Where iWhere, const std::string& iCard, std::string iMessage);

private:
  std::map<std::string, std::int64_t> _Listed;
};

//! "file:line: error: *CARD: message". The file is left out when it is unknown.
std::string Describe(const Diagnostic& iDiagnostic, const std::vector<std::string>& iFiles);

} // namespace voxbench
