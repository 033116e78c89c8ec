// SPDX-License-Identifier: MIT
#include "tests/adaptors/CharacWorld.h"

#include "tests/adaptors/PrivateDoor.h"

#include <algorithm>
#include <cstdlib>

using voxhost::Faults;
using voxhost::Ledger;

namespace
{

using Adaptor = VOXECharacCollector;
using Collector = VOXAnalysisCharacCollector;
using Archiver = VOXAnalysisCollectorArchiver;
using Operation = HRESULT (Adaptor::*)();
using Locating = HRESULT (Adaptor::*)(int, const VOXSamCharacVersion&, const VOXString&, int&, int&, int&);
using Count = std::int32_t Adaptor::*;
using Counts = std::int32_t* Adaptor::*;
using CountsOfCounts = std::int32_t** Adaptor::*;
using Archivers = Archiver**** Adaptor::*;
using ModelMember = const VOXAnalysisExplicitModel* Adaptor::*;
using Getting = HRESULT (Collector::*)(const Archiver*&) const;
using Setting = HRESULT (Collector::*)(const Archiver*) const;
using Releasing = int (Archiver::*)() const;

VOX_DOOR(BuildDoor, Operation, &Adaptor::InitCollectorArchiversStorageArea);
VOX_DOOR(ResetDoor, Operation, &Adaptor::ResetCollectorArchiversStorageArea);
VOX_DOOR(NumberingDoor, Operation, &Adaptor::ResetNumberingDependantCollectorArchiversStorageArea);
VOX_DOOR(LocateDoor, Locating, &Adaptor::LocateCollectorArchiver);
VOX_DOOR(TypesDoor, Count, &Adaptor::_NbPhysicalTypes);
VOX_DOOR(SlotsDoor, Counts, &Adaptor::_NbVersionSlots);
VOX_DOOR(PositionsDoor, CountsOfCounts, &Adaptor::_NbPositions);
VOX_DOOR(ArchiversDoor, Archivers, &Adaptor::_Archivers);
VOX_DOOR(ModelDoor, ModelMember, &Adaptor::_ContextModel);
VOX_DOOR(PreviousDoor, ModelMember, &Adaptor::_PreviousContextModel);
VOX_DOOR(GetArchiverDoor, Getting, &Collector::GetArchiver);
VOX_DOOR(SetArchiverDoor, Setting, &Collector::SetArchiver);
VOX_DOOR(ReleaseDoor, Releasing, &Archiver::Release);

HRESULT Answer(int& ioGoodCalls, HRESULT iThen)
{
  if (ioGoodCalls == 0)
    return iThen;
  --ioGoodCalls;
  return S_OK;
}

template <class Member>
std::ptrdiff_t OffsetOf(const Adaptor& iAdaptor, Member iMember)
{
  return reinterpret_cast<const char*>(&(iAdaptor.*iMember)) - reinterpret_cast<const char*>(&iAdaptor);
}

} // namespace

namespace voxtest
{

HRESULT PlainCharac::GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& oReserved)
{
  EXPECT_EQ(oReserved, nullptr);
  if (CallLog::Enter("VOXECharacCollector::GetAvailablePhysicalTypes"))
    return E_FAIL;
  CharacScript& told = Told();
  oNbTypes = told.nbTypes.value_or(static_cast<int>(told.types.size()));
  oTypes = told.types.data();
  return Answer(told.goodTypesCalls, told.typesResult);
}

HRESULT PlainCharac::GetAvailableVersions(int iPhysicalType, int& oNbVersions, const VOXSamCharacVersion*& oVersions)
{
  if (CallLog::Enter("VOXECharacCollector::GetAvailableVersions", iPhysicalType))
    return E_FAIL;
  CharacScript& told = Told();
  if (told.whenAskedForVersions)
    told.whenAskedForVersions();
  const std::vector<VOXSamCharacVersion>& versions = told.versions[iPhysicalType];
  oNbVersions = told.nbVersions.value_or(static_cast<int>(versions.size()));
  oVersions = versions.data();
  return Answer(told.goodVersionsCalls, told.versionsResult);
}

HRESULT PlainCharac::GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                           const VOXString*& oPositions)
{
  if (CallLog::Enter("VOXECharacCollector::GetAvailablePositions", iPhysicalType, iVersion._Occurrence,
                     static_cast<int>(iVersion._Variant)))
    return E_FAIL;
  CharacScript& told = Told();
  if (told.whenAskedForPositions)
    told.whenAskedForPositions();
  const auto special = told.special.find({iPhysicalType, iVersion._Occurrence});
  const std::vector<VOXString>& positions = special == told.special.end() ? told.positions : special->second;
  oNbPositions = told.nbPositions.value_or(static_cast<int>(positions.size()));
  oPositions = positions.data();
  return Answer(told.goodPositionsCalls, told.positionsResult);
}

HRESULT PlainCharac::GetCharacCollector(int, const VOXSamCharacVersion&, const VOXString&,
                                        const VOXAnalysisCharacCollector*&)
{
  CallLog::Enter("VOXECharacCollector::GetCharacCollector");
  return S_OK;
}

HRESULT PlainCharac::GetCharacCollectors(int&, const VOXAnalysisCharacCollector* const*&)
{
  CallLog::Enter("VOXECharacCollector::GetCharacCollectors");
  return S_OK;
}

HRESULT PlainCharac::IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector*, unsigned char&)
{
  CallLog::Enter("VOXECharacCollector::IsCharacCollectorUpToDate");
  return S_OK;
}

HRESULT PlainCharac::GetTitle(int, VOXString&)
{
  CallLog::Enter("VOXECharacCollector::GetTitle");
  return S_OK;
}

HRESULT ScriptedCharac::IsAuthorizedToArchiveCollectors(unsigned char& oAuthorized) const
{
  if (CallLog::Enter("VOXECharacCollector::IsAuthorizedToArchiveCollectors"))
    return E_FAIL;
  oAuthorized = Told().authorized;
  return Told().authorizedResult;
}

VOXUnicodeString ScriptedAlias::GetAlias() const
{
  return CallLog::Enter("VOXIAlias::GetAlias") ? VOXUnicodeString() : VOXUnicodeString(Told().alias.c_str());
}

HRESULT ScriptedAlias::SetAlias(const VOXUnicodeString&)
{
  return CallLog::Enter("VOXIAlias::SetAlias") ? E_FAIL : S_OK;
}

HRESULT CharacArea::Build(VOXECharacCollector& ioAdaptor)
{
  return (ioAdaptor.*Open(BuildDoor()))();
}

HRESULT CharacArea::Reset(VOXECharacCollector& ioAdaptor)
{
  return (ioAdaptor.*Open(ResetDoor()))();
}

HRESULT CharacArea::ResetNumberingDependant(VOXECharacCollector& ioAdaptor)
{
  return (ioAdaptor.*Open(NumberingDoor()))();
}

CharacArea::Place CharacArea::Locate(VOXECharacCollector& ioAdaptor, int iType, const VOXSamCharacVersion& iVersion,
                                     const char* iPosition)
{
  Place place;
  place.result = (ioAdaptor.*Open(LocateDoor()))(iType, iVersion, iPosition, place.type, place.version, place.position);
  return place;
}

bool CharacArea::IsBuilt(const VOXECharacCollector& iAdaptor)
{
  return iAdaptor.*Open(ArchiversDoor()) != nullptr;
}

bool CharacArea::IsBlank(const VOXECharacCollector& iAdaptor)
{
  return !IsBuilt(iAdaptor) && Types(iAdaptor) == 0 && iAdaptor.*Open(SlotsDoor()) == nullptr &&
         iAdaptor.*Open(PositionsDoor()) == nullptr;
}

int CharacArea::Types(const VOXECharacCollector& iAdaptor)
{
  return iAdaptor.*Open(TypesDoor());
}

int CharacArea::Slots(const VOXECharacCollector& iAdaptor, int iType)
{
  return (iAdaptor.*Open(SlotsDoor()))[iType];
}

int CharacArea::Positions(const VOXECharacCollector& iAdaptor, int iType, int iSlot)
{
  return (iAdaptor.*Open(PositionsDoor()))[iType][iSlot];
}

VOXAnalysisCollectorArchiver* CharacArea::Entry(const VOXECharacCollector& iAdaptor, int iType, int iSlot,
                                                int iPosition)
{
  return (iAdaptor.*Open(ArchiversDoor()))[iType][iSlot][iPosition];
}

void CharacArea::Lose(VOXECharacCollector& ioAdaptor, Array iArray)
{
  std::int32_t*& slots = ioAdaptor.*Open(SlotsDoor());
  std::int32_t**& positions = ioAdaptor.*Open(PositionsDoor());
  Archiver**** const archivers = ioAdaptor.*Open(ArchiversDoor());
  const auto lose = [](auto*& ioLost)
  {
    std::free(ioLost);
    ioLost = nullptr;
  };
  const auto loseArchivers = [&](int iType)
  {
    for (int s = 0; s < slots[iType]; ++s)
      lose(archivers[iType][s]);
  };
  const int nbTypes = Types(ioAdaptor);
  switch (iArray)
  {
  case Array::VersionSlots: // whoever counts them no more finds no archivers behind them
    for (int t = 0; t < nbTypes; ++t)
      loseArchivers(t);
    return lose(slots);
  case Array::Positions:
    for (int t = 0; t < nbTypes; ++t)
      lose(positions[t]);
    return lose(positions);
  case Array::PositionsOfTheFirstType:
    return lose(positions[0]);
  case Array::ArchiversOfTheFirstType:
    loseArchivers(0);
    return lose(archivers[0]);
  }
}

std::vector<std::ptrdiff_t> CharacArea::Offsets(const VOXECharacCollector& iAdaptor)
{
  return {OffsetOf(iAdaptor, Open(TypesDoor())),     OffsetOf(iAdaptor, Open(SlotsDoor())),
          OffsetOf(iAdaptor, Open(PositionsDoor())), OffsetOf(iAdaptor, Open(ArchiversDoor())),
          OffsetOf(iAdaptor, Open(ModelDoor())),     OffsetOf(iAdaptor, Open(PreviousDoor()))};
}

const VOXAnalysisExplicitModel* CharacArea::ContextModel(const VOXECharacCollector& iAdaptor)
{
  return iAdaptor.*Open(ModelDoor());
}

const VOXAnalysisExplicitModel* CharacArea::PreviousContextModel(const VOXECharacCollector& iAdaptor)
{
  return iAdaptor.*Open(PreviousDoor());
}

const VOXAnalysisCollectorArchiver* CharacArea::ArchiverOf(const VOXAnalysisCharacCollector& iCollector)
{
  const VOXAnalysisCollectorArchiver* archiver = nullptr;
  EXPECT_EQ((iCollector.*Open(GetArchiverDoor()))(archiver), S_OK);
  return archiver;
}

void CharacArea::SetArchiverOf(const VOXAnalysisCharacCollector& iCollector,
                               const VOXAnalysisCollectorArchiver* iArchiver)
{
  EXPECT_EQ((iCollector.*Open(SetArchiverDoor()))(iArchiver), S_OK);
}

void CharacArea::Release(const VOXAnalysisCollectorArchiver& iArchiver)
{
  (iArchiver.*Open(ReleaseDoor()))();
}

CharacWorld::CharacWorld()
    : _Entity(_Model.Create(NULL_exp, "SOLUTION", "solution")),
      _Feature(_Bench.Component<CharacTie<ScriptedCharac>, ScriptedExplicit, ScriptedSpecObject>())
{
  Explicit().model = &_Model;
  Explicit().parents = {_Entity};
  _Collector = VOXICharacCollector_var(_Feature);
}

CharacWorld::~CharacWorld()
{
  for (const VOXAnalysisCollectorArchiver* const archiver : _Made)
    CharacArea::Release(*archiver);
}

VOXAnalysisCharacCollector& CharacWorld::NewCollector(int iType, const VOXSamCharacVersion& iVersion,
                                                      const char* iPosition, const std::vector<unsigned char>& iFlags,
                                                      const char* iName, int iFrame)
{
  auto* const collector = new VOXAnalysisCharacCollector;
  EXPECT_EQ(collector->SetDefinition(iType, iName, iVersion, iPosition, 1, iFrame), S_OK);
  EXPECT_EQ(collector->SetContext(_Entity, 1), S_OK);
  EXPECT_EQ(collector->SetNbEntities(static_cast<int>(iFlags.size())), S_OK);
  if (!iFlags.empty())
  {
    EXPECT_EQ(collector->SetValues(std::vector<double>(iFlags.size(), 1.).data(), iFlags.data()), S_OK);
  }
  EXPECT_EQ(collector->SetAttachedToModel(1, nullptr, 0), S_OK);
  return *collector;
}

HRESULT CharacWorld::Assign(const VOXAnalysisCharacCollector& iCollector, CollectorArchiveFlag iFlag)
{
  const std::int64_t archivers = Ledger::Read().archivers;
  const HRESULT result = Adaptor().AssignArchiverToCollector(&iCollector, iFlag);
  Faults::Disarm();
  const VOXAnalysisCollectorArchiver* const archiver = CharacArea::ArchiverOf(iCollector);
  const bool isKnown = std::find(_Made.begin(), _Made.end(), archiver) != _Made.end();
  if (Ledger::Read().archivers > archivers && archiver != nullptr && !isKnown)
    _Made.push_back(archiver);
  return result;
}

VOXAnalysisCollectorArchiver& CharacWorld::NewArchiver(int iTimeStamp)
{
  CharacWorld maker;
  maker.Spec().timeStamp = iTimeStamp;
  const VOXAnalysisCharacCollector& collector = maker.NewCollector();
  EXPECT_EQ(maker.Assign(collector), S_OK);
  const VOXAnalysisCollectorArchiver* const archiver = maker._Made.back();
  maker._Made.clear();
  _Made.push_back(archiver);
  return *const_cast<VOXAnalysisCollectorArchiver*>(archiver);
}

VOXAnalysisCollectorArchiver* CharacWorld::Fetch(int iType, const VOXSamCharacVersion& iVersion, const char* iPosition)
{
  VOXAnalysisCollectorArchiver* archiver = Poison<VOXAnalysisCollectorArchiver>();
  const HRESULT result = Adaptor().GetCollectorArchiver(iType, iVersion, iPosition, archiver);
  return SUCCEEDED(result) ? archiver : nullptr;
}

CharacTest::CharacTest()
{
  ResetErrors();
  Ledger::TurnOn();
  before = Ledger::Read();
  world.emplace();
}

CharacTest::~CharacTest()
{
  Faults::Disarm();
  EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
  world.reset();
  EXPECT_EQ((Ledger::Read() - before - kept).Describe(), "balanced");
  Ledger::TurnOff();
  voxhost::ArchiverSwitches::Restore();
  ResetErrors();
}

} // namespace voxtest
