// SPDX-License-Identifier: MIT
#include "voxbench/build/ResultNames.h"

#include <algorithm>
#include <cctype>

namespace voxbench
{
namespace
{

struct KnownQuantity
{
  std::string_view name;
  std::string_view label; //!< in a deck; "" for none
  std::string_view title;
};

constexpr KnownQuantity kKnown[] = {
    {"DISP", "U", "displacements"},
    {"PDISP", "PU", "displacements, amplitude and phase"},
    {"MDISP", "MAXU", "displacements, worst of all sectors"},
    {"VELO", "V", "velocities"},
    {"FORC", "RF", "external and reaction forces"},
    {"STRESS", "S", "stresses"},
    {"PSTRESS", "PHS", "stresses, amplitude and phase"},
    {"MSTRESS", "MAXS", "stresses, worst of all sectors"},
    {"TOSTRAIN", "E", "total strains"},
    {"MESTRAIN", "ME", "mechanical strains"},
    {"MSTRAIN", "MAXE", "strains, worst of all sectors"},
    {"PE", "PEEQ", "equivalent plastic strains"},
    {"ENER", "ENER", "energy densities"},
    {"SDV", "SDV", "internal variables"},
    {"ERROR", "ERR", "error estimates of the stresses"},
    {"HERROR", "HER", "error estimates of the heat fluxes"},
    {"ZZSTR", "ZZS", "improved stresses"},
    {"NDTEMP", "NT", "temperatures"},
    {"PNDTEMP", "PNT", "temperatures, amplitude and phase"},
    {"FLUX", "HFL", "heat fluxes"},
    {"RFL", "RFL", "external concentrated heat sources"},
    {"CONTACT", "CDIS", "contact openings and stresses"},
    {"CELS", "CELS", "contact energies"},
    {"POT", "POT", "electric potentials"},
    {"SEN", "SEN", "sensitivities"},
};

} // namespace

std::string TitleOf(std::string_view iName)
{
  const auto* const known = std::find_if(std::begin(kKnown), std::end(kKnown),
                                         [iName](const KnownQuantity& iKnown) { return iKnown.name == iName; });
  return std::string(known == std::end(kKnown) ? iName : known->title);
}

std::string QuantityMeant(std::string iText)
{
  std::transform(iText.begin(), iText.end(), iText.begin(),
                 [](unsigned char iLetter) { return static_cast<char>(std::toupper(iLetter)); });
  const auto* const known = std::find_if(std::begin(kKnown), std::end(kKnown),
                                         [&iText](const KnownQuantity& iKnown) { return iKnown.label == iText; });
  return known == std::end(kKnown) ? iText : std::string(known->name);
}

std::vector<std::string> KnownQuantities()
{
  std::vector<std::string> names;
  for (const KnownQuantity& known : kKnown)
    names.emplace_back(known.name);
  return names;
}

} // namespace voxbench
