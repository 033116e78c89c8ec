// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXString.h"
#include "ExplicitModel/VOXAnalysisExplicitModel.h"

class VOXBaseUnknown;

namespace voxframe
{

//! What the rules data say about a member under a holder: an entity in a set, a set under its parent.
enum class Placement
{
  NeverPlaced,       //!< one of the two has no physical type of its own: refused before the children are asked for
  ImportedPair,      //!< an imported member under a holder of its category: allowed before the children are asked for
  AuthorizedChild,   //!< the member is among the holder's authorised children
  NoAuthorizedChild, //!< it is not, or they could not be read
};

//! The names of the physical types of both sides, and the model that the holder belongs to.
struct PlacementSides
{
  VOXString memberType;
  VOXString holderType;
  VOXAnalysisExplicitModel* pModel = nullptr; // borrowed
};

//! Asks both faces themselves for VOXISamExplicit, the member first. @return false when one of them has none.
bool ReadPlacementSides(const VOXBaseUnknown* iMember, const VOXBaseUnknown* iHolder, PlacementSides& oSides);

//! Looks both physical types up in the rules.
Placement PlacementOf(const PlacementSides& iSides, const VOXAnalysisExplicitRulesData& iRules);

} // namespace voxframe
