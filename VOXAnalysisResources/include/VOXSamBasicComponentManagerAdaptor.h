// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamBasicComponentManager.h"
#include "VOXAnalysisResources.h"

//! Default management of basic components: none is optional, none is treated in a special way.
class VOX_ANALYSIS_API VOXSamBasicComponentManagerAdaptor : public VOXISamBasicComponentManager
{
public:
  VOXSamBasicComponentManagerAdaptor();
  ~VOXSamBasicComponentManagerAdaptor() override;

  //! 1. @param oNb set to 0. @return S_OK.
  HRESULT GetNbOptionalBC(int& oNb) override;

  //! 2. The lists are left as they are. @return S_OK.
  HRESULT GetOptionalBCList(VOXListValVOXUnicodeString& ioNames, VOXListValVOXUnicodeString& ioTypes,
                            VOXListValVOXBaseUnknown_var& ioKinds) override;

  //! 3. and 4. @return the value 2: not decided.
  SAMHiddenState IsBasicComponentHidden(const VOXISamBasicComponent* iComponent) override;
  SAMReadOnlyState IsBasicComponentReadOnly(const VOXISamBasicComponent* iComponent) override;

  //! 5. @return true.
  bool IsBasicComponentRecordable(const VOXISamBasicComponent* iComponent) override;
};
