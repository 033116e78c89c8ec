// SPDX-License-Identifier: MIT
#pragma once
#include "NeutralModel.h"

#include <memory>

//! The neutral result records: what a reader takes out of a solver's result file, whatever its format.
//!
//! - Plain data. Numbers keep the units of the file; a value that is no finite number is NaN.
//! - The mesh is that of the file: a solver may have expanded shells and beams into solids with nodes of their own.
namespace voxbench
{

//! What kind of analysis a state belongs to.
enum class ResultKind : std::uint8_t
{
  Static,   //!< the value of the state is a time or a load factor
  Time,     //!< a time
  Mode,     //!< a natural frequency
  Buckling, //!< a buckling factor
  Frequency //!< a frequency of excitation
};

//! "static", "time", "mode", "buckling", "frequency".
const char* NameOf(ResultKind iKind);

//! What a file calls the imaginary part of a quantity: an I behind its name, in place of the last letter when it is full.
std::string NameOfImaginaryPart(const std::string& iName);

//! One state of the analysis that values belong to: an increment, a mode, a frequency.
struct ResultState
{
  ResultKind kind = ResultKind::Static;
  std::int32_t number = 0;        //!< as the file counts its states, from 1
  std::int32_t step = 0;          //!< of the analysis, from 1; 0 when the file does not tell
  std::int32_t increment = 0;     //!< in its step
  std::int32_t mode = 0;          //!< in its step; 0 for none
  std::int32_t nodalDiameter = 0; //!< of a mode of cyclic symmetry; -1 when there is no such symmetry
  double value = kNoValue;        //!< as `kind` tells
};

//! One number of each entity.
struct ResultComponent
{
  std::string name; //!< as in the file, such as "SXX"
};

//! Values of one quantity in one state.
struct ResultBlock
{
  std::string name;       //!< as in the file, such as "STRESS"; of an imaginary part that of the real part
  std::string nameInFile; //!< differs for imaginary parts, such as "STRESSI"
  bool imaginary = false; //!< the imaginary part of complex values
  std::int32_t state = 0; //!< index into ResultRecords::states
  std::vector<ResultComponent> components;
  std::int64_t count = 0; //!< number of nodes that have values
  bool kept = false;      //!< the values were asked for: `nodes` and `values` are filled
  std::shared_ptr<const Column<std::int32_t>>
      nodes;             //!< ids in the order of the file; shared by blocks on the same nodes
  Column<double> values; //!< one per component, node by node
  Where where;
};

//! All that a reader found in a result file.
struct ResultRecords
{
  std::string file;
  std::vector<std::string> header; //!< the lines that say where the file comes from, as they stand
  NodeTable nodes;
  ElementTable elements; //!< nodes in the order of the solver's input
  std::vector<ElementType> elementTypes;
  std::vector<ResultState> states; //!< in the order of the file, as the blocks
  std::vector<ResultBlock> blocks;
  Diagnostics diagnostics;
};

} // namespace voxbench
