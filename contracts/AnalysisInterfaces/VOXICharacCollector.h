// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXTie.h"
#include "ExplicitModel/VOXAnalysisCharacCollector.h"

inline constexpr IID IID_VOXICharacCollector = VOXGuidOfName("VOXICharacCollector");

//! Collection of characteristics: analysis results, values of a physical type in a version at a position.
//!
//! Implemented by: feature types that produce characteristics, by deriving from VOXECharacCollector and a tie
//! (VOXTieCharacCollector below). Called by: the host and its commands.
//! - The arrays handed out are borrowed: the feature owns them.
//! - A collector handed out belongs to the model, under the feature's context; it is borrowed.
class VOX_HOST_API VOXICharacCollector : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXICharacCollector)

  //! 1. The physical types that the feature offers. @param oNbTypes, oTypes array of their numbers. @param oReserved
  //! preset by the caller to null, not read. @return S_OK; a failure.
  virtual HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& oReserved) = 0;

  //! 2. The physical types of entities that values of a type stand on. @return S_OK; a failure.
  virtual HRESULT GetAvailableEntityPhysicalTypes(int iPhysicalType, int& oNb, const int*& oTypes) = 0;

  //! 3. The versions of a physical type. @return S_OK; a failure.
  virtual HRESULT GetAvailableVersions(int iPhysicalType, int& oNbVersions, const VOXSamCharacVersion*& oVersions) = 0;

  //! 4. The positions of a physical type and version. @return S_OK; a failure.
  virtual HRESULT GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                        const VOXString*& oPositions) = 0;

  //! 5. The collector of a definition, filled. @param iPhysicalType, iVersion, iPosition the definition.
  //! @param oCollector preset to null; on S_OK borrowed, null when the feature
  //! has no such values. @return S_OK; a failure.
  virtual HRESULT GetCharacCollector(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                                     const VOXAnalysisCharacCollector*& oCollector) = 0;

  //! 6. The collectors that stand now. @param oNb their number. @param oCollectors borrowed array, valid until the next
  //! call. @return S_OK; a failure.
  virtual HRESULT GetCharacCollectors(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors) = 0;

  //! 7. Whether a collector is still what the feature would answer. @param iCollector borrowed.
  //! @param oUpToDate preset to 0. @return S_OK; a failure.
  virtual HRESULT IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector* iCollector, unsigned char& oUpToDate) = 0;

  //! 8. Whether the feature offers a definition. @param iPhysicalType, iVersion, iPosition the definition.
  //! @param oAvailable preset to 0. @return S_OK; E_FAIL after an error
  //! report.
  virtual HRESULT IsAnAvailableDefinition(int iPhysicalType, const VOXSamCharacVersion& iVersion,
                                          const VOXString& iPosition, unsigned char& oAvailable) = 0;

  //! 9. Text that a person knows a physical type of the feature by. @param iPhysicalType its number. @param oTitle
  //! untouched on failure. @return S_OK; a failure.
  virtual HRESULT GetTitle(int iPhysicalType, VOXString& oTitle) = 0;

  //! 10. The collectors of the occurrences of the feature. @return S_OK; a failure.
  virtual HRESULT GetCharacCollectorsForOccurrences(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors,
                                                    unsigned char iFlag) = 0;

  //! 11. Deletes one collector of the feature. @param ioCollector null on S_OK, else as it was. @return S_OK; E_FAIL
  //! after an error report.
  virtual HRESULT DeleteCharacCollector(const VOXAnalysisCharacCollector*& ioCollector) = 0;

  //! 12. Deletes all collectors of the feature. @return S_OK; E_FAIL after an error report.
  virtual HRESULT DeleteAll() = 0;

  //! 13. The feature changed. @return S_OK; E_FAIL after an error report.
  virtual HRESULT Update(unsigned char iFlag) = 0;

  //! 14. The model that the feature is collected in from now on. @param iModel borrowed; null for none.
  //! @return S_OK; E_FAIL after an error report.
  virtual HRESULT SetContextModel(const VOXAnalysisExplicitModel* iModel) = 0;

  //! 15. The model that the feature is collected in. @param oModel preset to null; borrowed. @return S_OK; E_FAIL after
  //! an error report.
  virtual HRESULT GetContextModel(const VOXAnalysisExplicitModel*& oModel) = 0;

  //! 16. The object that the feature's collectors stand under. @param oContext preset to the empty handle.
  //! @return S_OK; E_FAIL after an error report.
  virtual HRESULT GetContext(VOXAnalysisExplicitParent& oContext) = 0;
};

using VOXICharacCollector_var = VOXHandle<VOXICharacCollector>;

//! Tie of VOXICharacCollector over an adaptor with the same operations.
template <class Adaptor>
class VOXTieCharacCollector : public VOXTieBase<VOXICharacCollector, Adaptor>
{
public:
  HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& oReserved) override
  {
    return this->Tied()->GetAvailablePhysicalTypes(oNbTypes, oTypes, oReserved);
  }
  HRESULT GetAvailableEntityPhysicalTypes(int iPhysicalType, int& oNb, const int*& oTypes) override
  {
    return this->Tied()->GetAvailableEntityPhysicalTypes(iPhysicalType, oNb, oTypes);
  }
  HRESULT GetAvailableVersions(int iPhysicalType, int& oNbVersions, const VOXSamCharacVersion*& oVersions) override
  {
    return this->Tied()->GetAvailableVersions(iPhysicalType, oNbVersions, oVersions);
  }
  HRESULT GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                const VOXString*& oPositions) override
  {
    return this->Tied()->GetAvailablePositions(iPhysicalType, iVersion, oNbPositions, oPositions);
  }
  HRESULT GetCharacCollector(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                             const VOXAnalysisCharacCollector*& oCollector) override
  {
    return this->Tied()->GetCharacCollector(iPhysicalType, iVersion, iPosition, oCollector);
  }
  HRESULT GetCharacCollectors(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors) override
  {
    return this->Tied()->GetCharacCollectors(oNb, oCollectors);
  }
  HRESULT IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector* iCollector, unsigned char& oUpToDate) override
  {
    return this->Tied()->IsCharacCollectorUpToDate(iCollector, oUpToDate);
  }
  HRESULT IsAnAvailableDefinition(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                                  unsigned char& oAvailable) override
  {
    return this->Tied()->IsAnAvailableDefinition(iPhysicalType, iVersion, iPosition, oAvailable);
  }
  HRESULT GetTitle(int iPhysicalType, VOXString& oTitle) override
  {
    return this->Tied()->GetTitle(iPhysicalType, oTitle);
  }
  HRESULT GetCharacCollectorsForOccurrences(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors,
                                            unsigned char iFlag) override
  {
    return this->Tied()->GetCharacCollectorsForOccurrences(oNb, oCollectors, iFlag);
  }
  HRESULT DeleteCharacCollector(const VOXAnalysisCharacCollector*& ioCollector) override
  {
    return this->Tied()->DeleteCharacCollector(ioCollector);
  }
  HRESULT DeleteAll() override { return this->Tied()->DeleteAll(); }
  HRESULT Update(unsigned char iFlag) override { return this->Tied()->Update(iFlag); }
  HRESULT SetContextModel(const VOXAnalysisExplicitModel* iModel) override
  {
    return this->Tied()->SetContextModel(iModel);
  }
  HRESULT GetContextModel(const VOXAnalysisExplicitModel*& oModel) override
  {
    return this->Tied()->GetContextModel(oModel);
  }
  HRESULT GetContext(VOXAnalysisExplicitParent& oContext) override { return this->Tied()->GetContext(oContext); }
};
