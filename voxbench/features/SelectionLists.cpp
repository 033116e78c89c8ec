// SPDX-License-Identifier: MIT
#include "voxbench/features/SelectionLists.h"
#include "voxbench/features/TypeNames.h"

namespace voxbench
{

std::span<const SelectionEntry> SectionKinds()
{
  static constexpr SelectionEntry kEntries[] = {{"Solid", {}},
                                                {"Shell", {kShellThicknessType, kShellOffsetType}},
                                                {"Composite shell", {kShellThicknessType, kShellOffsetType}},
                                                {"Membrane", {kShellThicknessType}},
                                                {"Beam", {kBeamWidthType, kBeamHeightType}},
                                                {"Spring", {kSpringStiffnessType}},
                                                {"Dashpot", {kDashpotCoefficientType}},
                                                {"Gap", {kGapClearanceType}},
                                                {"Fluid", {}},
                                                {"User", {}}};
  return kEntries;
}

std::span<const SelectionEntry> RestraintKinds()
{
  static constexpr SelectionEntry kEntries[] = {{"Fixed", {}},
                                                {"Prescribed", {kPrescribedValueType}},
                                                {"Modulated", {kPrescribedValueType, kModulationFactorType}},
                                                {"Submodel", {}}};
  return kEntries;
}

int IndexOfEntry(std::span<const SelectionEntry> iEntries, const char* iName)
{
  const VOXUnicodeString name(iName);
  for (std::size_t place = 0; place < iEntries.size(); ++place)
    if (name == iEntries[place].name)
      return static_cast<int>(place) + 1;
  return 0;
}

HRESULT KindManager::GetResult(const VOXUnicodeString& iValue, VOXListValVOXUnicodeString& oFeatureType,
                               VOXListValVOXUnicodeString& oSecond, VOXListValVOXBaseUnknown_var& oListOfVOXICkeType)
{
  for (const SelectionEntry& entry : _Entries)
  {
    if (!(iValue == entry.name))
      continue;
    for (const char* const component : entry.components)
    {
      if (component == nullptr)
        break;
      oFeatureType.Append(component);
      oSecond.Append(VOXUnicodeString());
      oListOfVOXICkeType.Append(VOXBaseUnknown_var());
    }
  }
  return S_OK;
}

} // namespace voxbench
