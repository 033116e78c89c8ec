// SPDX-License-Identifier: MIT
#pragma once
#include "AnalysisInterfaces/VOXICharacCollector.h"
#include "VOXECharacCollector.h"
#include "voxbench/features/ResultSource.h"

#include <vector>

namespace voxbench
{

//! What is kept of the archiver of a definition.
struct ArchiverState
{
  bool isKept = false;
  bool isStreamable = false;         //!< can be stored with its document
  bool isNumberingDependant = false; //!< falls with the numbering of the model
};

//! The results of a solution: one physical type per quantity of its source.
//!
//! - Its collectors are made when they are asked for, attached to the feature's object in the model, filled, and given
//!   the archiver of their definition. One that has gone out of date is made anew.
//! - It holds one reference on each, so that a collector that was deleted from the model is noticed, not dangling.
class SolutionResults final : public VOXECharacCollector
{
public:
  ~SolutionResults() override;

  HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*& oReserved) override;
  HRESULT GetAvailableVersions(int iPhysicalType, int& oNbVersions, const VOXSamCharacVersion*& oVersions) override;
  HRESULT GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                const VOXString*& oPositions) override;

  HRESULT GetCharacCollector(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                             const VOXAnalysisCharacCollector*& oCollector) override;
  HRESULT GetCharacCollectors(int& oNb, const VOXAnalysisCharacCollector* const*& oCollectors) override;
  HRESULT IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector* iCollector, unsigned char& oUpToDate) override;
  HRESULT GetTitle(int iPhysicalType, VOXString& oTitle) override;

  //! Looks whether an archiver is kept; makes none. @return S_OK; E_FAIL for a definition that is not offered.
  HRESULT AskArchiver(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                      ArchiverState& oState);

protected:
  HRESULT IsAuthorizedToArchiveCollectors(unsigned char& oAuthorized) const override;

private:
  ResultSource* Source() const;
  const ResultSource::Quantity* Find(int iPhysicalType) const;
  HRESULT Offers(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition, bool& oOffers);
  HRESULT Make(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
               const VOXAnalysisCharacCollector*& oCollector);
  bool IsFeatureUpToDate() const;
  void DropTheDeleted();

  std::vector<int> _Types;                                    // as handed out last
  std::vector<const VOXAnalysisCharacCollector*> _Collectors; // one reference each
};

//! Makes VOXICharacCollector of a solution reachable, and what only the workbench asks of it.
class SolutionTie final : public VOXTieCharacCollector<SolutionResults>
{
public:
  HRESULT AskArchiver(int iPhysicalType, const VOXSamCharacVersion& iVersion, const VOXString& iPosition,
                      ArchiverState& oState) const
  {
    return Tied()->AskArchiver(iPhysicalType, iVersion, iPosition, oState);
  }
};

} // namespace voxbench
