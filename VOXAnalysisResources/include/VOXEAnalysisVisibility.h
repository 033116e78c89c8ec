// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamVisibility.h"
#include "VOXAnalysisResources.h"

//! Visibility of an analysis feature in the tree (the graph) and in 3D, and its no-show status. At first it is visible in
//! both and not no-show. No operation reports an error.
class VOX_ANALYSIS_API VOXEAnalysisVisibility : public VOXISamVisibility
{
public:
  VOXEAnalysisVisibility();
  ~VOXEAnalysisVisibility() override;

  //! Copies visibility and no-show status.
  VOXEAnalysisVisibility(const VOXEAnalysisVisibility& iOther);
  //! Copies visibility and no-show status.
  VOXEAnalysisVisibility& operator=(const VOXEAnalysisVisibility& iOther);

  //! 1. Sets where the feature is visible. A view that is switched on shows the feature's fathers; then a redraw is
  //! requested. Nothing changes without fathers or without a view manager.
  void SetVisibilityProperty(VOXSamVisibility iVisibility) override;

  //! 2. Where the feature is visible.
  VOXSamVisibility GetVisibilityProperty() override;

  //! 3. Whether it is visible in the graph. @return 1 or 0.
  unsigned char IsVisibleInGraph() override;

  //! 4. Whether it is visible in 3D. @return 1 or 0.
  unsigned char IsVisibleIn3D() override;

  //! 5. @return 0.
  unsigned char IsPersistent() const override;

  //! 6. Sets the no-show status and tells the view manager, if that changed anything.
  void SetShowStatus(unsigned char iNoShow) override;

  //! 7. The no-show status that was set last.
  unsigned char IsNoShow() override;

  //! 8. The objects that the feature is shown under: of an entity those that it names, and nothing else; of a set those
  //! that it names, else its father; of any other feature its father. @return caller deletes; null when there is none.
  VOXListValVOXBaseUnknown_var* GetFatherForGraphAnd3D() override;

private:
  VOXSamVisibility _Visibility;
  unsigned char _NoShow;
};
