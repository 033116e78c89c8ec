// SPDX-License-Identifier: MIT
#include "Handlers.h"

#include <string_view>
#include <unordered_map>

namespace voxbench::inp
{

namespace
{
struct Rule
{
  Handler handler;
  std::initializer_list<std::string_view> keywords;
};

// Every keyword of the dialect, without star and blanks.
const Rule kRules[] = {
    {ReadNodes, {"NODE"}},
    {ReadElements, {"ELEMENT"}},
    {ReadUserElement, {"USERELEMENT"}},
    {ReadNodeSet, {"NSET"}},
    {ReadElementSet, {"ELSET"}},
    {ReadSurface, {"SURFACE"}},
    {ReadMaterial, {"MATERIAL", "CHANGEMATERIAL"}},
    {ReadInteraction, {"SURFACEINTERACTION"}},
    {ReadInteractionChange, {"CHANGEFRICTION", "CHANGESURFACEBEHAVIOR"}},
    {ReadProperty,
     {"ELASTIC",
      "DENSITY",
      "EXPANSION",
      "PLASTIC",
      "CREEP",
      "CYCLICHARDENING",
      "HYPERELASTIC",
      "HYPERFOAM",
      "CONDUCTIVITY",
      "SPECIFICHEAT",
      "SPECIFICGASCONSTANT",
      "FLUIDCONSTANTS",
      "DEPVAR",
      "USERMATERIAL",
      "DAMPING",
      "DEFORMATIONPLASTICITY",
      "ELECTRICALCONDUCTIVITY",
      "MAGNETICPERMEABILITY",
      "MOHRCOULOMB",
      "MOHRCOULOMBHARDENING",
      "CHANGEPLASTIC",
      "POROSITY",
      "SURFACEBEHAVIOR",
      "FRICTION",
      "GAPCONDUCTANCE",
      "GAPHEATGENERATION",
      "CONTACTDAMPING"}},
    {ReadSection,
     {"SOLIDSECTION", "SHELLSECTION", "MEMBRANESECTION", "BEAMSECTION", "BEAMGENERALSECTION", "FLUIDSECTION", "SPRING",
      "DASHPOT", "MASS", "GAP", "USERSECTION"}},
    {ReadAmplitude, {"AMPLITUDE"}},
    {ReadOrientation, {"ORIENTATION"}},
    {ReadTransform, {"TRANSFORM"}},
    {ReadLoad, {"CLOAD", "DLOAD", "DSLOAD", "CFLUX", "DFLUX", "FILM", "RADIATE", "TEMPERATURE", "MASSFLOW"}},
    {ReadRestraint, {"BOUNDARY", "BOUNDARYF"}},
    {ReadInitialConditions, {"INITIALCONDITIONS"}},
    {ReadNodalThickness, {"NODALTHICKNESS"}},
    {ReadEquation, {"EQUATION", "EQUATIONF"}},
    {ReadMultiPointConstraint, {"MPC", "NETWORKMPC"}},
    {ReadConnection,
     {"TIE", "CONTACTPAIR", "COUPLING", "DISTRIBUTINGCOUPLING", "RIGIDBODY", "PRE-TENSIONSECTION",
      "CYCLICSYMMETRYMODEL", "CLEARANCE"}},
    {ReadCouplingBehavior, {"KINEMATIC", "DISTRIBUTING"}},
    {ReadHeading, {"HEADING"}},
    {ReadStep, {"STEP"}},
    {ReadEndStep, {"ENDSTEP"}},
    {ReadProcedure,
     {"STATIC",
      "FREQUENCY",
      "COMPLEXFREQUENCY",
      "BUCKLE",
      "DYNAMIC",
      "MODALDYNAMIC",
      "STEADYSTATEDYNAMICS",
      "HEATTRANSFER",
      "COUPLEDTEMPERATURE-DISPLACEMENT",
      "UNCOUPLEDTEMPERATURE-DISPLACEMENT",
      "VISCO",
      "CFD",
      "ELECTROMAGNETICS",
      "SENSITIVITY",
      "SUBSTRUCTUREGENERATE",
      "GREEN",
      "NOANALYSIS",
      "CRACKPROPAGATION",
      "FEASIBLEDIRECTION",
      "ROBUSTDESIGN",
      "REFINEMESH"}},
    {ReadOutputRequest,
     {"NODEPRINT", "ELPRINT", "FACEPRINT", "SECTIONPRINT", "CONTACTPRINT", "NODEFILE", "ELFILE", "CONTACTFILE",
      "NODEOUTPUT", "ELEMENTOUTPUT", "CONTACTOUTPUT"}},
    {ReadOtherCard,
     {"BASEMOTION",
      "CHANGECONTACTTYPE",
      "CHANGESOLIDSECTION",
      "CONSTRAINT",
      "CONTROLS",
      "CORRELATIONLENGTH",
      "DESIGNRESPONSE",
      "DESIGNVARIABLES",
      "DISTRIBUTION",
      "FILTER",
      "GEOMETRICCONSTRAINT",
      "GEOMETRICTOLERANCES",
      "HCF",
      "INITIALSTRAININCREASE",
      "MATRIXASSEMBLE",
      "MODALDAMPING",
      "MODELCHANGE",
      "NORMAL",
      "OBJECTIVE",
      "OUTPUT",
      "PHYSICALCONSTANTS",
      "RANDOMFIELD",
      "RESTART",
      "RETAINEDNODALDOFS",
      "SELECTCYCLICSYMMETRYMODES",
      "SUBMODEL",
      "SUBSTRUCTUREMATRIXOUTPUT",
      "TIMEPOINTS",
      "TRANSFORMF",
      "VALUESATINFINITY",
      "VIEWFACTOR"}},
    {RefuseAssembly, {"PART", "ASSEMBLY", "INSTANCE"}},
};

const std::unordered_map<std::string_view, Handler>& Table()
{
  static const auto table = []
  {
    std::unordered_map<std::string_view, Handler> made;
    for (const Rule& rule : kRules)
      for (const std::string_view keyword : rule.keywords)
        made.emplace(keyword, rule.handler);
    return made;
  }();
  return table;
}
} // namespace

Handler FindHandler(const std::string& iKeyword)
{
  const auto found = Table().find(iKeyword);
  return found == Table().end() ? nullptr : found->second;
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
