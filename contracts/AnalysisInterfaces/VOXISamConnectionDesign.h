// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "ComponentRuntime/VOXTie.h"
#include "FeatureModeler/VOXListValVOXISpecObject_var.h"

inline constexpr IID IID_VOXISamConnectionDesign = VOXGuidOfName("VOXISamConnectionDesign");

//! Both sides of a connection. Implemented by: connection feature types, by VOXESamConnectionDesignAdaptor and a tie
//! (VOXTieConnectionDesign below). Called by: the host and its commands.
class VOX_HOST_API VOXISamConnectionDesign : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamConnectionDesign)

  //! 1. The supports of both sides. @param ioSupports1, ioSupports2 filled as the supports' own listing does.
  //! @return the result of the query for side 2.
  virtual HRESULT GetConnectedSupports(VOXListValVOXBaseUnknown_var& ioSupports1,
                                       VOXListValVOXBaseUnknown_var& ioSupports2) = 0;

  //! 2. Supports and designers of both sides. @param ioSupports1, ioSupports2 replaced for a side that has one designer.
  //! @param opDesigners1, opDesigners2 preset to null; a list that comes is the caller's: caller deletes.
  //! @return the result of the query for side 2.
  virtual HRESULT GetConnectionDesigners(VOXListValVOXBaseUnknown_var& ioSupports1,
                                         VOXListValVOXISpecObject_var*& opDesigners1,
                                         VOXListValVOXBaseUnknown_var& ioSupports2,
                                         VOXListValVOXISpecObject_var*& opDesigners2) = 0;
};

using VOXISamConnectionDesign_var = VOXHandle<VOXISamConnectionDesign>;

//! Tie of VOXISamConnectionDesign over an adaptor with the same operations.
template <class Adaptor>
class VOXTieConnectionDesign : public VOXTieBase<VOXISamConnectionDesign, Adaptor>
{
public:
  HRESULT GetConnectedSupports(VOXListValVOXBaseUnknown_var& ioSupports1,
                               VOXListValVOXBaseUnknown_var& ioSupports2) override
  {
    return this->Tied()->GetConnectedSupports(ioSupports1, ioSupports2);
  }
  HRESULT GetConnectionDesigners(VOXListValVOXBaseUnknown_var& ioSupports1, VOXListValVOXISpecObject_var*& opDesigners1,
                                 VOXListValVOXBaseUnknown_var& ioSupports2,
                                 VOXListValVOXISpecObject_var*& opDesigners2) override
  {
    return this->Tied()->GetConnectionDesigners(ioSupports1, opDesigners1, ioSupports2, opDesigners2);
  }
};
