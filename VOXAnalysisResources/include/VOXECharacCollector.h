// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXBaseUnknown.h"
#include "ComponentRuntime/VOXString.h"
#include "ExplicitModel/VOXAnalysisCharacCollector.h"
#include "ExplicitModel/VOXAnalysisCollectorArchiver.h"
#include "VOXAnalysisResources.h"

#include <cstdint>

//! When an archiver is assigned to a collector. Passed through, not read by the adaptor.
enum CollectorArchiveFlag : int
{
  CollectorArchiveOnDemand = 0,
  CollectorArchiveOnFill = 1
};

//! Collection of characteristics (analysis results) of a feature: carries the operations of VOXICharacCollector and is
//! reached through a tie. The feature type supplies operations 1, 3, 4, 5, 6, 7 and 9.
//!
//! - What the feature offers is asked of it each time; nothing of its answers is kept but counts and places.
//! - The adaptor keeps one archiver per definition (physical type, version, position), in a storage area that is built at
//!   the first request and dropped by Update, by a third context model of an authorised feature, and with the adaptor.
//!   Between two drops its shape is fixed: what the feature offers later has no place in it.
//! - Every HRESULT is S_OK, or E_FAIL after an error report, unless an operation says otherwise.
class VOX_ANALYSIS_API VOXECharacCollector : public VOXBaseUnknown
{
public:
  //! As the type of that name outside.
  using CollectorArchiveFlag = ::CollectorArchiveFlag;

  VOXECharacCollector();
  ~VOXECharacCollector() override;
  VOXECharacCollector(const VOXECharacCollector&) = delete;
  VOXECharacCollector& operator=(const VOXECharacCollector&) = delete;

  //! 1. The physical types that the feature collects. @param oNbTypes their number. @param oTypes borrowed: the feature
  //! owns the array.
  //! @param oReserved preset to null by the caller, never read.
  virtual HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& oReserved) = 0;

  //! 2. @param iPhysicalType not looked at. @param oNb set to 0. @param oTypes set to null. @return S_OK.
  virtual HRESULT GetAvailableEntityPhysicalTypes(int iPhysicalType, int& oNb, const int*& oTypes);

  //! 3. The versions of one physical type. @param iPhysicalType the type. @param oNbVersions their number.
  //! @param oVersions borrowed: the feature owns the array.
  virtual HRESULT GetAvailableVersions(int iPhysicalType, int& oNbVersions, const VOXSamCharacVersion*& oVersions) = 0;

  //! 4. The positions of one physical type and version. @param iPhysicalType, iVersion the two.
  //! @param oNbPositions their number. @param oPositions borrowed: the feature owns the array.
  virtual HRESULT GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                        const VOXString*& oPositions) = 0;

  //! 5. The collector of a definition. Never called by the adaptor.
  virtual HRESULT GetCharacCollector(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                                     const VOXAnalysisCharacCollector*& oCollector) = 0;
  //! 6. The collectors that stand now. Never called by the adaptor.
  virtual HRESULT GetCharacCollectors(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors) = 0;
  //! 7. Whether a collector is still what the feature would answer. Never called by the adaptor.
  virtual HRESULT IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector* iCollector, unsigned char& oUpToDate) = 0;

  //! 8. Whether the feature offers a definition. A version that matches only with its variant flag set is offered only
  //! when the flag of iVersion is exactly 1. @param iPhysicalType, iVersion, iPosition the definition.
  //! @param oAvailable preset to 0.
  virtual HRESULT IsAnAvailableDefinition(int iPhysicalType, const VOXSamCharacVersion& iVersion,
                                          const VOXString& iPosition, unsigned char& oAvailable);

  //! 9. Never called by the adaptor.
  virtual HRESULT GetTitle(int iPhysicalType, VOXString& oTitle) = 0;

  //! 10. @param oNb set to 0. @param oCollectors set to null. @param iFlag not looked at. @return S_OK.
  virtual HRESULT GetCharacCollectorsForOccurrences(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors,
                                                    unsigned char iFlag);

  //! 11. Deletes one collector of the feature's context. @param ioCollector null on S_OK, else as it was.
  virtual HRESULT DeleteCharacCollector(const VOXAnalysisCharacCollector*& ioCollector);

  //! 12. Deletes all collectors of the feature's context.
  virtual HRESULT DeleteAll();

  //! 13. The feature changed: drops the storage area. @param iFlag not looked at.
  virtual HRESULT Update(unsigned char iFlag);

  //! 14. The model that the feature is collected in from now on. @param iModel borrowed; null forgets the current model
  //! and keeps the previous one. On failure both stay as they were.
  virtual HRESULT SetContextModel(const VOXAnalysisExplicitModel* iModel);

  //! 15. The model that the feature is collected in; that of its context when none was set, which is then set.
  //! @param oModel preset to null; borrowed; stays set when only setting it failed.
  virtual HRESULT GetContextModel(const VOXAnalysisExplicitModel*& oModel);

  //! 16. The feature's context: its first parent in the explicit model. @param oContext preset to the empty handle, which
  //! it is on failure too, unless only giving back the list of parents failed.
  virtual HRESULT GetContext(VOXAnalysisExplicitParent& oContext);

protected:
  //! 17. Whether the feature takes part in the analysis. @return 1 or 0; 0 for a feature that is not explicit.
  virtual unsigned char GetActivity();

  //! 18. Whether the feature's collectors are to be archived. @param oAuthorized set to 0; a feature type that wants
  //! archivers answers 1. @return S_OK.
  virtual HRESULT IsAuthorizedToArchiveCollectors(unsigned char& oAuthorized) const;

  //! The archiver that is kept for a definition. One that no longer matches the feature's time stamp is dropped.
  //! @param iPhysicalType, iVersion, iPosition the definition.
  //! @param oArchiver preset to null; borrowed; null when none is kept; stays set when only the feature is missing that
  //! the stamp is asked of. @return S_OK; E_FAIL after an error report, for an unknown definition, too.
  HRESULT GetCollectorArchiver(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                               VOXAnalysisCollectorArchiver*& oArchiver);

  //! Keeps an archiver for a definition, in place of the one so far.
  //! @param iPhysicalType, iVersion, iPosition the definition. @param iArchiver keeper takes its own; may be null.
  HRESULT SetCollectorArchiver(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                               VOXAnalysisCollectorArchiver* iArchiver);

  //! Gives a collector the archiver of its definition, a new one if none is kept. Nothing is done for null, for a feature
  //! that is not authorised, for a collector that lacks values somewhere or has an archiver, and for derived versions.
  //! A new archiver that cannot be stored is dropped. A collector without a definition is a failure.
  //! @param iCollector borrowed. @param iFlag not read.
  HRESULT AssignArchiverToCollector(const VOXAnalysisCharacCollector* iCollector, CollectorArchiveFlag iFlag);

  //! Whether a collector holds values for every one of its entities. @param iCollector borrowed. @param oForAll preset
  //! to 1, which it stays for null, for a collector without values, and on failure.
  HRESULT CollectorIsForAllEntities(const VOXAnalysisCharacCollector* iCollector, unsigned char& oForAll);

private:
  HRESULT InitCollectorArchiversStorageArea();
  HRESULT ResetCollectorArchiversStorageArea();
  HRESULT ResetNumberingDependantCollectorArchiversStorageArea();
  HRESULT LocateCollectorArchiver(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                                  int& oPhysicalTypeIndex, int& oVersionIndex, int& oPositionIndex);

  // The storage area. Its arrays are made with malloc; every archiver in it holds one reference. While _Archivers is null
  // the area is not built: the count is 0, the other arrays are null.
  std::int32_t _NbPhysicalTypes;
  std::int32_t* _NbVersionSlots; // per type: twice its versions; the second half is that of set variant flags
  std::int32_t** _NbPositions;   // per type and slot
  VOXAnalysisCollectorArchiver**** _Archivers;           // per type, slot and position; null where none is kept
  const VOXAnalysisExplicitModel* _ContextModel;         // borrowed
  const VOXAnalysisExplicitModel* _PreviousContextModel; // borrowed
};
