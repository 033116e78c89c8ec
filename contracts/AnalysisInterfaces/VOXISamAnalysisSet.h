// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "FeatureModeler/VOXListValVOXISpecObject_var.h"

inline constexpr IID IID_VOXISamAnalysisSet = VOXGuidOfName("VOXISamAnalysisSet");

//! An analysis set: what holds analysis entities of one sort. Implemented by: the host.
//! - Its members are the features in its attribute "SonsList": one that is added there is found by operations 27 and 28.
//! The reserved operations are the host's; they keep the others in their places and are never called by the adaptors.
class VOX_HOST_API VOXISamAnalysisSet : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamAnalysisSet)

  virtual HRESULT ReservedSet1() = 0;
  virtual HRESULT ReservedSet2() = 0;
  virtual HRESULT ReservedSet3() = 0;
  virtual HRESULT ReservedSet4() = 0;
  virtual HRESULT ReservedSet5() = 0;
  virtual HRESULT ReservedSet6() = 0;
  virtual HRESULT ReservedSet7() = 0;
  virtual HRESULT ReservedSet8() = 0;
  virtual HRESULT ReservedSet9() = 0;
  virtual HRESULT ReservedSet10() = 0;
  virtual HRESULT ReservedSet11() = 0;
  virtual HRESULT ReservedSet12() = 0;
  virtual HRESULT ReservedSet13() = 0;
  virtual HRESULT ReservedSet14() = 0;
  virtual HRESULT ReservedSet15() = 0;
  virtual HRESULT ReservedSet16() = 0;
  virtual HRESULT ReservedSet17() = 0;
  virtual HRESULT ReservedSet18() = 0;
  virtual HRESULT ReservedSet19() = 0;
  virtual HRESULT ReservedSet20() = 0;
  virtual HRESULT ReservedSet21() = 0;
  virtual HRESULT ReservedSet22() = 0;
  virtual HRESULT ReservedSet23() = 0;
  virtual HRESULT ReservedSet24() = 0;
  virtual HRESULT ReservedSet25() = 0;

  //! 26. The objects that the set is shown under. @param oFathers a new list, caller deletes; null when there is none,
  //! and on failure. @return S_OK; E_FAIL.
  virtual HRESULT ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const = 0;

  //! 27. The member of that name. @param iName its name. @param oMember emptied when there is none; on S_OK the handle
  //! holds its own reference.
  //! @param iMode always 0. @return S_OK, with or without a member; E_FAIL.
  virtual HRESULT GetMemberByName(const VOXUnicodeString& iName, VOXISpecObject_var& oMember, int iMode) const = 0;

  //! 28. The members that have an interface, in the set's order. @param iInterfaceName name of the interface.
  //! @param oMembers emptied, then filled.
  //! @param iMode always 0. @return S_OK; E_FAIL.
  virtual HRESULT ListMembers(const char* iInterfaceName, VOXListValVOXISpecObject_var& oMembers, int iMode) const = 0;
};

using VOXISamAnalysisSet_var = VOXHandle<VOXISamAnalysisSet>;
