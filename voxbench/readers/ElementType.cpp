// SPDX-License-Identifier: MIT
#include "ElementType.h"

namespace voxbench
{

bool IsPlane(ElementFamily iFamily)
{
  return iFamily == ElementFamily::PlaneStress || iFamily == ElementFamily::PlaneStrain ||
         iFamily == ElementFamily::Axisymmetric;
}

bool IsShellLike(ElementFamily iFamily)
{
  return iFamily == ElementFamily::Shell || iFamily == ElementFamily::Membrane;
}

const char* NameOf(ElementFamily iFamily)
{
  switch (iFamily)
  {
  case ElementFamily::Solid:
    return "solid";
  case ElementFamily::Shell:
    return "shell";
  case ElementFamily::Membrane:
    return "membrane";
  case ElementFamily::PlaneStress:
    return "plane stress";
  case ElementFamily::PlaneStrain:
    return "plane strain";
  case ElementFamily::Axisymmetric:
    return "axisymmetric";
  case ElementFamily::Beam:
    return "beam";
  case ElementFamily::Truss:
    return "truss";
  case ElementFamily::Spring:
    return "spring";
  case ElementFamily::Dashpot:
    return "dashpot";
  case ElementFamily::Mass:
    return "mass";
  case ElementFamily::Gap:
    return "gap";
  case ElementFamily::Contact:
    return "contact";
  case ElementFamily::DistributingCoupling:
    return "distributing coupling";
  case ElementFamily::Connector:
    return "connector";
  case ElementFamily::FluidNetwork:
    return "fluid network";
  case ElementFamily::FluidSolid:
    return "fluid";
  case ElementFamily::User:
    return "user";
  case ElementFamily::Unknown:
    break;
  }
  return "unknown";
}

} // namespace voxbench
