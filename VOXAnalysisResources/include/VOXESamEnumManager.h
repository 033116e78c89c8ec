// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamSelectionList.h"
#include "ComponentRuntime/VOXMetaClass.h"
#include "VOXAnalysisResources.h"

//! Selection list of a basic component whose value is a knowledge parameter: offers the entries of an enumeration, and
//! reconciles the sub-components with a new selection. Carries the operations of VOXISamSelectionList and is reached
//! through a tie. Its description names the late type "SAMListManager"; the tie is declared by the feature type.
//!
//! - Entries are counted from 1; 0 is none of them.
//! - No operation reports an error. E_FAIL: the component is no basic component; of operations 3 and 4 also: it fails
//!   to give its value. One that has no value has nothing selected, and is no failure.
class VOX_ANALYSIS_API VOXESamEnumManager : public VOXBaseUnknown
{
public:
  VOXESamEnumManager();
  ~VOXESamEnumManager() override;
  VOXESamEnumManager(const VOXESamEnumManager&) = delete;
  VOXESamEnumManager& operator=(const VOXESamEnumManager&) = delete;

  //! The class's own description, registered at the first request. Borrowed; null when the runtime cannot register it:
  //! identifier and name are then those of VOXBaseUnknown, the class test answers 0.
  static VOXMetaClass* MetaObject();
  static const IID& ClassId();    //!< identifier in the description above
  static const char* ClassName(); //!< name in the description above
  VOXMetaClass* GetMetaObject() const override;
  const char* IsA() const override;
  int IsAKindOf(const char* iName) const override;

  //! @return a new object, one reference for the caller; null when there is no memory.
  static VOXBaseUnknown* CreateItself();

  //! 1. How the value is chosen: from the list for an enumeration, else freely. @param oMode untouched on failure.
  //! @return S_OK; E_FAIL.
  virtual HRESULT GetMode(VOXSamSelectionMode& oMode);

  //! 2. The entries of the enumeration; none for a value of another type. @param oList emptied first, on failure too.
  //! @return S_OK; E_FAIL.
  virtual HRESULT GetList(VOXListValVOXUnicodeString& oList);

  //! 3. The selected entry. @param oValue untouched without parameter or value. @param oIndex preset to 0.
  //! @return S_OK; E_FAIL.
  virtual HRESULT GetSelected(VOXUnicodeString& oValue, int& oIndex);

  //! 4. Selects an entry: writes the parameter, asks operation 5 what the entry needs, removes the sub-components that
  //! are not wanted any more and creates those that are missing. Nothing is done for the entry that is selected already,
  //! except the first time. What the parameter refuses leaves it as it was: the rest is then done for its old entry.
  //! @return S_OK, whatever became of parameter and sub-components; E_FAIL.
  virtual HRESULT SetSelected(int iIndex);

  //! 5. The sub-components that an entry needs, at the same positions of three empty lists of which the sizes must agree
  //! (asserted). A feature type overrides it. @return S_OK, nothing done.
  virtual HRESULT GetResult(const VOXUnicodeString& iValue, VOXListValVOXUnicodeString& oFeatureType,
                            VOXListValVOXUnicodeString& oSecond, VOXListValVOXBaseUnknown_var& oListOfVOXICkeType);

private:
  // Creates one sub-component per position of the lists.
  void Instanciate(VOXListValVOXUnicodeString& iFeatureType, VOXListValVOXUnicodeString& iSecond,
                   VOXListValVOXBaseUnknown_var& iListOfVOXICkeType);

  // Does nothing; other people's compiled code knows it.
  void GetStringValuesList(VOXListValVOXUnicodeString& ioList);

  static VOXMetaClass* meta_object; // null until it is asked for

  bool _FirstSelection; // true until the first selection that did its work
};
