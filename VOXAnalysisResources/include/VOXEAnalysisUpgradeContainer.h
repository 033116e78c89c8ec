// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamUpgradeContainer.h"
#include "VOXAnalysisResources.h"

//! Default upgrade of a container: nothing needs it. The feature type supplies operation 1, for which RerouteInstance is
//! the tool.
class VOX_ANALYSIS_API VOXEAnalysisUpgradeContainer : public VOXISamUpgradeContainer
{
public:
  VOXEAnalysisUpgradeContainer();
  ~VOXEAnalysisUpgradeContainer() override;

  //! 2. @return false.
  bool NeedToUpgraded(int iVersion, int iRelease) override;

  //! 3. @return S_OK.
  HRESULT UpgradeObject(const VOXISpecObject* iObject) override;

protected:
  //! Replaces a feature by an instance of another start-up, in the same container: local attribute values (by name and
  //! type), components, alias and explicit tag go over, and every attribute that referred to the old instance refers to
  //! the new one. The new one is updated if the old one was up to date. The old instance stays, for the caller to delete.
  //! What has no place in the new instance is dropped without a report. Both must give access to their attributes
  //! (asserted).
  //! @param iOldInstance borrowed. @param iStartUpName name of a start-up that is visible from the container.
  //! @return one reference for the caller; null, with nothing changed, for null, without container or start-up, or when
  //! no instance could be made.
  VOXISpecObject* RerouteInstance(const VOXISpecObject* iOldInstance, const VOXUnicodeString& iStartUpName);
};
