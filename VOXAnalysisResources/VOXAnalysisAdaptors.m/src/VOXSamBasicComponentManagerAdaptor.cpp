// SPDX-License-Identifier: MIT
#include "VOXSamBasicComponentManagerAdaptor.h"

static_assert(sizeof(VOXSamBasicComponentManagerAdaptor) == sizeof(VOXBaseUnknown),
              "deriving classes are laid out on this size");

VOXSamBasicComponentManagerAdaptor::VOXSamBasicComponentManagerAdaptor() = default;

VOXSamBasicComponentManagerAdaptor::~VOXSamBasicComponentManagerAdaptor() = default;

HRESULT VOXSamBasicComponentManagerAdaptor::GetNbOptionalBC(int& oNb)
{
  oNb = 0;
  return S_OK;
}

HRESULT VOXSamBasicComponentManagerAdaptor::GetOptionalBCList(VOXListValVOXUnicodeString& /*ioNames*/,
                                                              VOXListValVOXUnicodeString& /*ioTypes*/,
                                                              VOXListValVOXBaseUnknown_var& /*ioKinds*/)
{
  return S_OK;
}

SAMHiddenState VOXSamBasicComponentManagerAdaptor::IsBasicComponentHidden(const VOXISamBasicComponent* /*iComponent*/)
{
  return SAMHiddenUndefined;
}

SAMReadOnlyState
VOXSamBasicComponentManagerAdaptor::IsBasicComponentReadOnly(const VOXISamBasicComponent* /*iComponent*/)
{
  return SAMReadOnlyUndefined;
}

bool VOXSamBasicComponentManagerAdaptor::IsBasicComponentRecordable(const VOXISamBasicComponent* /*iComponent*/)
{
  return true;
}
