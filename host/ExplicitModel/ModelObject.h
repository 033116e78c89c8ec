// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXSamTypes.h"
#include "host/ExplicitModel/ObjectList.h"
#include "host/ExplicitModel/SharedArray.h"

#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

class VOXAnalysisCharacCollector;
class VOXAnalysisEntityCollector;

namespace voxhost
{

enum class ObjectKind : std::uint32_t
{
  Node = 0,
  Element = 1,
  Record = 2, //!< a set, an entity, an expression, an axis
  UserList = 3
};

} // namespace voxhost

//! Head of every object of a model. Nodes and elements are nothing but heads in one contiguous block each; what else is
//! known of them stands in arrays at the same place.
struct VOXSamModelDataRoot
{
  std::int32_t id;          //!< of nodes and elements: the id that a person knows; else 0
  std::uint32_t kind : 2;   //!< voxhost::ObjectKind
  std::uint32_t place : 30; //!< in the block or table of its kind

  voxhost::ObjectKind Kind() const { return static_cast<voxhost::ObjectKind>(kind); }
};

static_assert(sizeof(VOXSamModelDataRoot) == 8, "a model of 10^7 objects counts its bytes");

namespace voxhost
{

//! What an entity applies to: places in the node or element block, and for faces and edges the side of each.
struct ApplyTo
{
  VOXSamPosition position = VOXSamPositionUnknown; //!< VOXSamPositionNode: nodes; anything else: elements
  SharedArray<std::uint32_t> places;
  SharedArray<std::uint8_t> sides; //!< as many as places, or none when whole objects are meant
};

//! A linear expression (sum of coefficient x degree of freedom + constant) or a table.
struct ExpressionData
{
  struct Term
  {
    std::int32_t nodeId;
    int dof;
    double coefficient;
  };
  std::string text;
  std::vector<Term> terms;
  double constant = 0.;
  std::vector<std::pair<double, double>> table;
};

//! An axis system in model units.
struct AxisData
{
  double origin[3] = {0., 0., 0.};
  double i[3] = {1., 0., 0.};
  double j[3] = {0., 1., 0.};
  double k[3] = {0., 0., 1.};
  bool cylindrical = false;
};

//! Any object that is no node and no element.
struct Record
{
  VOXSamModelDataRoot head{}; //!< first, so that the head's address is the record's
  int physicalType = VOXSamPhysicalTypeNone;
  int status = VOXSamStatusNone;
  bool dead = false;    //!< deleted: handles on it designate nothing, its tag links to nothing
  bool hasMesh = false; //!< nodes and elements of the model are its children, behind the others
  std::string name;
  std::vector<VOXSamModelDataRoot*> parents;
  ObjectList children; //!< of a user list: its items
  ApplyTo applyTo;
  short featureKind = 0;
  unsigned int featureIdentifier = 0;
  void* featurePointer = nullptr;
  std::uint64_t stamp = 1; //!< grows when the object or anything below it changes
  std::vector<VOXAnalysisEntityCollector*> entityCollectors;
  std::vector<VOXAnalysisCharacCollector*> characCollectors;
  std::vector<ExpressionData> expression; //!< none or one
  std::vector<AxisData> axis;             //!< none or one
};

static_assert(std::is_standard_layout_v<Record>, "a record is reached from its head");

} // namespace voxhost
