// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisCollectorRoot.h"
#include "ExplicitModel/VOXSamCharacVersion.h"

class VOXAnalysisCollectorArchiver;
class VOXECharacCollector;

//! Collector of the values of one characteristic definition: physical type, name, version and position. Implemented by:
//! the host. May carry one archiver.
class VOX_HOST_API VOXAnalysisCharacCollector : public VOXAnalysisCollectorRoot
{
public:
  VOXAnalysisCharacCollector();
  ~VOXAnalysisCharacCollector() override;

  void Dump(int iIndent, int iFirst, int iCount) const override;
  void Dump(VOXListValVOXUnicodeString* ioLines, int iIndent, int iFirst, int iCount) const override;

  //! 12. Drops entities and values; definition, context and archiver stay. @return S_OK.
  virtual HRESULT Reset();

  //! 13. One byte per entity: 1 if it has values. @param oFlags borrowed; null when the collector is empty. @return S_OK.
  virtual HRESULT GetEntitiesFLags(const unsigned char*& oFlags) const;

  //! Sets what the collector holds values of. @param iPhysicalType number in the rules data. @param iName free name.
  //! @param iVersion, iPosition as the feature offers them. @param iComponents values per entity.
  //! @param iFrame tag of the axis system of the values; 0 for the global frame.
  //! @return S_OK; E_FAIL for fewer than one component.
  HRESULT SetDefinition(int iPhysicalType, const VOXString& iName, const VOXSamCharacVersion& iVersion,
                        const VOXString& iPosition, int iComponents, int iFrame);

  //! What the collector holds values of; the arguments as in SetDefinition, all set on S_OK.
  //! @return S_OK; E_FAIL while there is no definition: the arguments are untouched.
  HRESULT GetDefinition(int& oPhysicalType, VOXString& oName, VOXSamCharacVersion& oVersion, VOXString& oPosition,
                        int& oComponents, int& oFrame) const;

  //! Whether values are held. @return 1 or 0.
  unsigned char IsCollectorContainValues() const;

  //! Gives the collector copies of the values, in the order of the entities.
  //! @param iValues array of entities x components numbers, entity by entity, in model units.
  //! @param iFlags one byte per entity, 0 where an entity has no values; null when all have. @return S_OK; E_FAIL
  //! without entities or definition, or no memory.
  HRESULT SetValues(const double* iValues, const unsigned char* iFlags);

  //! The values, borrowed; null when there is none. Shape as in SetValues.
  const double* GetValues() const;

private:
  friend class ::VOXECharacCollector;

  //! The collector's archiver, borrowed; null when there is none. @return S_OK.
  HRESULT GetArchiver(const VOXAnalysisCollectorArchiver*& oArchiver) const;

  //! Gives the collector an archiver: keeper takes its own; null takes it away. @return S_OK.
  HRESULT SetArchiver(const VOXAnalysisCollectorArchiver* iArchiver) const;
};
