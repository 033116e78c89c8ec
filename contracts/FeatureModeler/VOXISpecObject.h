// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListVal.h"
#include "ObjectModeler/VOXIContainer.h"
#include "ObjectModeler/VOXIDomain.h"

#include <cstdint>

class VOXISpecObject;
class VOXListPtrVOXSpecPointing;

inline constexpr IID IID_VOXISpecObject = VOXGuidOfName("VOXISpecObject");
using VOXISpecObject_var = VOXHandle<VOXISpecObject>;

//! A feature: one node of the document's tree.
//!
//! Implemented by: the host's feature modeler. Called by: adaptors and feature types.
//! - An instance is made from a start-up (prototype), which gives it its default values and components. A start-up is a
//!   feature as well, and has no start-up of its own. The components that a start-up holds are start-ups, too.
//! - A feature lives in one container and has at most one father: the feature or container that holds it.
//! - The time stamp grows with every change of the feature.
class VOX_HOST_API VOXISpecObject : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISpecObject)

  //! 1. Type test: whether the feature's type is iType or derives from it. @return 1 or 0.
  virtual int IsSubTypeOf(const VOXUnicodeString& iType) const = 0;

  //! 2. Whether the feature is up to date in a domain. @param iDomain empty for the whole document. @return 1 or 0.
  virtual unsigned char IsUpToDate(const VOXIDomain_var& iDomain) const = 0;

  //! 3. Brings the feature up to date. @param iDomain empty for the whole document. @return S_OK; E_FAIL when its update
  //! failed: it then stays out of date.
  virtual HRESULT Update(const VOXIDomain_var& iDomain) = 0;

  //! 4. The start-up that the feature was made from. @return one reference for the caller; null for a start-up.
  virtual VOXISpecObject* GetStartUp() const = 0;

  //! 5. The container that holds the feature. @param oContainer untouched on failure; on S_OK the handle holds its own
  //! reference. @return S_OK; E_FAIL for a feature that is in no container.
  virtual HRESULT GetContainer(VOXIContainer_var& oContainer) const = 0;

  //! 6. The object that holds the feature. @param oFather untouched on failure; on S_OK the handle holds its own
  //! reference, on a face of the father. @return S_OK; E_FAIL when nothing holds the feature.
  virtual HRESULT GetFather(VOXBaseUnknown_var& oFather) const = 0;

  //! 7. The object that holds the feature. @return one reference for the caller; null when nothing holds the feature.
  virtual VOXBaseUnknown* GetFatherObject() const = 0;

  //! 8. Makes an instance of this start-up. @param iName its name; empty for a name of the host's choice.
  //! @param iContainer where it is kept. @param iContext always null.
  //! @return one reference for the caller; null when it could not be made.
  virtual VOXISpecObject* Instantiate(const VOXUnicodeString& iName, const VOXIContainer_var& iContainer,
                                      VOXBaseUnknown* iContext) = 0;

  //! 9. Name of the feature; empty when it has none.
  virtual VOXUnicodeString GetName() const = 0;

  //! 10. String that identifies the feature among the components of its father; its name unless it was set.
  virtual VOXUnicodeString GetIdentifyingString() const = 0;

  //! 11. Sets the identifying string.
  virtual void SetIdentifyingString(const VOXUnicodeString& iString) = 0;

  //! 12. Time stamp of the last change.
  virtual std::int32_t GetTimeStamp() const = 0;

  //! 13. The attributes, anywhere in the document, that refer to this feature or hold it; a list once for each time.
  //! @param ioPointings what is found is appended; caller deletes every entry.
  virtual HRESULT GetPointings(VOXListPtrVOXSpecPointing& ioPointings) const = 0;

  //! 14. Removes a component of this feature, wherever an attribute of the feature holds it.
  //! @param iComponent the component. @param iMode always 0. @return S_OK; E_FAIL when the feature does not hold it.
  virtual HRESULT RemoveComponent(const VOXBaseUnknown_var& iComponent, int iMode) = 0;

  //! 15. Hands this component over to another feature: it leaves the attribute iFromAttribute of its father and goes to
  //! the end of the attribute iToAttribute of iNewFather.
  virtual HRESULT HandOver(const VOXUnicodeString& iFromAttribute, const VOXISpecObject_var& iNewFather,
                           const VOXUnicodeString& iToAttribute) = 0;

  //! 16. The feature that this one stands for (of a basic component: its start-up's component).
  //! @return one reference for the caller; null when there is none.
  virtual VOXISpecObject* GetRelatedObject() const = 0;

  //! 17. The component that makes features in the analysis model of this feature. @return borrowed; null when there is
  //! none.
  virtual VOXBaseUnknown* GetModelFactory() const = 0;

  //! 18. Withdraws what the feature subscribed to. @param iMode always 0.
  virtual HRESULT Unsubscribe(int iMode) = 0;
};
