// SPDX-License-Identifier: MIT
#pragma once
#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace voxbench
{

//! What an upgrade does to a feature, or why it cannot.
struct Decision
{
  enum class Kind : std::size_t
  {
    kAdd,     //!< a component that the start-up has gained
    kLayers,  //!< values of a layered component that its start-up has gained
    kReroute, //!< the feature becomes an instance of another start-up
    kSkip,    //!< a value that could not be carried over to the other start-up
    kStuck    //!< what still needs an upgrade afterwards
  };
  static constexpr std::size_t kKinds = 5;

  Kind kind;
  std::string feature;   //!< path
  std::string type;      //!< of the feature, before
  std::string what{};    //!< added component or value kind, type of the new instance, or attribute
  std::size_t count = 0; //!< of added components or values
  std::string reason{};  //!< of what is skipped or stuck, a sentence

  friend bool operator==(const Decision&, const Decision&) = default;
};

//! "add", "layers", "reroute", "skip", "stuck".
inline constexpr std::array<const char*, Decision::kKinds> kDecisionNames = {"add", "layers", "reroute", "skip",
                                                                             "stuck"};

using Decisions = std::vector<Decision>;

//! How many there are of each kind.
std::array<std::size_t, Decision::kKinds> CountByKind(const Decisions& iDecisions);

} // namespace voxbench
