// SPDX-License-Identifier: MIT
#pragma once

#include "VOXSamToolsForExplicitation.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "tests/adaptors/TagOf.h"
#include "tests/support/Bench.h"
#include "tests/support/ScriptedAttributes.h"
#include "tests/support/ScriptedInterfaces.h"

#include <cstdint>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace voxtest
{

inline voxhost::MeshData TwoNodesAndAnElement()
{
  voxhost::MeshData mesh;
  mesh.nodeIds = voxhost::SharedArray<std::int32_t>({1, 2});
  mesh.coordinates = voxhost::SharedArray<double>(std::vector<double>(6, 0.));
  mesh.elementIds = voxhost::SharedArray<std::int32_t>({10});
  mesh.elementTypes = voxhost::SharedArray<std::uint16_t>({0});
  mesh.offsets = voxhost::SharedArray<std::uint32_t>({0, 2});
  mesh.connectivity = voxhost::SharedArray<std::int32_t>({1, 2});
  return mesh;
}

//! A model with a mesh and a group, and a container.
class LookUpWorld
{
public:
  LookUpWorld() : container(_Bench.Component<ScriptedContainer>())
  {
    root = model.Create(NULL_exp, "ANALYSIS_MODEL", "model");
    mesh = model.Create(root, "MESH", "mesh");
    model.SetMesh(mesh, TwoNodesAndAnElement());
    group = model.Create(root, "GROUP", "group");
    groupParent = group;
    node = model.FindNode(1);
    element = model.FindElement(10);
  }

  ContainerScript& Told() const { return ScriptedContainer::ScriptOf(container); }

  //! Puts a feature that reports these tags at the end of the container.
  template <class Explicit = ScriptedExplicit>
  VOXBaseUnknown* Add(std::vector<int> iTags)
  {
    VOXBaseUnknown* const member = _Bench.Component<Explicit, ScriptedSpecObject>();
    Explicit::ScriptOf(member).tags = std::move(iTags);
    return List(member);
  }

  //! The same for one that is explicit and no feature.
  VOXBaseUnknown* AddNoFeature(std::vector<int> iTags)
  {
    VOXBaseUnknown* const member = _Bench.Component<ScriptedExplicit>();
    ScriptedExplicit::ScriptOf(member).tags = std::move(iTags);
    return List(member);
  }

  VOXISpecObject* LookUp(const VOXAnalysisExplicitParent& iParent) const
  {
    const VOXIContainer_var spContainer(container);
    return VOXSamToolsForExplicitation::GetParentFeature(iParent, spContainer);
  }

  Bench& MoreComponents() { return _Bench; }

  voxhost::ExplicitModel model;
  VOXAnalysisExplicitEntity root;
  VOXAnalysisExplicitEntity mesh;
  VOXAnalysisExplicitEntity group;
  VOXAnalysisExplicitParent groupParent; // the group once more
  VOXAnalysisExplicitParent node;
  VOXAnalysisExplicitParent element;

private:
  // The container lists the explicit face of a member, as it was asked for.
  VOXBaseUnknown* List(VOXBaseUnknown* iMember)
  {
    const VOXISamExplicit_var spExplicit(iMember);
    Told().members.push_back(spExplicit);
    return iMember;
  }

  Bench _Bench;

public:
  VOXBaseUnknown* const container;
};

} // namespace voxtest
