// SPDX-License-Identifier: MIT
#include "voxbench/check/Finding.h"

namespace voxbench
{

const std::vector<CheckRule>& CheckRules()
{
  static const std::vector<CheckRule> rules = {
      {"parent-not-allowed", "A set stands under a parent that may hold sets of its kind.",
       "Move the set under a parent that may hold it."},
      {"set-not-allowed", "An entity stands in a set that may hold entities of its kind.",
       "Move the entity into a set that may hold it."},
      {"set-of-wrong-type", "An entity stands in a set of the type that its own type belongs in.",
       "Move the entity into a set of that type."},
      {"sensor-elsewhere", "An entity that is aggregated in its set stands in a set of sensors.",
       "Move the sensor into a set of sensors."},
      {"subscription-needless", "An entity directly in a mesh set is not subscribed to mesh pre-processing.",
       "Clean the entity's subscription."},
      {"name-missing", "A set or surface that a card names is defined.",
       "Define the set or surface, or mend the name on the card."},
      {"target-none", "A load, a restraint, a mass or a property applies to something.",
       "Name nodes, elements, a set or a surface, or remove the card."},
      {"group-empty", "A group that a load, a restraint, a mass, a property or a connection uses has members.",
       "Add members to the group, or let the card use another one."},
      {"group-unused", "A group is used by something.", "Remove the group, if nobody outside of the file needs it."},
      {"element-without-property", "An element has a property.", "Add the elements to the set of a section card."},
      {"element-with-two-properties", "An element has one property only.",
       "Take the elements out of one of the sets: a solver uses the last section, or stops."},
      {"node-unused", "A node is used by an element, a constraint or a connection.",
       "Remove the nodes, or connect them: a solver may find them free to move."},
      {"material-missing", "A property of solids, shells, membranes or beams has a material.",
       "Define the material that the section card names."},
      {"material-unused", "A material is used by a property.", "Remove the material, or name it on a section card."},
      {"connection-incomplete", "Each side of a connection is designed and stands on something.",
       "Name both surfaces, or the reference node and what follows it."},
  };
  return rules;
}

} // namespace voxbench
