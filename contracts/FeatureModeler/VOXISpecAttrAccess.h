// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "ComponentRuntime/VOXRawCollint.h"
#include "FeatureModeler/VOXISpecAttrKey.h"
#include "FeatureModeler/VOXISpecObject.h"

inline constexpr IID IID_VOXISpecAttrAccess = VOXGuidOfName("VOXISpecAttrAccess");

//! Access to the attributes of a feature.
//!
//! Implemented by: the host's feature modeler. Called by: adaptors and feature types.
//! - A value is inherited from the start-up until it is written; then it is local. A reset makes the attribute local and
//!   empty (a list of no elements, no object, 0 or the empty text).
//! - Index 0 reads or writes a single value, or appends to a list on writing; elements of a list count from 1.
//! - A failed write changes nothing.
class VOX_HOST_API VOXISpecAttrAccess : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISpecAttrAccess)

  //! 1. Key of an attribute. @return one reference for the caller; null when the feature has no such attribute.
  virtual VOXISpecAttrKey* GetAttrKey(const VOXUnicodeString& iName) const = 0;

  //! 2. Keys of all attributes, in the order of the type's declaration. @return caller deletes; null when there is none.
  virtual VOXListValVOXISpecAttrKey_var* ListAttrKeys() const = 0;

  //! 3. The features that an attribute lists. @param iKey key of the attribute.
  //! @param iInterfaceName interface that the elements are asked for: an element without it is left as it is. Null: as
  //! they are. @return caller deletes; null when the attribute is no list of features or has never had a value.
  virtual VOXListValVOXBaseUnknown_var* ListSpecObjects(const VOXISpecAttrKey* iKey,
                                                        const char* iInterfaceName) const = 0;

  //! 4. Reads a real. @param iKey key of the attribute. @param iIndex 0 for a single value, from 1 for an element of a
  //! list. @return the value; 0 when the type, the index or the attribute is wrong.
  virtual double GetDouble(const VOXISpecAttrKey* iKey, int iIndex) const = 0;
  //! 5. Reads a boolean, as operation 4.
  virtual unsigned char GetBoolean(const VOXISpecAttrKey* iKey, int iIndex) const = 0;
  //! 6. Reads a text, as operation 4. @return the empty text when something is wrong.
  virtual VOXUnicodeString GetString(const VOXISpecAttrKey* iKey, int iIndex) const = 0;
  //! 7. Reads an integer, as operation 4.
  virtual std::int32_t GetInteger(const VOXISpecAttrKey* iKey, int iIndex) const = 0;
  //! 8. Reads a feature, as operation 4. @return one reference for the caller; null when something is wrong.
  virtual VOXISpecObject* GetSpecObject(const VOXISpecAttrKey* iKey, int iIndex) const = 0;

  //! 9. Writes a real. @param iKey key of the attribute. @param iValue the value. @param iIndex 0: the single value, or
  //! a new last element of a list; from 1: that element. @return S_OK; E_FAIL for a wrong type or index.
  virtual HRESULT SetDouble(const VOXISpecAttrKey* iKey, double iValue, int iIndex) = 0;
  //! 10. Writes a boolean, as operation 9.
  virtual HRESULT SetBoolean(const VOXISpecAttrKey* iKey, unsigned char iValue, int iIndex) = 0;
  //! 11. Writes a text, as operation 9.
  virtual HRESULT SetString(const VOXISpecAttrKey* iKey, const VOXUnicodeString& iValue, int iIndex) = 0;
  //! 12. Writes an integer, as operation 9.
  virtual HRESULT SetInteger(const VOXISpecAttrKey* iKey, std::int32_t iValue, int iIndex) = 0;

  //! 13. Writes an integer into a single integer attribute. @param iKey key of the attribute. @param iValue the
  //! integer.
  //! @param iMode always 1.
  //! @return S_OK; E_FAIL for an attribute of another type.
  virtual HRESULT PutInteger(const VOXISpecAttrKey* iKey, std::int32_t iValue, int iMode) = 0;

  //! 14. Adds a feature to a list: keeper takes its own. @param iKey key of the list. @param iObject the
  //! feature.
  //! @param iContext always null.
  //! @param iShared always false. @param iMode always 0. @return S_OK; E_FAIL when the attribute is no list of features.
  virtual HRESULT AddSpecObject(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject,
                                VOXBaseUnknown* iContext, bool iShared, int iMode) = 0;

  //! 15. Moves a feature of a list to a position; one past the end of the list moves it to the end.
  //! @return S_OK; E_FAIL when the list does not hold it or iPosition is less than 1.
  virtual HRESULT PlaceSpecObject(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject, int iPosition) = 0;

  //! 16. Makes the attribute local and empty. Components that it held are removed.
  virtual HRESULT Reset(const VOXISpecAttrKey* iKey) = 0;

  //! 17. Number of elements of a list; 0 for any other attribute.
  virtual int GetListSize(const VOXISpecAttrKey* iKey) const = 0;

  //! 18. Position of a feature in a list, from 1; 0 when it is not there.
  virtual int GetPosition(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject) const = 0;

  //! 19. Writes a list of integers; into a single integer attribute, which becomes a list of integers.
  virtual HRESULT SetIntegerList(const VOXISpecAttrKey* iKey, const VOXRawCollint& iValues) = 0;
};

using VOXISpecAttrAccess_var = VOXHandle<VOXISpecAttrAccess>;
