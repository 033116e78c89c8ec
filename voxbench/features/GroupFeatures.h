// SPDX-License-Identifier: MIT
#pragma once
#include "VOXEAnalysisGroup.h"
#include "voxbench/features/GroupKind.h"

namespace voxbench
{

//! A group that a file names: a set or a surface. It serves one kind, and its entities stand in the explicit model.
//!
//! - Its definition is the feature's attribute "Definition".
//! - Without an object in the model it is empty; out of date it has no content to give.
class NamedGroup : public VOXEAnalysisGroup
{
public:
  HRESULT GetDefinitionType(VOXUnicodeString& oDefinition) const override;
  HRESULT GetValueKinds(int& oCount, const VOXSamValue*& oValues) const override;
  HRESULT GetKeywords(VOXSamValue iValue, int& oCount, const VOXString*& oKeywords) const override;
  HRESULT GetSupports(VOXListValVOXBaseUnknown_var& oSupports) const override;
  HRESULT GetExplicitPointers(VOXSamValue iValue, VOXString iEntityType, int& oCount, VOXSamModelDataRoot**& oPointers,
                              int*& oIndices) const override;

protected:
  explicit NamedGroup(const GroupKind& iKind) : _Kind(iKind), _Keyword(iKind.keyword) {}

private:
  const GroupKind& _Kind;
  VOXString _Keyword;
};

class NodeGroup final : public NamedGroup
{
public:
  NodeGroup() : NamedGroup(kNodeKind) {}
};

class EdgeGroup final : public NamedGroup
{
public:
  EdgeGroup() : NamedGroup(kEdgeKind) {}
};

class FaceGroup final : public NamedGroup
{
public:
  FaceGroup() : NamedGroup(kFaceKind) {}
};

class ElementGroup final : public NamedGroup
{
public:
  ElementGroup() : NamedGroup(kElementKind) {}
};

} // namespace voxbench
