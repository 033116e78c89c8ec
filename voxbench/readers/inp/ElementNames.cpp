// SPDX-License-Identifier: MIT
#include "ElementNames.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace voxbench::inp
{

namespace
{
using Family = ElementFamily;
using Shape = ElementShape;

struct KnownType
{
  std::string_view name;
  Family family;
  Shape shape;
  std::int8_t nodes;
  std::int8_t order;
};

constexpr KnownType kKnownTypes[] = {
    {"C3D4", Family::Solid, Shape::Tetrahedron, 4, 1},
    {"C3D6", Family::Solid, Shape::Wedge, 6, 1},
    {"C3D8", Family::Solid, Shape::Hexahedron, 8, 1},
    {"C3D8R", Family::Solid, Shape::Hexahedron, 8, 1},
    {"C3D8I", Family::Solid, Shape::Hexahedron, 8, 1},
    {"C3D10", Family::Solid, Shape::Tetrahedron, 10, 2},
    {"C3D10T", Family::Solid, Shape::Tetrahedron, 10, 2},
    {"C3D15", Family::Solid, Shape::Wedge, 15, 2},
    {"C3D20", Family::Solid, Shape::Hexahedron, 20, 2},
    {"C3D20R", Family::Solid, Shape::Hexahedron, 20, 2},
    {"C3D20RI", Family::Solid, Shape::Hexahedron, 20, 2},
    {"C3D20RB", Family::Solid, Shape::Hexahedron, 20, 2},
    {"DC3D4", Family::Solid, Shape::Tetrahedron, 4, 1},
    {"DC3D6", Family::Solid, Shape::Wedge, 6, 1},
    {"DC3D8", Family::Solid, Shape::Hexahedron, 8, 1},
    {"DC3D10", Family::Solid, Shape::Tetrahedron, 10, 2},
    {"DC3D15", Family::Solid, Shape::Wedge, 15, 2},
    {"DC3D20", Family::Solid, Shape::Hexahedron, 20, 2},
    {"F3D4", Family::FluidSolid, Shape::Tetrahedron, 4, 1},
    {"F3D6", Family::FluidSolid, Shape::Wedge, 6, 1},
    {"F3D8", Family::FluidSolid, Shape::Hexahedron, 8, 1},
    {"F3D8R", Family::FluidSolid, Shape::Hexahedron, 8, 1},
    {"S3", Family::Shell, Shape::Triangle, 3, 1},
    {"S3R", Family::Shell, Shape::Triangle, 3, 1},
    {"S4", Family::Shell, Shape::Quadrangle, 4, 1},
    {"S4R", Family::Shell, Shape::Quadrangle, 4, 1},
    {"S6", Family::Shell, Shape::Triangle, 6, 2},
    {"S8", Family::Shell, Shape::Quadrangle, 8, 2},
    {"S8R", Family::Shell, Shape::Quadrangle, 8, 2},
    {"US3", Family::Shell, Shape::Triangle, 3, 1},
    {"US4", Family::Shell, Shape::Quadrangle, 4, 1},
    {"US45", Family::Shell, Shape::Quadrangle, 4, 1},
    {"M3D3", Family::Membrane, Shape::Triangle, 3, 1},
    {"M3D4", Family::Membrane, Shape::Quadrangle, 4, 1},
    {"M3D4R", Family::Membrane, Shape::Quadrangle, 4, 1},
    {"M3D6", Family::Membrane, Shape::Triangle, 6, 2},
    {"M3D8", Family::Membrane, Shape::Quadrangle, 8, 2},
    {"M3D8R", Family::Membrane, Shape::Quadrangle, 8, 2},
    {"CPS3", Family::PlaneStress, Shape::Triangle, 3, 1},
    {"CPS4", Family::PlaneStress, Shape::Quadrangle, 4, 1},
    {"CPS4R", Family::PlaneStress, Shape::Quadrangle, 4, 1},
    {"CPS6", Family::PlaneStress, Shape::Triangle, 6, 2},
    {"CPS8", Family::PlaneStress, Shape::Quadrangle, 8, 2},
    {"CPS8R", Family::PlaneStress, Shape::Quadrangle, 8, 2},
    {"CPE3", Family::PlaneStrain, Shape::Triangle, 3, 1},
    {"CPE4", Family::PlaneStrain, Shape::Quadrangle, 4, 1},
    {"CPE4R", Family::PlaneStrain, Shape::Quadrangle, 4, 1},
    {"CPE6", Family::PlaneStrain, Shape::Triangle, 6, 2},
    {"CPE8", Family::PlaneStrain, Shape::Quadrangle, 8, 2},
    {"CPE8R", Family::PlaneStrain, Shape::Quadrangle, 8, 2},
    {"CAX3", Family::Axisymmetric, Shape::Triangle, 3, 1},
    {"CAX4", Family::Axisymmetric, Shape::Quadrangle, 4, 1},
    {"CAX4R", Family::Axisymmetric, Shape::Quadrangle, 4, 1},
    {"CAX6", Family::Axisymmetric, Shape::Triangle, 6, 2},
    {"CAX8", Family::Axisymmetric, Shape::Quadrangle, 8, 2},
    {"CAX8R", Family::Axisymmetric, Shape::Quadrangle, 8, 2},
    {"B21", Family::Beam, Shape::Line, 2, 1},
    {"B31", Family::Beam, Shape::Line, 2, 1},
    {"B31R", Family::Beam, Shape::Line, 2, 1},
    {"B32", Family::Beam, Shape::Line, 3, 2},
    {"B32R", Family::Beam, Shape::Line, 3, 2},
    {"T2D2", Family::Truss, Shape::Line, 2, 1},
    {"T3D2", Family::Truss, Shape::Line, 2, 1},
    {"T3D3", Family::Truss, Shape::Line, 3, 2},
    {"SPRINGA", Family::Spring, Shape::Line, 2, 1},
    {"SPRING1", Family::Spring, Shape::Point, 1, 1},
    {"SPRING2", Family::Spring, Shape::Line, 2, 1},
    {"DASHPOTA", Family::Dashpot, Shape::Line, 2, 1},
    {"DASHPOT1", Family::Dashpot, Shape::Point, 1, 1},
    {"DASHPOT2", Family::Dashpot, Shape::Line, 2, 1},
    {"MASS", Family::Mass, Shape::Point, 1, 1},
    {"GAPUNI", Family::Gap, Shape::Line, 2, 1},
    {"DCOUP3D", Family::DistributingCoupling, Shape::Point, 1, 1},
    {"CONN2D2", Family::Connector, Shape::Line, 2, 1},
    {"CONN3D2", Family::Connector, Shape::Line, 2, 1},
    {"D", Family::FluidNetwork, Shape::Line, 3, 2},
    {"U1", Family::User, Shape::Line, 2, 1},
};

std::int8_t DimensionOf(Shape iShape)
{
  switch (iShape)
  {
  case Shape::Line:
    return 1;
  case Shape::Triangle:
  case Shape::Quadrangle:
    return 2;
  case Shape::Tetrahedron:
  case Shape::Wedge:
  case Shape::Hexahedron:
    return 3;
  default:
    return 0;
  }
}

std::int8_t CornersOf(Shape iShape)
{
  constexpr std::array<std::int8_t, 8> kCorners = {1, 2, 3, 4, 4, 6, 8, 0};
  return kCorners[static_cast<std::size_t>(iShape)];
}

ElementType TypeOf(const KnownType& iKnown, const std::string& iName)
{
  ElementType type;
  type.name = iName;
  type.nodeCount = iKnown.nodes;
  type.dimension = DimensionOf(iKnown.shape);
  type.order = iKnown.order;
  type.cornerCount = CornersOf(iKnown.shape);
  type.family = iKnown.family;
  type.shape = iKnown.shape;
  return type;
}

bool IsUnknownVariant(const std::string& iName, std::string_view iKnown)
{
  const auto isLetter = [](char iCharacter) { return iCharacter >= 'A' && iCharacter <= 'Z'; };
  return iKnown.size() > 1 && iName.starts_with(iKnown) &&
         std::all_of(iName.begin() + static_cast<std::ptrdiff_t>(iKnown.size()), iName.end(), isLetter);
}
} // namespace

ElementType LookUpElementType(const std::string& iName)
{
  const KnownType* base = nullptr;
  for (const KnownType& known : kKnownTypes)
  {
    if (known.name == iName)
      return TypeOf(known, iName);
    if (IsUnknownVariant(iName, known.name))
      base = &known;
  }
  ElementType type;
  if (base != nullptr)
    type = TypeOf(*base, iName);
  type.name = iName;
  type.family = Family::Unknown;
  return type;
}

} // namespace voxbench::inp
