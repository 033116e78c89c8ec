// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <string>
#include <vector>

namespace voxbench
{

//! One side of a connection: what it stands on, and who designs it. Each is a feature, by name and type.
struct ConnectionSide
{
  struct Member
  {
    std::string name;
    std::string type;
  };
  std::string designer; //!< the feature that plays the side's role; "" for a side without one
  std::vector<Member> supports;
  std::vector<Member> designers;
};

struct ConnectionRow
{
  std::string name;
  std::string keyword; //!< of the card that made it
  ConnectionSide sides[2];
  std::string failure; //!< what could not be asked; "" when all could
};

void PrintConnections(Output& ioOutput, const std::vector<ConnectionRow>& iRows);

//! {"connections": [{"name", "keyword", "sides": [{"designer", "supports", "designers"}, ...]}]}
void WriteConnectionsJson(Output& ioOutput, const std::vector<ConnectionRow>& iRows);

} // namespace voxbench
