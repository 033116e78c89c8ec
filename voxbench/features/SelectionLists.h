// SPDX-License-Identifier: MIT
#pragma once
#include "VOXESamEnumManager.h"

#include <array>
#include <span>

namespace voxbench
{

//! One entry of a selection list, and the basic components that it needs: types, which are their names too.
struct SelectionEntry
{
  const char* name;
  std::array<const char*, 3> components; //!< null behind the last
};

//! What a section is, and what a restraint does to its degrees of freedom. Entries count from 1.
std::span<const SelectionEntry> SectionKinds();
std::span<const SelectionEntry> RestraintKinds();

//! Index of an entry, 0 when there is none of that name.
int IndexOfEntry(std::span<const SelectionEntry> iEntries, const char* iName);

//! Selection list of a component whose entries need components of their own.
class KindManager : public VOXESamEnumManager
{
public:
  HRESULT GetResult(const VOXUnicodeString& iValue, VOXListValVOXUnicodeString& oFeatureType,
                    VOXListValVOXUnicodeString& oSecond, VOXListValVOXBaseUnknown_var& oListOfVOXICkeType) override;

protected:
  explicit KindManager(std::span<const SelectionEntry> iEntries) : _Entries(iEntries) {}

private:
  std::span<const SelectionEntry> _Entries;
};

class SectionKindManager final : public KindManager
{
public:
  SectionKindManager() : KindManager(SectionKinds()) {}
};

class RestraintKindManager final : public KindManager
{
public:
  RestraintKindManager() : KindManager(RestraintKinds()) {}
};

} // namespace voxbench
