// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <optional>
#include <string>
#include <vector>

namespace voxbench
{

//! A basic component below a choice, and its value.
struct ComponentRow
{
  std::string name;
  std::optional<double> value;
};

//! What a new selection did to the components below a choice.
struct SelectionChange
{
  std::string from;
  std::string to;
  std::vector<std::string> kept;
  std::vector<std::string> renamed; //!< "ShellThickness.2 to ShellThickness"
  std::vector<std::string> removed;
  std::vector<std::string> created;
};

//! A choice that a feature holds.
struct ParameterRow
{
  std::string feature;
  std::string component;
  std::string mode; //!< "list" or "free"
  std::vector<std::string> entries;
  std::string selected; //!< "" when nothing is
  int index = 0;        //!< of the selected entry, from 1
  std::vector<ComponentRow> components;
  std::optional<SelectionChange> change; //!< with --set
  std::string failure;                   //!< what could not be asked or done; "" when all could
};

void PrintParams(Output& ioOutput, const std::vector<ParameterRow>& iRows);

//! {"parameters": [{"feature", "component", "mode", "entries", "selected", "index", "components", "change"}]}
void WriteParamsJson(Output& ioOutput, const std::vector<ParameterRow>& iRows);

} // namespace voxbench
