// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXString.h"
#include "ExplicitModel/VOXSamTypes.h"

class VOXAnalysisCharacCollector;
class VOXAnalysisEntityCollector;
class VOXAnalysisExplicitList;
class VOXAnalysisExplicitListUsr;
class VOXAnalysisExplicitModel;

//! Handle on one object of one explicit model, or on nothing. A value: copying and destroying it changes no model.
//!
//! Implemented by: the host's explicit model. The handles form a chain: Data, Child, Parent, Entity; Expression and Axis
//! are children.
//! - Assignment from any handle re-targets this one.
//! - A handle whose object was deleted designates nothing any more. The model must outlive its handles.
class VOX_HOST_API VOXAnalysisExplicitData
{
public:
  VOXAnalysisExplicitData();
  VOXAnalysisExplicitData(const VOXAnalysisExplicitData& iOther);            //!< designates what iOther does
  VOXAnalysisExplicitData& operator=(const VOXAnalysisExplicitData& iOther); //!< re-targets this handle
  ~VOXAnalysisExplicitData();

  //! Whether both designate the same object of the same model, or both nothing. @return 1 or 0.
  unsigned char operator==(const VOXAnalysisExplicitData& iOther) const;
  //! The opposite. @return 1 or 0.
  unsigned char operator!=(const VOXAnalysisExplicitData& iOther) const;

  //! The model that holds the object, borrowed; null for an empty handle.
  VOXAnalysisExplicitModel* GetModel() const;

protected:
  friend class VOXExplicitAccess; // the host's

  VOXAnalysisExplicitModel* _Model; //!< borrowed; null for an empty handle
  VOXSamModelDataRoot* _Object;     //!< borrowed; null for an empty handle
};

//! The empty handle.
extern VOX_HOST_API const VOXAnalysisExplicitData NULL_exp;

//! Handle on an object that has parents: any object of a model.
class VOX_HOST_API VOXAnalysisExplicitChild : public VOXAnalysisExplicitData
{
public:
  VOXAnalysisExplicitChild();
  VOXAnalysisExplicitChild(const VOXAnalysisExplicitData& iOther);            //!< designates what iOther does
  VOXAnalysisExplicitChild& operator=(const VOXAnalysisExplicitData& iOther); //!< re-targets this handle

  //! Physical type number. @param oType untouched on failure. @return S_OK; E_FAIL for an empty handle.
  HRESULT GetPhysicalType(int& oType) const;

  //! Tag, unique in the model, never 0. @param oTag untouched on failure. @return S_OK; E_FAIL for an empty handle.
  HRESULT GetTag(int& oTag) const;

  //! Status bits (VOXSamStatus). @param oStatus untouched on failure. @return S_OK; E_FAIL for an empty handle.
  HRESULT GetStatus(int& oStatus) const;

  //! The parents of the object. @param oParents re-targeted, its cursor before the first; untouched on failure.
  //! @return S_OK; E_FAIL for an empty handle.
  HRESULT GetParentList(VOXAnalysisExplicitList& oParents) const;

  //! Re-targets the handle on the object of that tag; empty when there is none. @return S_OK; E_FAIL for a null model:
  //! the handle is then empty.
  HRESULT LinkWithTag(int iTag, const VOXAnalysisExplicitModel* iModel);

  //! Re-targets the handle on an object. @return S_OK; E_FAIL for a null argument or an object that is not of that
  //! model: the handle is then empty. It is empty, too, whatever the result, for an object that was deleted since its
  //! pointer was handed out: such a pointer can be asked about as long as the model lives.
  HRESULT LinkWithPointer(VOXSamModelDataRoot* const& iObject, const VOXAnalysisExplicitModel* iModel);

  //! Deletes the object, and what only it holds, from its model. @return S_OK: the handle is empty afterwards; E_FAIL
  //! for an empty handle or an object that cannot be deleted: the handle stays as it was.
  HRESULT Delete();
};

//! Handle on an object that can have children, collectors, and a category.
class VOX_HOST_API VOXAnalysisExplicitParent : public VOXAnalysisExplicitChild
{
public:
  VOXAnalysisExplicitParent();
  VOXAnalysisExplicitParent(const VOXAnalysisExplicitData& iOther);            //!< designates what iOther does
  VOXAnalysisExplicitParent& operator=(const VOXAnalysisExplicitData& iOther); //!< re-targets this handle

  //! Category of the object. @param oCategory untouched on failure. @return S_OK; E_FAIL for an empty handle.
  HRESULT GetCategory(VOXSamValue& oCategory) const;

  //! All children, in the order in which they came. @param oChildren re-targeted, its cursor before the first;
  //! untouched on failure. An object without children gives a list of none, not the empty handle.
  //! @return S_OK; E_FAIL for an empty handle.
  HRESULT GetChildrenList(VOXAnalysisExplicitList& oChildren) const;

  //! The children that pass a filter, appended to a list that was created in the same model.
  //! @param ioChildren the list. @param iCompare, iValue the filter: an int, of which iCompare tells the meaning.
  //! @param iRecursive, iUnique always false. @return S_OK; E_FAIL for an empty handle or list: nothing is appended.
  HRESULT GetChildrenList(VOXAnalysisExplicitListUsr& ioChildren, VOXSamCompareType iCompare, const void* iValue,
                          unsigned char iRecursive, unsigned char iUnique) const;

  //! The entity collector of that definition that is attached to this object.
  //! @param iValue, iName value kind and name of the definition.
  //! @param oCollector borrowed; null when there is none, and on failure. @return S_OK; E_FAIL for an empty handle.
  HRESULT FindEntityCollector(const VOXSamValue& iValue, const VOXString& iName,
                              VOXAnalysisEntityCollector*& oCollector) const;

  //! Deletes one charac collector of this object. @param ioCollector null afterwards; untouched on failure.
  //! @return S_OK; E_FAIL when it is not a collector of this object.
  HRESULT DeleteCharacCollector(const VOXAnalysisCharacCollector*& ioCollector);

  //! Deletes all charac collectors of this object. @return S_OK; E_FAIL for an empty handle.
  HRESULT DeleteAll();
};

//! Handle on an entity: a parent that applies to objects of the model.
class VOX_HOST_API VOXAnalysisExplicitEntity : public VOXAnalysisExplicitParent
{
public:
  VOXAnalysisExplicitEntity();
  VOXAnalysisExplicitEntity(const VOXAnalysisExplicitData& iOther);            //!< designates what iOther does
  VOXAnalysisExplicitEntity& operator=(const VOXAnalysisExplicitData& iOther); //!< re-targets this handle

  //! What the entity applies to.
  //! @param oCount number of objects; 0 on failure.
  //! @param oObjects array of oCount model objects, caller frees with array delete; null when oCount is 0 and on failure.
  //! @param oPosition where on the objects; untouched on failure.
  //! @param oIndices for faces and edges the side of each object, counted as in the element's definition from 1; caller
  //! frees with array delete; null when whole objects are meant, and on failure.
  //! @param oQualifiers per object; caller frees with array delete; null when all are VOXSamApplyWhole, and on failure.
  //! @param iMode always 0. @return S_OK; E_FAIL for an empty handle or no memory.
  HRESULT GetApplyTo(int& oCount, VOXSamModelDataRoot**& oObjects, VOXSamPosition& oPosition, int*& oIndices,
                     VOXSamApplyQualifier*& oQualifiers, unsigned char iMode) const;
};

//! Handle on an expression.
class VOX_HOST_API VOXAnalysisExplicitExpression : public VOXAnalysisExplicitChild
{
public:
  VOXAnalysisExplicitExpression();
  VOXAnalysisExplicitExpression(const VOXAnalysisExplicitData& iOther);            //!< designates what iOther does
  VOXAnalysisExplicitExpression& operator=(const VOXAnalysisExplicitData& iOther); //!< re-targets this handle
};

//! Handle on an axis system.
class VOX_HOST_API VOXAnalysisExplicitAxis : public VOXAnalysisExplicitChild
{
public:
  VOXAnalysisExplicitAxis();
  VOXAnalysisExplicitAxis(const VOXAnalysisExplicitData& iOther);            //!< designates what iOther does
  VOXAnalysisExplicitAxis& operator=(const VOXAnalysisExplicitData& iOther); //!< re-targets this handle
};
