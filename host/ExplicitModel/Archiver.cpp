// SPDX-License-Identifier: MIT
#include "ExplicitModel/VOXAnalysisCollectorArchiver.h"

#include "host/ExplicitModel/ArchiverSwitches.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

struct VOXArchiverData
{
  int count;
  int timeStamp;
  unsigned char numberingDependant;
  unsigned char streamable;
  int resets;
};

namespace
{

bool g_newAreStreamable = true;
bool g_newAreNumberingDependant = false;

} // namespace

VOXAnalysisCollectorArchiver::VOXAnalysisCollectorArchiver(const int& iTimeStamp)
    : _Data(new VOXArchiverData{1, iTimeStamp, static_cast<unsigned char>(g_newAreNumberingDependant ? 1 : 0),
                                static_cast<unsigned char>(g_newAreStreamable ? 1 : 0), 0})
{
  voxhost::Ledger::ArchiverBorn();
  if (voxhost::Faults::Enter("VOXAnalysisCollectorArchiver::VOXAnalysisCollectorArchiver"))
    _Data->streamable = 0;
}

VOXAnalysisCollectorArchiver::~VOXAnalysisCollectorArchiver()
{
  delete _Data;
  voxhost::Ledger::ArchiverDied();
}

unsigned char VOXAnalysisCollectorArchiver::IsMatchingTimeStamp(const int& iTimeStamp) const
{
  return _Data->timeStamp == iTimeStamp ? 1 : 0;
}

const unsigned char& VOXAnalysisCollectorArchiver::IsNumberingDependant() const
{
  return _Data->numberingDependant;
}

const unsigned char& VOXAnalysisCollectorArchiver::IsStreamable() const
{
  return _Data->streamable;
}

void VOXAnalysisCollectorArchiver::SetUnStreamable()
{
  _Data->streamable = 0;
}

HRESULT VOXAnalysisCollectorArchiver::ResetStorage()
{
  if (voxhost::Faults::Enter("VOXAnalysisCollectorArchiver::ResetStorage"))
    return E_FAIL;
  ++_Data->resets;
  return S_OK;
}

int VOXAnalysisCollectorArchiver::AddRef() const
{
  return ++_Data->count;
}

int VOXAnalysisCollectorArchiver::Release() const
{
  const int left = --_Data->count;
  if (left == 0)
    delete this;
  return left;
}

const VOXArchiverData& VOXExplicitAccess::DataOf(const VOXAnalysisCollectorArchiver& iArchiver)
{
  return *iArchiver._Data;
}

namespace voxhost
{

void ArchiverSwitches::SetNewAreStreamable(bool iAre)
{
  g_newAreStreamable = iAre;
}

void ArchiverSwitches::SetNewAreNumberingDependant(bool iAre)
{
  g_newAreNumberingDependant = iAre;
}

void ArchiverSwitches::Restore()
{
  g_newAreStreamable = true;
  g_newAreNumberingDependant = false;
}

int ArchiverSwitches::References(const VOXAnalysisCollectorArchiver& iArchiver)
{
  return VOXExplicitAccess::DataOf(iArchiver).count;
}

int ArchiverSwitches::Resets(const VOXAnalysisCollectorArchiver& iArchiver)
{
  return VOXExplicitAccess::DataOf(iArchiver).resets;
}

} // namespace voxhost
