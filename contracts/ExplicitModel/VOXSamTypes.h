// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"
#include "ComponentRuntime/VOXResult.h"

#include <cstdint>

//! Opaque object of an explicit model. Only pointers to it are passed; the model owns it.
struct VOXSamModelDataRoot;

//! Category of an object, value kind of a group or of a collector. The numbers are the host's and never change.
enum VOXSamValue : int
{
  VOXSamValueNone = 0,
  VOXSamValueAnalysisModel = 1,
  VOXSamValueMesh = 2,
  VOXSamValueEntity = 3,
  VOXSamValueNode = 8,    //!< hangs under a mesh object
  VOXSamValueElement = 9, //!< hangs under a mesh object
  VOXSamValueMaterialSet = 10,
  VOXSamValueAxisSet = 11,
  VOXSamValuePropertySet = 12,
  VOXSamValueRestraintSet = 13,
  VOXSamValueLoadSet = 14,
  VOXSamValueMassSet = 15,
  VOXSamValueGroupSet = 16,
  VOXSamValueSensorSet = 17,
  VOXSamValueExpression = 18,
  VOXSamValueModulationSet = 19,
  VOXSamValueAxis = 20,
  VOXSamValueOtherSet = 21,
  VOXSamValueUnknown = 22
};

//! Where on the objects that it applies to an entity acts.
enum VOXSamPosition : int
{
  VOXSamPositionUnknown = 0,
  VOXSamPositionNode = 1,
  VOXSamPositionEdge = 2,
  VOXSamPositionFace = 3,
  VOXSamPositionElement = 4,
  VOXSamPositionNodeOfElement = 5,
  VOXSamPositionGaussPoint = 6,
  VOXSamPositionCenter = 7
};

//! Qualifier of one object that an entity applies to.
enum VOXSamApplyQualifier : int
{
  VOXSamApplyWhole = 0,
  VOXSamApplyTop = 1,
  VOXSamApplyBottom = 2
};

//! Filter of VOXAnalysisExplicitParent::GetChildrenList; the value it takes is an int.
enum VOXSamCompareType : int
{
  VOXSamCompareNone = 0,         //!< all children; the value is not read
  VOXSamComparePhysicalType = 1, //!< children of that physical type
  VOXSamCompareCategory = 2      //!< children whose physical type has that category (VOXSamValue)
};

//! Bits of VOXAnalysisExplicitChild::GetStatus.
enum VOXSamStatus : int
{
  VOXSamStatusNone = 0,
  VOXSamStatusModified = 1,
  VOXSamStatusCreated = 2,
  VOXSamStatusInactive = 4,
  VOXSamStatusDropped = 8 //!< the child is to be dropped
};

//! Physical types that every model's rules data know under these numbers. All others are numbered by the rules data.
enum VOXSamPhysicalType : int
{
  VOXSamPhysicalTypeNone = 0,
  VOXSamPhysicalTypeGenEntity = 1,
  VOXSamPhysicalTypeGenSet = 2,
  VOXSamPhysicalTypeImportedMaterial = 3,
  VOXSamPhysicalTypeImportedAxis = 4,
  VOXSamPhysicalTypeImportedProperty = 5,
  VOXSamPhysicalTypeImportedRestraint = 6,
  VOXSamPhysicalTypeImportedLoad = 7,
  VOXSamPhysicalTypeImportedMass = 8
};

//! Position named by a keyword: "NODE", "EDGE", "FACE", "ELEMENT", "NODE_OF_ELEMENT", "GAUSS_POINT" or "CENTER".
//! @param oPosition untouched on failure. @return S_OK; E_FAIL for any other keyword or a null pointer.
VOX_HOST_API HRESULT VOXSamIdentityEnum(const char* iKeyword, VOXSamPosition& oPosition);
