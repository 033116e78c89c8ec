// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXGuid.h"
#include "ComponentRuntime/VOXHostExport.h"
#include "ComponentRuntime/VOXResult.h"

#include <cstddef>
#include <cstdint>

class VOXMetaClass;
class VOXSysChangeComponentStateContext;
class VOXTypeInfo;
struct VOXComponentRecord;
struct VOXDispatchParameters;

//! States of a component that `ChangeComponentState` tells about.
enum ComponentState : int
{
  VOXStateIdle = 0,
  VOXStateActive = 1,
  VOXStateClosing = 2
};

//! Base of every component and of every interface.
//!
//! Implemented by: the host's component runtime. Called by: everybody.
//! - A component is one implementation object and its extension objects. Each of them is a face of the component.
//! - Querying any face reaches every other face, and the same question answers with the same object.
//! - All faces of one component share one reference count; an object without a component counts for itself.
//! - An object is born with one reference, which belongs to its creator. At zero it frees itself.
//! - Everything is called from one thread, the host's application thread.
//!
//! The 17 operations below come first in every virtual table, in this order. The destructor is one operation (and two
//! entries of the tables that our compilers lay out).
class VOX_HOST_API VOXBaseUnknown
{
public:
  //! 1. The face of this component that carries an interface: its address as VOXBaseUnknown, with which every interface
  //! begins.
  //! @param iInterface identifier of the interface.
  //! @param oFace preset to null. On S_OK: the interface pointer, one reference for the caller.
  //! @return S_OK; E_NOINTERFACE if the component has no such interface; E_INVALIDARG if oFace is null.
  virtual HRESULT QueryInterface(const IID& iInterface, void** oFace);

  //! 2. Takes one reference. @return the count afterwards.
  virtual unsigned long AddRef();

  //! 3. Gives one reference back; at zero the component frees all its faces. @return the count afterwards.
  virtual unsigned long Release();

  //! 4. Automation: number of type descriptions. @param oCount set to 0. @return E_NOTIMPL.
  virtual HRESULT GetTypeInfoCount(unsigned int* oCount);

  //! 5. Automation: a type description. @param iIndex, iLocale not looked at. @param oInfo set to null.
  //! @return E_NOTIMPL.
  virtual HRESULT GetTypeInfo(unsigned int iIndex, unsigned long iLocale, VOXTypeInfo** oInfo);

  //! 6. Automation: numbers of named members. @return E_NOTIMPL, nothing written.
  virtual HRESULT GetIDsOfNames(const IID& iReserved, wchar_t** iNames, unsigned int iCount, unsigned long iLocale,
                                long* oNumbers);

  //! 7. Automation: calls a member by number. @return E_NOTIMPL, nothing written.
  virtual HRESULT Invoke(long iMember, const IID& iReserved, unsigned long iLocale, unsigned short iFlags,
                         VOXDispatchParameters* ioParameters);

  //! 8. The face of this component that carries the interface of that name.
  //! @return one reference for the caller; null if the component has no such interface.
  virtual VOXBaseUnknown* QueryInterface(const char* iInterfaceName) const;

  //! 9. Destroys this face alone. Called by the runtime, when the last reference is given back.
  virtual ~VOXBaseUnknown();

  //! 10. Description of the class: for an implementation object that of its late type. Borrowed, never null.
  virtual VOXMetaClass* GetMetaObject() const;

  //! 11. Name of the class: for an implementation object its late type. Borrowed, lives as long as the process.
  virtual const char* IsA() const;

  //! 12. Class test by name, along the late types for an implementation object. @return 1 or 0.
  virtual int IsAKindOf(const char* iName) const;

  //! 13. The implementation object of the component, borrowed. An object without a component is its own.
  //! @param iMode always 0.
  virtual VOXBaseUnknown* GetImpl(int iMode = 0) const;

  //! 14. Makes this object a face of the component of iImplementation; null detaches it. No references change hands.
  //! @return the implementation object so far, borrowed; null if there was none.
  virtual VOXBaseUnknown* SetImpl(VOXBaseUnknown* iImplementation);

  //! 15. Whether this object stands for nothing. @return 0 for every object of the runtime.
  virtual int IsNull() const;

  //! 16. Whether both are faces of one component. @return 1 or 0; 0 for null.
  virtual int IsEqual(const VOXBaseUnknown* iOther) const;

  //! 17. Tells the object that its component changes state. @return S_OK, nothing done.
  virtual HRESULT ChangeComponentState(ComponentState iFrom, ComponentState iTo,
                                       const VOXSysChangeComponentStateContext* iContext);

  //! One reference, no component.
  VOXBaseUnknown();

  //! A copy is an object of its own: one reference, no component. The count of the original is not copied.
  VOXBaseUnknown(const VOXBaseUnknown& iOther);

  //! Keeps count and component of the left side.
  VOXBaseUnknown& operator=(const VOXBaseUnknown& iOther);

  //! Memory for a component object; null when there is none (the constructor is then not run).
  static void* operator new(std::size_t iSize) noexcept;
  static void operator delete(void* iMemory); //!< gives that memory back

  //! Description of this class, borrowed.
  static VOXMetaClass* MetaObject();
  static const IID& ClassId();    //!< identifier of this class, borrowed
  static const char* ClassName(); //!< name of this class, borrowed

private:
  friend class VOXComponentRuntime; // the host's, which fills the two pointers below

  VOXBaseUnknown* _Implementation; // of an extension: the implementation object that it extends; else null
  VOXComponentRecord* _Record;     // of an implementation object: its late type and its extensions; else null
  std::uint64_t _Count;            // references; unused while _Implementation is set
};

// Deriving classes are laid out on this size: a smaller class, or tail padding, would move their members.
static_assert(sizeof(VOXBaseUnknown) == 32, "the base of every component object takes 32 bytes");

inline constexpr IID IID_VOXBaseUnknown = VOXGuidOfName("VOXBaseUnknown");
inline constexpr CLSID CLSID_VOXBaseUnknown = IID_VOXBaseUnknown;

//! Gives an interface class its static name and identifier. Written first in every interface.
#define VOX_INTERFACE(Name)                                                                                            \
public:                                                                                                                \
  static const char* ClassName()                                                                                       \
  {                                                                                                                    \
    return #Name;                                                                                                      \
  }                                                                                                                    \
  static const IID& ClassId()                                                                                          \
  {                                                                                                                    \
    return IID_##Name;                                                                                                 \
  }
