// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace voxbench::inp
{

//! Why a file is no deck.
struct NoDeck
{
  std::int32_t line = 1;
  std::string card; //!< the card that tells it, "" if none
  std::string reason;
};

//! Looks at the first lines of a file. @return nothing if they may begin a deck.
//!
//! A deck begins with a card of the dialect. A few stray lines before it are let through (they are reported when the deck
//! is read), as are unknown cards as long as a known one is among the first twenty.
std::optional<NoDeck> Sniff(std::string_view iHead);

} // namespace voxbench::inp
