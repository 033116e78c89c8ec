// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisExplicitModel.h"
#include "host/ExplicitModel/ExplicitRules.h"
#include "host/ExplicitModel/MeshData.h"
#include "host/ExplicitModel/ModelObject.h"

#include <memory>
#include <vector>

class VOXAnalysisCollectorRoot;
class VOXAnalysisCollectorArchiver;
struct VOXArchiverData;
struct VOXCollectorData;

namespace voxhost
{

//! The reference explicit model.
//!
//! - Nodes and elements are heads of eight bytes in one block each; the rest of them stands in the arrays of the mesh
//!   data. Everything else is a record.
//! - A tag tells the kind: records count from 1, nodes and elements follow their places from a base of their own. So a
//!   tag leads to its object by arithmetic, whatever the size of the model.
//! - Deleted records stay as tombstones until the model dies: no handle ever dangles before that.
class VOX_HOST_API ExplicitModel : public VOXAnalysisExplicitModel
{
public:
  //! @param iRules null for a model without rules data.
  explicit ExplicitModel(std::shared_ptr<const ExplicitRules> iRules = ExplicitRules::Default());
  ~ExplicitModel();

  //! Creates an object of a physical type of the rules data.
  //! @param iParent what it goes under; the empty handle for none. @return the empty handle for an unknown type.
  VOXAnalysisExplicitEntity Create(const VOXAnalysisExplicitData& iParent, const std::string& iPhysicalType,
                                   const std::string& iName);

  //! Puts an object under a further parent. @return false when either is empty or it is there already.
  bool AddChild(const VOXAnalysisExplicitData& iParent, const VOXAnalysisExplicitData& iChild);

  //! Gives the model its mesh, under one object; what it had before must not be referred to any more.
  //! @return false for an empty handle, or more nodes or elements than tags can tell apart.
  bool SetMesh(const VOXAnalysisExplicitData& iOwner, MeshData iMesh);
  const MeshData& Mesh() const { return _Mesh; }

  //! Sets what an entity applies to. @return false for an empty handle or a place outside of the mesh.
  bool SetApplyTo(const VOXAnalysisExplicitData& iEntity, ApplyTo iApplyTo);
  bool SetStatus(const VOXAnalysisExplicitData& iObject, int iStatus);
  bool SetExpression(const VOXAnalysisExplicitData& iObject, ExpressionData iExpression);
  bool SetAxis(const VOXAnalysisExplicitData& iObject, const AxisData& iAxis);

  //! Says that an object changed: collectors below it and its ancestors are out of date.
  void Touch(const VOXAnalysisExplicitData& iObject);

  //! Whether the model has a global axis system; it has one at the start.
  void SetGlobalFrame(bool iHasOne);

  //! Makes an axis object that stands already the global axis system; null for none.
  void DesignateGlobalFrame(VOXSamModelDataRoot* iFrame) { _GlobalFrame = iFrame; }

  //! The object of an id, the empty handle when there is none.
  VOXAnalysisExplicitChild FindNode(std::int32_t iId) const;
  VOXAnalysisExplicitChild FindElement(std::int32_t iId) const;

  //! The record behind a handle, borrowed; null for an empty handle, a node or an element.
  const Record* RecordOf(const VOXAnalysisExplicitData& iObject) const;

  //! Number of records, tombstones included.
  std::size_t RecordCount() const { return _Records.size(); }

  // What the contract's classes work with.
  const ExplicitRules* Rules() const { return _Rules.get(); }
  bool Owns(const VOXSamModelDataRoot* iObject) const;
  VOXSamModelDataRoot* FindTag(int iTag) const;
  int TagOf(const VOXSamModelDataRoot& iObject) const;
  int PhysicalTypeOf(const VOXSamModelDataRoot& iObject) const;
  static Record* RecordAt(const VOXSamModelDataRoot& iObject) //!< null for nodes and elements
  {
    const bool isRecord = iObject.Kind() == ObjectKind::Record || iObject.Kind() == ObjectKind::UserList;
    return isRecord ? reinterpret_cast<Record*>(const_cast<VOXSamModelDataRoot*>(&iObject)) : nullptr;
  }
  Record& NewRecord(ObjectKind iKind);
  void Kill(Record& ioRecord);
  void Touch(Record& ioRecord);
  VOXSamModelDataRoot* NodeBlock() const { return _Nodes.get(); }
  VOXSamModelDataRoot* ElementBlock() const { return _Elements.get(); }
  VOXSamModelDataRoot* MeshOwner() const { return _MeshOwner; }
  VOXSamModelDataRoot* GlobalFrame() const { return _GlobalFrame; }

private:
  std::shared_ptr<const ExplicitRules> _Rules;
  std::vector<std::unique_ptr<Record>> _Records;
  MeshData _Mesh;
  std::unique_ptr<VOXSamModelDataRoot[]> _Nodes;
  std::unique_ptr<VOXSamModelDataRoot[]> _Elements;
  VOXSamModelDataRoot* _MeshOwner = nullptr;
  VOXSamModelDataRoot* _GlobalFrame = nullptr;
  int _NodeType = VOXSamPhysicalTypeNone;
  int _ElementType = VOXSamPhysicalTypeNone;
};

} // namespace voxhost

//! The one door into handles and lists for the host.
class VOX_HOST_API VOXExplicitAccess
{
public:
  //! The object that a handle designates, borrowed; null for an empty handle or a deleted object.
  static VOXSamModelDataRoot* Object(const VOXAnalysisExplicitData& iHandle);
  static voxhost::ExplicitModel* Model(const VOXAnalysisExplicitData& iHandle);
  static void Target(VOXAnalysisExplicitData& ioHandle, voxhost::ExplicitModel* iModel, VOXSamModelDataRoot* iObject);

  //! The record that a handle designates, borrowed; null for anything else.
  static voxhost::Record* RecordOf(const VOXAnalysisExplicitData& iHandle);

  static void FillList(VOXAnalysisExplicitList& ioList, const VOXAnalysisExplicitData& iOwner, int iKind);
  static int KindOf(const VOXAnalysisExplicitList& iList);

  //! What the host keeps of a collector.
  static VOXCollectorData& DataOf(const VOXAnalysisCollectorRoot& iCollector);
  //! Takes a collector from the object that it is attached to; the model's reference stays on it.
  static void Detach(VOXAnalysisCollectorRoot& ioCollector);
  static const VOXArchiverData& DataOf(const VOXAnalysisCollectorArchiver& iArchiver);
};
