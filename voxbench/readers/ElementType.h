// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <string>

namespace voxbench
{

//! What an element stands for in the mechanics.
enum class ElementFamily : std::uint8_t
{
  Solid,
  Shell,
  Membrane,
  PlaneStress,
  PlaneStrain,
  Axisymmetric,
  Beam,
  Truss,
  Spring,
  Dashpot,
  Mass,
  Gap,
  Contact,
  DistributingCoupling,
  Connector,
  FluidNetwork, //!< node 0 is allowed: the open end of a network
  FluidSolid,
  User,
  Unknown //!< the type name is not understood; ids and nodes are kept
};

enum class ElementShape : std::uint8_t
{
  Point,
  Line,
  Triangle,
  Quadrangle,
  Tetrahedron,
  Wedge,
  Hexahedron,
  Other
};

//! One row of a model's table of element types.
struct ElementType
{
  std::string name;            //!< upper case, such as "C3D10"
  std::int32_t nodeCount = 0;  //!< 0: the elements differ, the connectivity offsets tell
  std::int8_t dimension = 0;   //!< 0 point, 1 line, 2 surface, 3 volume
  std::int8_t order = 1;       //!< 1 linear, 2 quadratic
  std::int8_t cornerCount = 0; //!< the first nodes of the connectivity are the corners
  ElementFamily family = ElementFamily::Unknown;
  ElementShape shape = ElementShape::Other;
};

//! True for plane stress, plane strain and axisymmetric elements: their numbered sides are edges.
bool IsPlane(ElementFamily iFamily);

//! True for shells and membranes: sides 1 and 2 are faces, from 3 on they are edges.
bool IsShellLike(ElementFamily iFamily);

//! "solid", "shell", "plane stress"...
const char* NameOf(ElementFamily iFamily);

} // namespace voxbench
