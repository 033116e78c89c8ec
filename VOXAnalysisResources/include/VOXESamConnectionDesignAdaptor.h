// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "FeatureModeler/VOXListValVOXISpecObject_var.h"
#include "VOXAnalysisResources.h"

//! Both sides of a connection: carries the operations of VOXISamConnectionDesign and is reached through a tie.
//!
//! - Each side is designed by the one object that plays the role "SAMConnectionDesigner1", or "SAMConnectionDesigner2",
//!   in the connection. A side with none or with several leaves its arguments as they are.
//! - The component must be an analysis entity (asserted). No operation reports an error.
class VOX_ANALYSIS_API VOXESamConnectionDesignAdaptor : public VOXBaseUnknown
{
public:
  VOXESamConnectionDesignAdaptor();
  ~VOXESamConnectionDesignAdaptor() override;

  //! The supports of both sides. @param oSupports1, oSupports2 filled as the supports' own listing does; untouched for a
  //! designer that is no support. @return the result of the role query for side 2, whatever side 1 gave.
  HRESULT GetConnectedSupports(VOXListValVOXBaseUnknown_var& oSupports1, VOXListValVOXBaseUnknown_var& oSupports2);

  //! Supports and designers of both sides. A single designer must be a support and a mesh-part filter (asserted).
  //! @param oSupports1, oSupports2 replaced for a side with a designer. @param opDesigners1, opDesigners2 preset to null;
  //! caller deletes what comes. @return the result of the role query for side 2.
  HRESULT GetConnectionDesigners(VOXListValVOXBaseUnknown_var& oSupports1, VOXListValVOXISpecObject_var*& opDesigners1,
                                 VOXListValVOXBaseUnknown_var& oSupports2, VOXListValVOXISpecObject_var*& opDesigners2);
};
