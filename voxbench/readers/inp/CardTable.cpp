// SPDX-License-Identifier: MIT
#include "Handlers.h"
#include "InpReader.h"

#include <string_view>
#include <unordered_map>
#include <utility>

namespace voxbench::inp
{

namespace
{
struct Rule
{
  Handler handler;
  std::initializer_list<std::string_view> keywords;
};

// Every keyword of the dialect, without star.
const Rule kRules[] = {
    {ReadNodes, {"NODE"}},
    {ReadElements, {"ELEMENT"}},
    {ReadUserElement, {"USER ELEMENT"}},
    {ReadNodeSet, {"NSET"}},
    {ReadElementSet, {"ELSET"}},
    {ReadSurface, {"SURFACE"}},
    {ReadMaterial, {"MATERIAL", "CHANGE MATERIAL"}},
    {ReadInteraction, {"SURFACE INTERACTION"}},
    {ReadInteractionChange, {"CHANGE FRICTION", "CHANGE SURFACE BEHAVIOR"}},
    {ReadProperty,
     {"ELASTIC",
      "DENSITY",
      "EXPANSION",
      "PLASTIC",
      "CREEP",
      "CYCLIC HARDENING",
      "HYPERELASTIC",
      "HYPERFOAM",
      "CONDUCTIVITY",
      "SPECIFIC HEAT",
      "SPECIFIC GAS CONSTANT",
      "FLUID CONSTANTS",
      "DEPVAR",
      "USER MATERIAL",
      "DAMPING",
      "DEFORMATION PLASTICITY",
      "ELECTRICAL CONDUCTIVITY",
      "MAGNETIC PERMEABILITY",
      "MOHR COULOMB",
      "MOHR COULOMB HARDENING",
      "CHANGE PLASTIC",
      "POROSITY",
      "SURFACE BEHAVIOR",
      "FRICTION",
      "GAP CONDUCTANCE",
      "GAP HEAT GENERATION",
      "CONTACT DAMPING"}},
    {ReadSection,
     {"SOLID SECTION", "SHELL SECTION", "MEMBRANE SECTION", "BEAM SECTION", "BEAM GENERAL SECTION", "FLUID SECTION",
      "SPRING", "DASHPOT", "MASS", "GAP", "USER SECTION"}},
    {ReadAmplitude, {"AMPLITUDE"}},
    {ReadOrientation, {"ORIENTATION"}},
    {ReadTransform, {"TRANSFORM"}},
    {ReadLoad, {"CLOAD", "DLOAD", "DSLOAD", "CFLUX", "DFLUX", "FILM", "RADIATE", "TEMPERATURE", "MASS FLOW"}},
    {ReadRestraint, {"BOUNDARY", "BOUNDARYF"}},
    {ReadInitialConditions, {"INITIAL CONDITIONS"}},
    {ReadNodalThickness, {"NODAL THICKNESS"}},
    {ReadEquation, {"EQUATION", "EQUATIONF"}},
    {ReadMultiPointConstraint, {"MPC", "NETWORK MPC"}},
    {ReadConnection,
     {"TIE", "CONTACT PAIR", "COUPLING", "DISTRIBUTING COUPLING", "RIGID BODY", "PRE-TENSION SECTION",
      "CYCLIC SYMMETRY MODEL", "CLEARANCE"}},
    {ReadCouplingBehavior, {"KINEMATIC", "DISTRIBUTING"}},
    {ReadHeading, {"HEADING"}},
    {ReadStep, {"STEP"}},
    {ReadEndStep, {"END STEP"}},
    {ReadProcedure,
     {"STATIC",
      "FREQUENCY",
      "COMPLEX FREQUENCY",
      "BUCKLE",
      "DYNAMIC",
      "MODAL DYNAMIC",
      "STEADY STATE DYNAMICS",
      "HEAT TRANSFER",
      "COUPLED TEMPERATURE-DISPLACEMENT",
      "UNCOUPLED TEMPERATURE-DISPLACEMENT",
      "VISCO",
      "CFD",
      "ELECTROMAGNETICS",
      "SENSITIVITY",
      "SUBSTRUCTURE GENERATE",
      "GREEN",
      "NO ANALYSIS",
      "CRACK PROPAGATION",
      "FEASIBLE DIRECTION",
      "ROBUST DESIGN",
      "REFINE MESH"}},
    {ReadOutputRequest,
     {"NODE PRINT", "EL PRINT", "FACE PRINT", "SECTION PRINT", "CONTACT PRINT", "NODE FILE", "EL FILE", "CONTACT FILE",
      "NODE OUTPUT", "ELEMENT OUTPUT", "CONTACT OUTPUT"}},
    {ReadOtherCard,
     {"BASE MOTION",
      "CHANGE CONTACT TYPE",
      "CHANGE SOLID SECTION",
      "CONSTRAINT",
      "CONTROLS",
      "CORRELATION LENGTH",
      "DESIGN RESPONSE",
      "DESIGN VARIABLES",
      "DISTRIBUTION",
      "FILTER",
      "GEOMETRIC CONSTRAINT",
      "GEOMETRIC TOLERANCES",
      "HCF",
      "INITIAL STRAIN INCREASE",
      "MATRIX ASSEMBLE",
      "MODAL DAMPING",
      "MODEL CHANGE",
      "NORMAL",
      "OBJECTIVE",
      "OUTPUT",
      "PHYSICAL CONSTANTS",
      "RANDOM FIELD",
      "RESTART",
      "RETAINED NODAL DOFS",
      "SELECT CYCLIC SYMMETRY MODES",
      "SUBMODEL",
      "SUBSTRUCTURE MATRIX OUTPUT",
      "TIME POINTS",
      "TRANSFORMF",
      "VALUES AT INFINITY",
      "VIEWFACTOR"}},
    {RefuseAssembly, {"PART", "ASSEMBLY", "INSTANCE"}},
};

struct Entry
{
  Handler handler;
  std::string_view name; //!< with its blanks
};

//! By keywords without blanks.
const std::unordered_map<std::string, Entry>& Table()
{
  static const auto table = []
  {
    std::unordered_map<std::string, Entry> made;
    for (const Rule& rule : kRules)
      for (const std::string_view name : rule.keywords)
      {
        std::string keyword(name);
        std::erase(keyword, ' ');
        made.emplace(std::move(keyword), Entry{rule.handler, name});
      }
    return made;
  }();
  return table;
}
} // namespace

Handler FindHandler(const std::string& iKeyword)
{
  const auto found = Table().find(iKeyword);
  return found == Table().end() ? nullptr : found->second.handler;
}

std::string CanonicalKeyword(const std::string& iKeyword)
{
  if (FindHandler(iKeyword) != nullptr)
    return iKeyword;
  if (iKeyword == "MEMBRANE")
    return "MEMBRANESECTION";
  if (iKeyword.size() > 1 && iKeyword.back() == 'S' && FindHandler(iKeyword.substr(0, iKeyword.size() - 1)) != nullptr)
    return iKeyword.substr(0, iKeyword.size() - 1);
  return iKeyword;
}

} // namespace voxbench::inp

namespace voxbench
{

std::string ShownKeyword(const std::string& iKeyword)
{
  const auto found = inp::Table().find(iKeyword);
  return found == inp::Table().end() ? iKeyword : std::string(found->second.name);
}

} // namespace voxbench
