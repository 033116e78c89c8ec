// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"

inline constexpr IID IID_VOXISamAnalysisEntity = VOXGuidOfName("VOXISamAnalysisEntity");

//! An analysis entity: a load, a restraint, a mass, a property, a group, a sensor. Implemented by: the host.
//! The reserved operations are the host's; they keep the others in their places and are never called by the adaptors.
class VOX_HOST_API VOXISamAnalysisEntity : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamAnalysisEntity)

  virtual HRESULT ReservedEntity1() = 0;
  virtual HRESULT ReservedEntity2() = 0;
  virtual HRESULT ReservedEntity3() = 0;
  virtual HRESULT ReservedEntity4() = 0;
  virtual HRESULT ReservedEntity5() = 0;
  virtual HRESULT ReservedEntity6() = 0;
  virtual HRESULT ReservedEntity7() = 0;
  virtual HRESULT ReservedEntity8() = 0;

  //! 9. The analysis set that holds the entity. @param oSet untouched on failure; on S_OK the handle holds its own
  //! reference. @return S_OK; E_FAIL when it stands in no set.
  virtual HRESULT GetAnalysisSet(VOXBaseUnknown_var& oSet) const = 0;

  virtual HRESULT ReservedEntity10() = 0;
  virtual HRESULT ReservedEntity11() = 0;
  virtual HRESULT ReservedEntity12() = 0;

  //! 13. Whether the entity is shown under its analysis set alone. @return not 0 if so.
  virtual unsigned char IsShownUnderItsSet() const = 0;

  virtual HRESULT ReservedEntity14() = 0;
  virtual HRESULT ReservedEntity15() = 0;
  virtual HRESULT ReservedEntity16() = 0;

  //! 17. The objects that the entity is shown under. @param oFathers a new list, caller deletes; null when there is none,
  //! and on failure. @return S_OK; E_FAIL.
  virtual HRESULT ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const = 0;

  //! 18. The objects that play a role in the entity. @param oObjects preset by the caller to null; a new list, caller
  //! deletes, whatever the result; null when the entity knows no such role. @param iRole name of the role.
  //! @return S_OK; S_FALSE when the role is known and nothing plays it; a failure.
  virtual HRESULT ListByRole(VOXListValVOXBaseUnknown_var*& oObjects, const VOXUnicodeString& iRole) const = 0;
};

using VOXISamAnalysisEntity_var = VOXHandle<VOXISamAnalysisEntity>;
