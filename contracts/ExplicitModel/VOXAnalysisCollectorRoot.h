// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXUnicodeString.h"
#include "ExplicitModel/VOXAnalysisExplicitData.h"

struct VOXCollectorData;

//! Base of the collectors: objects that gather entities of a model, or values on them. Implemented by: the host.
//!
//! - Reference counted, born with count 0. When a `Release` brings the count to 0 the collector is destroyed.
//! - A collector that is attached to its model is found again by its definition. The model keeps one reference of its
//!   own on it.
//! - `RequestDelayedDestruction(1)` detaches an attached collector at once, so that it is found no more; the model's own
//!   reference passes to whoever asked, who gives it back with `Release`. Other borrowers keep theirs.
//! - Made with the plain global operator new.
//!
//! The virtual operations come in this order, the deleting destructor first.
class VOX_HOST_API VOXAnalysisCollectorRoot
{
public:
  VOXAnalysisCollectorRoot();
  VOXAnalysisCollectorRoot(const VOXAnalysisCollectorRoot&) = delete;
  VOXAnalysisCollectorRoot& operator=(const VOXAnalysisCollectorRoot&) = delete;

  //! 1. Detaches the collector and frees what it holds.
  virtual ~VOXAnalysisCollectorRoot();

  //! 2. Writes a description on the debug trace. @param iIndent blanks before each line. @param iFirst, iCount which
  //! entities are listed.
  virtual void Dump(int iIndent, int iFirst, int iCount) const = 0;

  //! 3. As 2, appended to a list of lines.
  virtual void Dump(VOXListValVOXUnicodeString* ioLines, int iIndent, int iFirst, int iCount) const = 0;

  //! 4. The parent that the collector stands under. @param oContext empty when there is none. @return S_OK.
  virtual HRESULT GetContext(VOXAnalysisExplicitParent& oContext) const;

  //! 5. Puts the collector under a parent. @param iContext may be the empty handle. @param iKeepEntities 0 drops the
  //! entities, 1 keeps them. @return S_OK; E_FAIL while the collector is attached to another parent.
  virtual HRESULT SetContext(const VOXAnalysisExplicitParent& iContext, unsigned char iKeepEntities);

  //! 6. Number of entities. @param oNumber set on S_OK. @return S_OK.
  virtual HRESULT GetNbEntities(int& oNumber) const;

  //! 7. Makes room for that many entities, all of them null. @return S_OK; E_FAIL for a negative number or no memory.
  virtual HRESULT SetNbEntities(int iNumber);

  //! 8. The entities. @param oCount their number. @param oObjects borrowed array of oCount model objects; null when
  //! there is none. @param oIndices borrowed array of the side of each; null when whole objects are meant. @return S_OK.
  virtual HRESULT GetEntities(int& oCount, VOXSamModelDataRoot* const*& oObjects, const int*& oIndices) const;

  //! 9. Gives the collector copies of these arrays; iIndices may be null. @return S_OK; E_FAIL for a negative count, a
  //! null array with a count, or no memory: the entities are then as they were.
  virtual HRESULT SetEntities(int iCount, VOXSamModelDataRoot* const* iObjects, const int* iIndices);

  //! 10. Whether nothing changed under the collector's context since it was filled. @return 1 or 0; either one without a
  //! context, which the adaptors never ask for.
  virtual unsigned char IsUpToDate() const;

  //! 11. Whether the collector can be stored with its document. @return 1 or 0.
  virtual unsigned char IsStreamable() const;

  //! Takes one reference. @return the count afterwards.
  int AddRef() const;

  //! Gives one reference back; at 0 the collector is destroyed. @return the count afterwards.
  int Release() const;

  //! Asks for destruction as soon as nobody needs the collector. @param iRequest 1 to ask, 0 to take it back.
  void RequestDelayedDestruction(unsigned char iRequest);

  //! Whether the collector is attached to its model. @return 1 or 0.
  unsigned char IsAttachedToModel() const;

  //! Attaches the collector to its context, or detaches it. @param iAttach 1 or 0. @param iObject an object of the
  //! model in place of the context; null for the context itself. @param iMode always 0.
  //! The model takes a reference of its own when it is attached, and gives it back when it is detached, which may destroy
  //! the collector. @return S_OK; E_FAIL when attached without a context; then nothing changes.
  HRESULT SetAttachedToModel(unsigned char iAttach, VOXSamModelDataRoot* iObject, unsigned char iMode);

protected:
  friend class VOXExplicitAccess; // the host's

  VOXCollectorData* _Data; //!< the host's
};
