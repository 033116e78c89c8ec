// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXICharacCollector.h"
#include "ObjectModeler/VOXIAlias.h"
#include "VOXECharacCollector.h"
#include "host/ExplicitModel/ArchiverSwitches.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"
#include "tests/adaptors/Reported.h"
#include "tests/support/Bench.h"
#include "tests/support/ScriptedInterfaces.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace voxtest
{

inline VOXSamCharacVersion Version(int iOccurrence, unsigned char iVariant = 0, int iKindCode = 0)
{
  VOXSamCharacVersion version;
  version._KindCode = iKindCode;
  version._Occurrence = iOccurrence;
  version._Variant = iVariant;
  return version;
}

//! What the feature type under a charac collector answers. A result counts after so many good calls; the count and the
//! array are given whatever it is.
struct CharacScript
{
  std::vector<int> types{11, 22};
  std::optional<int> nbTypes; //!< a count other than that of the types
  HRESULT typesResult = S_OK;
  int goodTypesCalls = 0;

  std::map<int, std::vector<VOXSamCharacVersion>> versions{{11, {Version(1), Version(2)}}, {22, {Version(3)}}};
  std::optional<int> nbVersions;
  HRESULT versionsResult = S_OK;
  int goodVersionsCalls = 0;
  std::function<void()> whenAskedForVersions; //!< before the answer

  std::vector<VOXString> positions{"NODE", "CENTER"};            //!< of every version but those below
  std::map<std::pair<int, int>, std::vector<VOXString>> special; //!< by type and occurrence
  std::optional<int> nbPositions;
  HRESULT positionsResult = S_OK;
  int goodPositionsCalls = 0;
  std::function<void()> whenAskedForPositions;

  unsigned char authorized = 1;
  HRESULT authorizedResult = S_OK;
};

//! A feature type that overrides nothing that the adaptor has a body for.
class PlainCharac : public Scripted<VOXECharacCollector, CharacScript>
{
public:
  using VOXECharacCollector::AssignArchiverToCollector;
  using VOXECharacCollector::CollectorIsForAllEntities;
  using VOXECharacCollector::GetActivity;
  using VOXECharacCollector::GetCollectorArchiver;
  using VOXECharacCollector::IsAuthorizedToArchiveCollectors;
  using VOXECharacCollector::SetCollectorArchiver;

  HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& oReserved) override;
  HRESULT GetAvailableVersions(int iPhysicalType, int& oNbVersions, const VOXSamCharacVersion*& oVersions) override;
  HRESULT GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                const VOXString*& oPositions) override;
  HRESULT GetCharacCollector(int, const VOXSamCharacVersion&, const VOXString&,
                             const VOXAnalysisCharacCollector*&) override;
  HRESULT GetCharacCollectors(int&, const VOXAnalysisCharacCollector* const*&) override;
  HRESULT IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector*, unsigned char&) override;
  HRESULT GetTitle(int, VOXString&) override;
};

//! One that may say that its collectors are to be archived.
class ScriptedCharac : public PlainCharac
{
public:
  HRESULT IsAuthorizedToArchiveCollectors(unsigned char& oAuthorized) const override;
};

//! The tie over such a feature type. Notes who was asked: the component, not the adaptor itself.
template <class Adaptor>
class CharacTie : public VOXTieCharacCollector<Adaptor>
{
public:
  using Carries = VOXICharacCollector;
  using Base = VOXTieCharacCollector<Adaptor>;

  static void ForgetScripts(const VOXBaseUnknown* iComponent) { Adaptor::ForgetScripts(iComponent); }
  static Adaptor& AdaptorOf(VOXICharacCollector* iTie) { return *static_cast<CharacTie*>(iTie)->Tied(); }

  HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& oReserved) override
  {
    CallLog::Note("of the component: ");
    return Base::GetAvailablePhysicalTypes(oNbTypes, oTypes, oReserved);
  }
  HRESULT GetAvailableVersions(int iPhysicalType, int& oNbVersions, const VOXSamCharacVersion*& oVersions) override
  {
    CallLog::Note("of the component: ");
    return Base::GetAvailableVersions(iPhysicalType, oNbVersions, oVersions);
  }
  HRESULT GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                const VOXString*& oPositions) override
  {
    CallLog::Note("of the component: ");
    return Base::GetAvailablePositions(iPhysicalType, iVersion, oNbPositions, oPositions);
  }
};

//! A feature type that notes the queries that go to itself, not to its implementation.
class Questioned : public ScriptedCharac
{
public:
  using ScriptedCharac::QueryInterface;
  HRESULT QueryInterface(const IID& iInterface, void** oFace) override
  {
    CallLog::Note("own query");
    return ScriptedCharac::QueryInterface(iInterface, oFace);
  }
};

//! One that may keep silent about what it offers, with success.
class Reticent : public ScriptedCharac
{
public:
  static inline const char* silentAbout = "";

  HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& oReserved) override
  {
    return IsSilent("types") ? S_OK : ScriptedCharac::GetAvailablePhysicalTypes(oNbTypes, oTypes, oReserved);
  }
  HRESULT GetAvailableVersions(int iType, int& oNbVersions, const VOXSamCharacVersion*& oVersions) override
  {
    return IsSilent("versions") ? S_OK : ScriptedCharac::GetAvailableVersions(iType, oNbVersions, oVersions);
  }
  HRESULT GetAvailablePositions(int iType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                const VOXString*& oPositions) override
  {
    return IsSilent("positions") ? S_OK
                                 : ScriptedCharac::GetAvailablePositions(iType, iVersion, oNbPositions, oPositions);
  }

private:
  static bool IsSilent(std::string_view iAbout) { return silentAbout == iAbout; }
};

//! What a scripted VOXIAlias answers.
struct AliasScript
{
  std::string alias;
};

class ScriptedAlias : public Scripted<VOXIAlias, AliasScript>
{
public:
  VOXUnicodeString GetAlias() const override;
  HRESULT SetAlias(const VOXUnicodeString& iAlias) override;
};

//! The private parts of the adaptor, as the class itself and the host reach them.
struct CharacArea
{
  static HRESULT Build(VOXECharacCollector& ioAdaptor);
  static HRESULT Reset(VOXECharacCollector& ioAdaptor);
  static HRESULT ResetNumberingDependant(VOXECharacCollector& ioAdaptor);

  struct Place
  {
    HRESULT result = E_INVALIDARG;
    int type = -7;
    int version = -7;
    int position = -7;
    bool operator==(const Place&) const = default;
    friend std::ostream& operator<<(std::ostream& ioStream, const Place& iPlace)
    {
      return ioStream << iPlace.result << ": " << iPlace.type << ", " << iPlace.version << ", " << iPlace.position;
    }
  };
  static Place Locate(VOXECharacCollector& ioAdaptor, int iType, const VOXSamCharacVersion& iVersion,
                      const char* iPosition);

  static bool IsBuilt(const VOXECharacCollector& iAdaptor);
  //! Nothing built, nothing left of an area, at any level.
  static bool IsBlank(const VOXECharacCollector& iAdaptor);
  static int Types(const VOXECharacCollector& iAdaptor);
  static int Slots(const VOXECharacCollector& iAdaptor, int iType);
  static int Positions(const VOXECharacCollector& iAdaptor, int iType, int iSlot);
  static VOXAnalysisCollectorArchiver* Entry(const VOXECharacCollector& iAdaptor, int iType, int iSlot, int iPosition);
  //! Frees an array of a built area that keeps no archiver, and leaves null in its place.
  enum class Array
  {
    VersionSlots,
    Positions,
    PositionsOfTheFirstType,
    ArchiversOfTheFirstType
  };
  static void Lose(VOXECharacCollector& ioAdaptor, Array iArray);
  //! The offsets of the members, in their order.
  static std::vector<std::ptrdiff_t> Offsets(const VOXECharacCollector& iAdaptor);

  static const VOXAnalysisExplicitModel* ContextModel(const VOXECharacCollector& iAdaptor);
  static const VOXAnalysisExplicitModel* PreviousContextModel(const VOXECharacCollector& iAdaptor);

  static const VOXAnalysisCollectorArchiver* ArchiverOf(const VOXAnalysisCharacCollector& iCollector);
  static void SetArchiverOf(const VOXAnalysisCharacCollector& iCollector,
                            const VOXAnalysisCollectorArchiver* iArchiver);
  static void Release(const VOXAnalysisCollectorArchiver& iArchiver);
};

//! A feature that collects characteristics under one object of a model, and the collectors and archivers of a test.
class CharacWorld
{
public:
  CharacWorld();
  ~CharacWorld();

  VOXICharacCollector* operator->() const { return _Collector; }
  ScriptedCharac& Adaptor() const { return CharacTie<ScriptedCharac>::AdaptorOf(_Collector); }
  VOXBaseUnknown* Feature() const { return _Feature; }
  CharacScript& Told() const { return ScriptedCharac::ScriptOf(_Feature); }
  ExplicitScript& Explicit() const { return ScriptedExplicit::ScriptOf(_Feature); }
  SpecObjectScript& Spec() const { return ScriptedSpecObject::ScriptOf(_Feature); }
  voxhost::ExplicitModel& Model() { return _Model; }
  const VOXAnalysisExplicitEntity& Entity() const { return _Entity; }

  //! A collector under the feature's object, with values where the flags say so; attached, and owned by the model.
  VOXAnalysisCharacCollector& NewCollector(int iType = 11, const VOXSamCharacVersion& iVersion = Version(1),
                                           const char* iPosition = "NODE",
                                           const std::vector<unsigned char>& iFlags = {1, 1},
                                           const char* iName = "values", int iFrame = 0);

  //! AssignArchiverToCollector. The world gives the creation reference of a new archiver back when it dies.
  HRESULT Assign(const VOXAnalysisCharacCollector& iCollector, CollectorArchiveFlag iFlag = CollectorArchiveOnDemand);

  //! An archiver of that time stamp that nobody keeps: the world holds the only reference.
  VOXAnalysisCollectorArchiver& NewArchiver(int iTimeStamp = 1);

  HRESULT Keep(VOXAnalysisCollectorArchiver* iArchiver, int iType = 11,
               const VOXSamCharacVersion& iVersion = Version(1), const char* iPosition = "NODE")
  {
    return Adaptor().SetCollectorArchiver(iType, iVersion, iPosition, iArchiver);
  }

  //! What GetCollectorArchiver gives, null on failure as well.
  VOXAnalysisCollectorArchiver* Fetch(int iType = 11, const VOXSamCharacVersion& iVersion = Version(1),
                                      const char* iPosition = "NODE");

private:
  voxhost::ExplicitModel _Model;
  VOXAnalysisExplicitEntity _Entity;
  Bench _Bench;
  VOXBaseUnknown* _Feature;
  VOXICharacCollector_var _Collector;
  std::vector<const VOXAnalysisCollectorArchiver*> _Made;
};

//! One world; errors, ledger and switches as they were when the test is over.
class CharacTest : public testing::Test
{
protected:
  CharacTest();
  ~CharacTest() override;

  static std::int64_t Archivers() { return voxhost::Ledger::Read().archivers; }
  static int References(const VOXAnalysisCollectorArchiver& iArchiver)
  {
    return voxhost::ArchiverSwitches::References(iArchiver);
  }

  voxhost::Ledger::Balance before;
  std::optional<CharacWorld> world;
  voxhost::Ledger::Balance kept; // what the test leaves behind on purpose
};

inline const std::string kCharac = SourceOf("VOXECharacCollector");

} // namespace voxtest
