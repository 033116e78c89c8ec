// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <gtest/gtest.h>

//! A model of four nodes (1, 2, 3, 10) and two triangles (5, 7), with a mesh, a set of groups and one group.
class SmallModel : public testing::Test
{
protected:
  SmallModel() : before(voxhost::Ledger::Read())
  {
    root = model->Create(NULL_exp, "ANALYSIS_MODEL", "Model");
    mesh = model->Create(root, "MESH", "Mesh");
    groupSet = model->Create(root, "GROUP_SET", "Groups");
    group = model->Create(groupSet, "GROUP", "FIX");
    nodeGroup = model->Create(group, "NODE_GROUP", "FIX");
    voxhost::MeshData data;
    data.nodeIds = voxhost::SharedArray<std::int32_t>({1, 2, 3, 10});
    data.coordinates = voxhost::SharedArray<double>({0., 0., 0., 1., 0., 0., 0., 1., 0., 1., 1., 0.});
    data.elementIds = voxhost::SharedArray<std::int32_t>({5, 7});
    data.elementTypes = voxhost::SharedArray<std::uint16_t>({0, 0});
    data.offsets = voxhost::SharedArray<std::uint32_t>({0, 3, 6});
    data.connectivity = voxhost::SharedArray<std::int32_t>({1, 2, 3, 2, 10, 3});
    EXPECT_TRUE(model->SetMesh(mesh, std::move(data)));
  }

  ~SmallModel() override
  {
    voxhost::Faults::Disarm();
    model.reset();
    EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced");
  }

  int Tag(const VOXAnalysisExplicitChild& iChild) const
  {
    int tag = 0;
    EXPECT_EQ(iChild.GetTag(tag), S_OK);
    return tag;
  }

  std::vector<int> Tags(VOXAnalysisExplicitList& ioList) const
  {
    std::vector<int> tags;
    for (VOXAnalysisExplicitChild item = *ioList.First(); item != NULL_exp; item = *ioList.Next())
      tags.push_back(Tag(item));
    return tags;
  }

  voxhost::ApplyTo OnNodes(std::vector<std::uint32_t> iPlaces) const
  {
    return {VOXSamPositionNode, voxhost::SharedArray<std::uint32_t>(std::move(iPlaces)), {}};
  }

  voxhost::Ledger::Balance before;
  std::unique_ptr<voxhost::ExplicitModel> model = std::make_unique<voxhost::ExplicitModel>();
  VOXAnalysisExplicitEntity root;
  VOXAnalysisExplicitEntity mesh;
  VOXAnalysisExplicitEntity groupSet;
  VOXAnalysisExplicitEntity group;
  VOXAnalysisExplicitEntity nodeGroup;
};
