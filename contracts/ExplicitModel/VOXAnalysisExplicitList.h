// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisExplicitData.h"

//! Cursor over the children or the parents of one object, filled by the model. Implemented by: the host's explicit model.
//! - As a handle it designates the object whose contents it lists; a list that nobody filled is the empty handle.
//! - Past the end the current item is the empty handle. What is added while the cursor moves is seen.
class VOX_HOST_API VOXAnalysisExplicitList : public VOXAnalysisExplicitData
{
public:
  //! An empty list.
  VOXAnalysisExplicitList();

  //! The children of the given object; the items of the given list.
  explicit VOXAnalysisExplicitList(const VOXAnalysisExplicitData& iOwner);
  //! Lists those instead; the cursor stands before the first.
  VOXAnalysisExplicitList& operator=(const VOXAnalysisExplicitData& iOwner);

  //! Moves the cursor to the first item. @return this list.
  VOXAnalysisExplicitList& First();

  //! Moves the cursor to the next item. @return this list.
  VOXAnalysisExplicitList& Next();

  //! The current item; borrowed: it changes when the cursor moves.
  const VOXAnalysisExplicitChild& operator*() const;

  //! Number of items. @param iMode always 0.
  int GetLength(unsigned char iMode) const;

  //! The items as model objects. @param oCount their number; untouched on failure. @param oObjects caller frees with
  //! array delete; null when there is none; untouched on failure. @return S_OK; E_FAIL for an empty list or no memory.
  HRESULT GetContents(int& oCount, VOXSamModelDataRoot**& oObjects) const;

protected:
  friend class VOXExplicitAccess; // the host's

  int _Kind;                         //!< what of the designated object is listed
  int _Cursor;                       //!< place of the current item
  VOXAnalysisExplicitChild _Current; //!< the current item; empty past the end
};

//! List that its user creates in a model, fills, and must delete from the model again. Copies designate the same list.
class VOX_HOST_API VOXAnalysisExplicitListUsr : public VOXAnalysisExplicitList
{
public:
  VOXAnalysisExplicitListUsr();
  VOXAnalysisExplicitListUsr(const VOXAnalysisExplicitListUsr& iOther);            //!< designates the same list
  VOXAnalysisExplicitListUsr& operator=(const VOXAnalysisExplicitListUsr& iOther); //!< designates the same list
  VOXAnalysisExplicitListUsr& operator=(const VOXAnalysisExplicitData& iOther); //!< as that of VOXAnalysisExplicitList

  //! Makes an empty list in a model. @return S_OK; E_FAIL for a null model: the handle stays as it was.
  HRESULT CreateList(const VOXAnalysisExplicitModel* iModel);

  //! Moves the cursor to the first item. @param iCheck true skips items whose object was deleted. @return this list.
  VOXAnalysisExplicitListUsr& First(unsigned char iCheck);

  //! Moves the cursor to the next item. @param iCheck true skips items whose object was deleted. @return this list.
  VOXAnalysisExplicitListUsr& Next(unsigned char iCheck);

  //! Appends one object. @return S_OK; E_FAIL when the list or iItem is empty.
  HRESULT Append(const VOXAnalysisExplicitData& iItem);

  //! Appends the items of a list. @param iItems the list. @param iUnique true leaves out what is there already.
  //! @return S_OK; E_FAIL when either list is the empty handle: nothing is appended.
  HRESULT Insert(VOXAnalysisExplicitList& iItems, unsigned char iUnique);

  //! Deletes the list from its model; its items stay. @return S_OK: the handle is empty afterwards; E_FAIL for an empty
  //! handle: it stays as it was.
  HRESULT Delete();
};
