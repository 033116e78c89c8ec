// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXISpecAttrAccess.h"

//! Finds a start-up. @param iInterfaceName interface that it is wanted for. @param iName, iAlternateName its name, and a
//! second one that is tried when nothing has the first. @param iContainer container that it must be visible from.
//! @return one reference for the caller, on the interface asked for; null when there is no such start-up.
VOX_HOST_API VOXBaseUnknown* FindStartUp(const char* iInterfaceName, const VOXUnicodeString& iName,
                                         const VOXUnicodeString& iAlternateName, const VOXIContainer_var& iContainer);

//! Whether the value of an attribute is the instance's own. @return 0 when it is, 1 when it is inherited from the
//! start-up; E_INVALIDARG for a null argument.
VOX_HOST_API HRESULT VOXSpecIsLocalValue(VOXISpecObject* iInstance, VOXISpecAttrKey* iKey);

//! Identifier of a feature, unique in its document; 0 for an empty handle.
VOX_HOST_API unsigned int VOXGetUniqueIdentifier(const VOXISpecObject_var& iFeature);

//! Public services of the feature modeler.
class VOX_HOST_API VOXSpecPubServices
{
public:
  //! Writes a feature into an attribute while a document is upgraded: keeper takes its own.
  //! @param iAccess, iKey access to the feature that has the attribute, and its key; borrowed. @param iObject the
  //! feature that is written.
  //! @param iPosition in a list: from 1, the element that is replaced; 0 to append. In a single attribute: 0.
  //! @return S_OK; E_FAIL for a null argument, a wrong attribute type or a position outside the list.
  static HRESULT UpgradeSpecObjectAttribute(VOXISpecAttrAccess* iAccess, const VOXISpecAttrKey* iKey,
                                            const VOXISpecObject_var& iObject, int iPosition);
};

//! Services of the feature modeler on single features.
class VOX_HOST_API VOXSpecObjServices
{
public:
  //! Brackets a change of a feature. @param ioFeature the feature. @param iMark 1: out of date from now on; 0: the mark
  //! is taken back. @return S_OK; E_FAIL for an empty handle.
  static HRESULT MarkForRebuild(VOXISpecObject_var& ioFeature, int iMark);
};
