// SPDX-License-Identifier: MIT
#include "SmallModel.h"

namespace
{

class ExplicitApplyTo : public SmallModel
{
protected:
  HRESULT Ask(const VOXAnalysisExplicitEntity& iEntity)
  {
    return iEntity.GetApplyTo(count, objects, position, indices, qualifiers, 0);
  }
  ~ExplicitApplyTo() override
  {
    delete[] objects;
    delete[] indices;
    delete[] qualifiers;
  }

  int count = -1;
  VOXSamModelDataRoot** objects = nullptr;
  VOXSamPosition position = VOXSamPositionUnknown;
  int* indices = nullptr;
  VOXSamApplyQualifier* qualifiers = nullptr;
};

TEST_F(ExplicitApplyTo, HandsOutWholeNodesWithoutIndices)
{
  ASSERT_TRUE(model->SetApplyTo(nodeGroup, OnNodes({0, 3})));
  ASSERT_EQ(Ask(nodeGroup), S_OK);
  ASSERT_EQ(count, 2);
  EXPECT_EQ(position, VOXSamPositionNode);
  EXPECT_EQ(objects[0]->id, 1);
  EXPECT_EQ(objects[1]->id, 10);
  EXPECT_EQ(indices, nullptr);
  EXPECT_EQ(qualifiers, nullptr);
}

TEST_F(ExplicitApplyTo, HandsOutTheSideOfEachFace)
{
  const VOXAnalysisExplicitEntity faces = model->Create(group, "FACE_GROUP", "F");
  ASSERT_TRUE(model->SetApplyTo(faces, {VOXSamPositionFace, voxhost::SharedArray<std::uint32_t>({1, 1, 0}),
                                        voxhost::SharedArray<std::uint8_t>({1, 3, 2})}));
  ASSERT_EQ(Ask(faces), S_OK);
  ASSERT_EQ(count, 3);
  EXPECT_EQ(objects[0]->id, 7);
  EXPECT_EQ(indices[1], 3);
  EXPECT_EQ(objects[2]->id, 5);
}

TEST_F(ExplicitApplyTo, GivesNoArraysForAnEntityThatAppliesToNothing)
{
  ASSERT_EQ(Ask(nodeGroup), S_OK);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(objects, nullptr);
}

TEST_F(ExplicitApplyTo, FailsForAnEmptyHandle)
{
  EXPECT_EQ(Ask(VOXAnalysisExplicitEntity()), E_FAIL);
  EXPECT_EQ(count, 0);
}

TEST_F(ExplicitApplyTo, RefusesPlacesOutsideOfTheMeshAndUnequalSides)
{
  EXPECT_FALSE(model->SetApplyTo(nodeGroup, OnNodes({4})));
  EXPECT_FALSE(model->SetApplyTo(nodeGroup, {VOXSamPositionFace, voxhost::SharedArray<std::uint32_t>({0, 1}),
                                             voxhost::SharedArray<std::uint8_t>({1})}));
}

TEST(ExplicitApplyToAtScale, FindsEveryNodeOfAMillionById)
{
  voxhost::ExplicitModel model;
  const VOXAnalysisExplicitEntity mesh = model.Create(NULL_exp, "MESH", "Mesh");
  std::vector<std::int32_t> ids(1000000);
  for (std::size_t i = 0; i < ids.size(); ++i)
    ids[i] = static_cast<std::int32_t>(2 * i + 1);
  voxhost::MeshData data;
  data.nodeIds = voxhost::SharedArray<std::int32_t>(std::move(ids));
  ASSERT_TRUE(model.SetMesh(mesh, std::move(data)));
  for (std::int32_t i = 0; i < 1000000; i += 997)
  {
    int tag = 0;
    ASSERT_EQ(model.FindNode(2 * i + 1).GetTag(tag), S_OK);
    ASSERT_EQ(tag, 0x20000000 + i);
    ASSERT_TRUE(model.FindNode(2 * i) == NULL_exp);
  }
}

} // namespace
