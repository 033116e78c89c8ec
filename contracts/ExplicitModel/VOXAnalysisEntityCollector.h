// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisCollectorRoot.h"

//! Collector of the entities of one definition (value kind and name) under a parent. Implemented by: the host.
class VOX_HOST_API VOXAnalysisEntityCollector : public VOXAnalysisCollectorRoot
{
public:
  VOXAnalysisEntityCollector();
  ~VOXAnalysisEntityCollector() override;

  void Dump(int iIndent, int iFirst, int iCount) const override;
  void Dump(VOXListValVOXUnicodeString* ioLines, int iIndent, int iFirst, int iCount) const override;

  //! 12. Drops the entities; definition and context stay. @return S_OK.
  virtual HRESULT Reset();

  //! 13. One byte per entity: 1 if it is in use. @param oFlags borrowed; null when the collector is empty. @return S_OK.
  virtual HRESULT GetEntitiesFLags(const unsigned char*& oFlags) const;

  //! Sets what the collector gathers. @return S_OK; E_FAIL while it is attached: the definition stays.
  HRESULT SetDefinition(VOXSamValue iValue, VOXString iName);

  //! What the collector gathers. @return S_OK.
  HRESULT GetDefinition(VOXSamValue& oValue, VOXString& oName) const;

  //! Gives the collector copies of these arrays; as SetEntities.
  HRESULT SetExplicitPointers(int iCount, VOXSamModelDataRoot* const* iObjects, const int* iIndices);
};
