// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisCharacCollector.h"
#include "ExplicitModel/VOXAnalysisCollectorArchiver.h"
#include "ExplicitModel/VOXAnalysisExplicitModel.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace otherhost
{

class Model;

//! The rules of every model of this host. Types without a number of the contract are numbered from 100 on.
class Rules : public VOXAnalysisExplicitRulesData
{
public:
  struct Type
  {
    VOXSamValue category;
    std::vector<int> children; // negative where at most one is allowed
  };

  Rules();
  static const Rules& Of(const VOXAnalysisExplicitRulesData& iRules) { return static_cast<const Rules&>(iRules); }
  const Type* Find(int iNumber) const;

  std::map<std::string, int> numbers;
  std::map<int, Type> types;
};

} // namespace otherhost

//! An object of a model, whatever it is: a node, an element, an entity, a set, a list.
struct VOXSamModelDataRoot
{
  otherhost::Model* model;
  int tag;
  int type;
  VOXSamValue category = VOXSamValueUnknown;
  int status = VOXSamStatusNone;
  bool isGone = false; // deleted; the memory stays until the model goes, so that no handle dangles
  bool isList = false; // its children are its items
  std::vector<VOXSamModelDataRoot*> parents{};
  std::vector<VOXSamModelDataRoot*> children{};

  VOXSamPosition position = VOXSamPositionUnknown; // what an entity applies to
  std::vector<VOXSamModelDataRoot*> targets{};
  std::vector<int> sides{};

  std::vector<VOXAnalysisCollectorRoot*> collectors{}; // attached here, with one reference each
  long changedAt = 0;                                  // the object, or anything below it
  short madeByKind = 0;                                // feature that made it
  unsigned int madeBy = 0;
  void* madeByPointer = nullptr;
};

namespace otherhost
{

using Object = VOXSamModelDataRoot;

class Model : public VOXAnalysisExplicitModel
{
public:
  Model();
  ~Model();

  //! @param iParent null for an object at the top. @return null for an unknown type.
  Object* New(const std::string& iType, Object* iParent);
  Object* NewList();
  Object* Find(int iTag) const;
  bool Owns(const Object* iObject) const { return iObject != nullptr && iObject->model == this && !iObject->isGone; }
  void Delete(Object& ioObject);

  //! Says that an object changed: collectors at it and above it are out of date.
  void Touch(Object& ioObject);

  Rules rules;
  long clock = 0;
  Object* globalFrame = nullptr;

private:
  Object* Keep(Object iObject);

  std::vector<std::unique_ptr<Object>> _Objects; // tag minus 1
};

} // namespace otherhost

//! The one that may look into handles and collectors.
class VOXExplicitAccess
{
public:
  //! The object that a handle designates; null for an empty handle and for an object that was deleted.
  static otherhost::Object* Object(const VOXAnalysisExplicitData& iHandle);
  static otherhost::Model* Model(const VOXAnalysisExplicitData& iHandle);

  //! Makes a handle designate an object, null for nothing.
  static void Target(VOXAnalysisExplicitData& ioHandle, otherhost::Object* iObject);

  //! What a list lists: the children or items of the object that it designates, or its parents.
  enum Kind : int
  {
    kChildren,
    kParents
  };
  static void Fill(VOXAnalysisExplicitList& ioList, otherhost::Object* iOwner, Kind iKind);

  static VOXCollectorData& Data(const VOXAnalysisCollectorRoot& iCollector);
  static void Detach(VOXAnalysisCollectorRoot& ioCollector);
};

//! What is kept of a collector, of either sort.
struct VOXCollectorData
{
  int references = 0;
  VOXAnalysisExplicitParent context{};
  otherhost::Object* attachedTo = nullptr;
  std::vector<VOXSamModelDataRoot*> objects{};
  std::vector<int> sides{};
  std::vector<unsigned char> flags{};
  long filledAt = 0;
  bool isCharac = false;

  VOXSamValue value = VOXSamValueNone; // of an entity collector
  VOXString name{};                    // of both

  int physicalType = VOXSamPhysicalTypeNone; // of a charac collector
  VOXSamCharacVersion version{};
  VOXString position{};
  int components = 0;
  int frame = 0;
  std::vector<double> values{};
  const VOXAnalysisCollectorArchiver* archiver = nullptr; // one reference
};
