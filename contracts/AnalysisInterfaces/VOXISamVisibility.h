// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"

#include <cstdint>

inline constexpr IID IID_VOXISamVisibility = VOXGuidOfName("VOXISamVisibility");

//! Where a feature is visible: a set of bits.
enum VOXSamVisibility : std::int32_t
{
  VOXSamVisibleNowhere = 0,
  VOXSamVisibleInGraph = 1,
  VOXSamVisibleIn3D = 2,
  VOXSamVisibleInBoth = 3
};

//! Visibility of an analysis feature. Implemented by: feature types, usually by deriving from VOXEAnalysisVisibility.
//! Called by: the host's views.
class VOX_HOST_API VOXISamVisibility : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamVisibility)

  //! 1. Sets where the feature is visible.
  virtual void SetVisibilityProperty(VOXSamVisibility iVisibility) = 0;

  //! 2. Where the feature is visible.
  virtual VOXSamVisibility GetVisibilityProperty() = 0;

  //! 3. Whether it is visible in the tree. @return 1 or 0.
  virtual unsigned char IsVisibleInGraph() = 0;

  //! 4. Whether it is visible in 3D. @return 1 or 0.
  virtual unsigned char IsVisibleIn3D() = 0;

  //! 5. Whether the visibility is stored with the document. @return 1 or 0.
  virtual unsigned char IsPersistent() const = 0;

  //! 6. Sets the no-show status.
  virtual void SetShowStatus(unsigned char iNoShow) = 0;

  //! 7. The no-show status. @return 1 or 0.
  virtual unsigned char IsNoShow() = 0;

  //! 8. The objects that the feature is shown under. @return caller deletes; null when there is none.
  virtual VOXListValVOXBaseUnknown_var* GetFatherForGraphAnd3D() = 0;
};

using VOXISamVisibility_var = VOXHandle<VOXISamVisibility>;
