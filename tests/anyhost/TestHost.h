// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisCore/ErrorDepthHandler.h"
#include "ExplicitModel/VOXAnalysisExplicitModel.h"
#include "ObjectModeler/VOXIContainer.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

//! What the tests of this folder need of a host beside its contracts. Supplied once per host; everything else is done
//! through the contracts.
namespace anyhost
{

//! Interfaces that features of a type carry beside those of every feature: VOXISpecObject, VOXISpecAttrAccess, VOXIAlias,
//! VOXILinkableObject.
enum Role : unsigned
{
  kExplicit = 1,        //!< VOXISamExplicit: its tags are the integers of the attribute "ExplicitTag"
  kEntity = 2,          //!< VOXISamAnalysisEntity: a role is the attribute of that name
  kSet = 4,             //!< VOXISamAnalysisSet: its members are the features in the attribute "SonsList"
  kBasicComponent = 8,  //!< VOXISamBasicComponent: its sub-components stand in the attribute "SonsList"
  kSupport = 16,        //!< VOXISamAnalysisSupport: the features in the attribute "Supports"
  kMeshPartFilter = 32, //!< VOXISamMeshPartFilter: the features in the attribute "Designers"
  kModelFactory = 64    //!< VOXISamAnalysisModelFactory
};

//! A component that a start-up holds, and each of its instances with it.
struct Component
{
  std::string name;
  std::string type;
};

struct Attribute
{
  std::string name;
  int type; //!< VOXSpecAttrType
  int elementType = 0;
  std::vector<Component> components{};
};

//! A feature type: its name is the late type of its features and the name of its start-up.
struct Type
{
  std::string name;
  unsigned roles = 0;
  std::string physicalType{};
  std::vector<Attribute> attributes{};
  std::vector<std::string> entries{}; //!< of a basic component: its value is a parameter of this enumeration
};

//! An error report that reached the host.
struct Report
{
  VOXSamErrorType kind;
  std::string text;
  std::string file;
  int number;
};

//! Which feature made an object of the model, as VOXAnalysisExplicitServices was told.
struct Maker
{
  short kind;
  unsigned int identifier;
};

//! A document and its explicit model. What it hands out is borrowed; destroying it destroys all of it.
//! The rules of the model know MESH, NODE, ELEMENT, AXIS, EXPRESSION; NODE_GROUP, EDGE_GROUP, FACE_GROUP, ELEMENT_GROUP
//! under GROUP; GROUP under GROUP_SET, AXIS under AXIS_SET, DISTRIBUTED_LOAD under LOAD_SET, DISPLACEMENT under
//! RESTRAINT_SET; and these sets under ANALYSIS_MODEL.
class World
{
public:
  //! @param iTypes the same at each call, a component's type before what holds it.
  static std::unique_ptr<World> Make(const std::vector<Type>& iTypes);
  virtual ~World() = default;

  virtual VOXBaseUnknown* NewFeature(const char* iType, const char* iName) = 0;
  virtual VOXIContainer* Container() = 0;

  virtual VOXAnalysisExplicitModel* Model() = 0;

  //! Makes an object of the model. @param iParent the empty handle for an object at the top.
  virtual VOXAnalysisExplicitEntity NewObject(const VOXAnalysisExplicitData& iParent, const char* iPhysicalType) = 0;

  //! Gives an object of type MESH its nodes and elements, numbered from 1. Once for a model.
  virtual void FillMesh(const VOXAnalysisExplicitData& iMesh, int iNodes, int iElements) = 0;
  virtual VOXAnalysisExplicitChild Node(int iNumber) = 0;
  virtual VOXAnalysisExplicitChild Element(int iNumber) = 0;

  //! Says what an entity applies to: nodes for VOXSamPositionNode, else elements. @param iSides none for whole objects.
  virtual void SetApplyTo(const VOXAnalysisExplicitData& iEntity, VOXSamPosition iPosition,
                          const std::vector<int>& iNumbers, const std::vector<int>& iSides) = 0;

  //! Says that an object changed.
  virtual void Touch(const VOXAnalysisExplicitData& iObject) = 0;

  virtual void SetStatus(const VOXAnalysisExplicitData& iObject, int iStatus) = 0;
  virtual Maker MakerOf(const VOXAnalysisExplicitData& iObject) = 0;
};

//! The reports since the last call, oldest first.
std::vector<Report> TakeReports();

//! Makes a call that ends in a fatal error, without ending the test. @return text of the error; empty when there was none.
std::string FatalTextOf(const std::function<void()>& iCall);

//! Number of objects of the host that live: components, extension objects, collectors, archivers, created lists.
long LiveObjects();

} // namespace anyhost
