// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Json.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace voxbench
{

//! A place in a file, for people and programs; line 0 when it is unknown.
struct Place
{
  std::string file;
  int line = 0;
};

//! What `voxbench info` tells about a file.
struct InfoResult
{
  struct ElementRow
  {
    std::string type;
    std::string family;
    std::int64_t count = 0;
  };
  struct MaterialRow
  {
    std::string name;
    std::vector<std::string> properties; //!< keywords of its cards
  };
  struct SectionRow
  {
    std::string kind;
    std::string elementSet;
    std::string material;        //!< "" if none
    std::optional<double> value; //!< thickness, stiffness, mass or first dimension, in the file's units
  };
  //! Applied cards of one keyword.
  struct AppliedRow
  {
    std::string keyword;
    std::int64_t cards = 0;
    std::int64_t rows = 0; //!< data lines
  };
  struct StepRow
  {
    int number = 0;
    std::string procedure; //!< "" if it names none
    bool perturbation = false;
    bool nonlinearGeometry = false;
    std::int64_t loads = 0;      //!< cards
    std::int64_t restraints = 0; //!< cards
    std::int64_t outputRequests = 0;
  };
  struct Counted
  {
    std::string what;
    std::int64_t count = 0;
  };
  struct UnknownCard
  {
    std::string card;
    std::int64_t count = 0;
    Place first;
  };
  struct Finding
  {
    std::string severity; //!< "error", "warning" or "note"
    Place place;
    std::string card;
    std::string message;
  };
  struct Box
  {
    std::array<double, 3> minimum{};
    std::array<double, 3> maximum{};
  };

  std::string file;
  std::uint64_t bytes = 0; //!< of all files together
  std::vector<std::string> included;
  std::vector<std::string> title;

  std::int64_t nodes = 0;
  std::int64_t elements = 0;
  std::vector<ElementRow> elementTypes;
  std::optional<Box> box; //!< of all nodes, in the file's units

  std::int64_t nodeSets = 0;
  std::int64_t elementSets = 0;
  std::int64_t surfaces = 0;
  std::vector<MaterialRow> materials;
  std::vector<SectionRow> sections;
  std::vector<AppliedRow> loads;
  std::vector<AppliedRow> restraints;
  std::vector<StepRow> steps;
  std::vector<Counted> others;         //!< amplitudes, axes, connections, output requests, ...
  std::vector<Counted> withoutFeature; //!< understood, but not in the feature tree

  std::vector<UnknownCard> unknownCards;
  std::vector<Finding> findings;
  std::int64_t errors = 0;
  std::int64_t warnings = 0;
  std::int64_t unlistedFindings = 0; //!< counted, but not in `findings`
};

//! @param iAllFindings false: long lists end with how many more there are.
void PrintInfo(Output& ioOutput, const InfoResult& iResult, bool iAllFindings);
Json ToJson(const InfoResult& iResult);

} // namespace voxbench
