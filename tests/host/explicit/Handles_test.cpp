// SPDX-License-Identifier: MIT
#include "SmallModel.h"

#include <type_traits>

namespace
{

using ExplicitHandles = SmallModel;

static_assert(std::is_base_of_v<VOXAnalysisExplicitData, VOXAnalysisExplicitChild>);
static_assert(std::is_base_of_v<VOXAnalysisExplicitChild, VOXAnalysisExplicitParent>);
static_assert(std::is_base_of_v<VOXAnalysisExplicitParent, VOXAnalysisExplicitEntity>);
static_assert(std::is_base_of_v<VOXAnalysisExplicitChild, VOXAnalysisExplicitExpression>);
static_assert(std::is_base_of_v<VOXAnalysisExplicitChild, VOXAnalysisExplicitAxis>);

TEST_F(ExplicitHandles, AreEmptyWhenDefaultConstructed)
{
  const VOXAnalysisExplicitParent parent;
  EXPECT_TRUE(parent == NULL_exp);
  EXPECT_EQ(parent.GetModel(), nullptr);
}

TEST_F(ExplicitHandles, AreEqualWhenTheyDesignateOneObject)
{
  VOXAnalysisExplicitChild other;
  other = group;
  EXPECT_TRUE(other == group);
  EXPECT_TRUE(other != groupSet);
  EXPECT_EQ(other.GetModel(), model.get());
}

TEST_F(ExplicitHandles, HaveTagsThatLeadBackToTheirObjects)
{
  const VOXAnalysisExplicitChild node = model->FindNode(10);
  const VOXAnalysisExplicitChild element = model->FindElement(7);
  for (const VOXAnalysisExplicitChild& object : {VOXAnalysisExplicitChild(group), node, element})
  {
    ASSERT_TRUE(object != NULL_exp);
    EXPECT_NE(Tag(object), 0);
    VOXAnalysisExplicitChild linked;
    EXPECT_EQ(linked.LinkWithTag(Tag(object), model.get()), S_OK);
    EXPECT_TRUE(linked == object);
  }
  EXPECT_NE(Tag(node), Tag(element));
}

TEST_F(ExplicitHandles, AreEmptyAfterLinkingWithATagThatNothingHas)
{
  VOXAnalysisExplicitChild child(group);
  EXPECT_EQ(child.LinkWithTag(123456, model.get()), S_OK);
  EXPECT_TRUE(child == NULL_exp);
  for (const int tag : {0, -1, 0x20000004, 0x40000002})
  {
    EXPECT_EQ(child.LinkWithTag(tag, model.get()), S_OK);
    EXPECT_TRUE(child == NULL_exp) << tag;
  }
}

TEST_F(ExplicitHandles, FailToLinkWithoutAModel)
{
  VOXAnalysisExplicitChild child(group);
  EXPECT_EQ(child.LinkWithTag(1, nullptr), E_FAIL);
  EXPECT_TRUE(child == NULL_exp);
}

TEST_F(ExplicitHandles, RefusePointersOfAnotherModel)
{
  voxhost::ExplicitModel other;
  VOXAnalysisExplicitChild child(group);
  EXPECT_EQ(child.LinkWithPointer(VOXExplicitAccess::Object(group), &other), E_FAIL);
  EXPECT_TRUE(child == NULL_exp);
  EXPECT_EQ(child.LinkWithPointer(VOXExplicitAccess::Object(group), model.get()), S_OK);
  EXPECT_TRUE(child == group);
}

TEST_F(ExplicitHandles, OfAnEmptyHandleFailAndLeaveTheirOutParameters)
{
  const VOXAnalysisExplicitParent empty;
  int value = 77;
  VOXSamValue category = VOXSamValueUnknown;
  EXPECT_EQ(empty.GetPhysicalType(value), E_FAIL);
  EXPECT_EQ(empty.GetTag(value), E_FAIL);
  EXPECT_EQ(empty.GetStatus(value), E_FAIL);
  EXPECT_EQ(empty.GetCategory(category), E_FAIL);
  EXPECT_EQ(value, 77);
  EXPECT_EQ(category, VOXSamValueUnknown);
}

TEST_F(ExplicitHandles, TellStatusTypeAndCategory)
{
  int value = 0;
  model->SetStatus(group, VOXSamStatusDropped | VOXSamStatusModified);
  EXPECT_EQ(group.GetStatus(value), S_OK);
  EXPECT_EQ(value, 9);
  EXPECT_EQ(group.GetPhysicalType(value), S_OK);
  EXPECT_EQ(value, voxhost::ExplicitRules::Default()->NumberOf("GROUP"));
  VOXSamValue category = VOXSamValueNone;
  EXPECT_EQ(VOXAnalysisExplicitParent(model->FindNode(1)).GetCategory(category), S_OK);
  EXPECT_EQ(category, VOXSamValueNode);
}

TEST_F(ExplicitHandles, ChildrenKeepTheirOrderWhateverGoesBetweenThem)
{
  std::vector<VOXAnalysisExplicitEntity> children;
  std::vector<int> left = {Tag(group)};
  const auto add = [&]
  {
    children.push_back(model->Create(groupSet, "GROUP", "More"));
    left.push_back(Tag(children.back()));
  };
  const auto listed = [this]
  {
    VOXAnalysisExplicitList list;
    EXPECT_EQ(groupSet.GetChildrenList(list), S_OK);
    return Tags(list);
  };
  for (int count = 0; count < 9; ++count)
    add();
  for (const std::size_t place : {1u, 0u, 5u, 0u, 5u, 0u, 0u, 1u, 1u, 0u})
  {
    VOXAnalysisExplicitChild gone;
    ASSERT_EQ(gone.LinkWithTag(left[place], model.get()), S_OK);
    EXPECT_EQ(gone.Delete(), S_OK);
    left.erase(left.begin() + static_cast<std::ptrdiff_t>(place));
    EXPECT_EQ(listed(), left) << place;
  }
  EXPECT_TRUE(left.empty());
  add();
  EXPECT_EQ(listed(), left);
}

TEST_F(ExplicitHandles, DesignateNothingOnceTheirObjectIsDeleted)
{
  const VOXAnalysisExplicitChild copy(group);
  const int tag = Tag(group);
  EXPECT_EQ(group.Delete(), S_OK);
  EXPECT_TRUE(group == NULL_exp);
  EXPECT_TRUE(copy == NULL_exp);
  VOXAnalysisExplicitChild linked;
  EXPECT_EQ(linked.LinkWithTag(tag, model.get()), S_OK);
  EXPECT_TRUE(linked == NULL_exp);
}

TEST_F(ExplicitHandles, TakeWhatOnlyTheyHoldAlongWhenDeleted)
{
  EXPECT_EQ(group.Delete(), S_OK);
  EXPECT_TRUE(nodeGroup == NULL_exp);
}

TEST_F(ExplicitHandles, LeaveASharedChildAliveWhenOneParentIsDeleted)
{
  VOXAnalysisExplicitEntity second = model->Create(groupSet, "GROUP", "SECOND");
  ASSERT_TRUE(model->AddChild(second, nodeGroup));
  EXPECT_EQ(group.Delete(), S_OK);
  EXPECT_TRUE(nodeGroup != NULL_exp);
}

TEST_F(ExplicitHandles, StayAsTheyWereWhenDeletionFails)
{
  VOXAnalysisExplicitChild empty;
  EXPECT_EQ(empty.Delete(), E_FAIL);
  VOXAnalysisExplicitChild node = model->FindNode(1);
  EXPECT_EQ(node.Delete(), E_FAIL);
  EXPECT_TRUE(node != NULL_exp);
  voxhost::Faults::FailOperation("VOXAnalysisExplicitChild::Delete", 1, false);
  EXPECT_EQ(group.Delete(), E_FAIL);
  EXPECT_TRUE(group != NULL_exp);
}

TEST_F(ExplicitHandles, FindNodesByIdAcrossHoles)
{
  EXPECT_TRUE(model->FindNode(3) != NULL_exp);
  EXPECT_TRUE(model->FindNode(10) != NULL_exp);
  for (const int id : {0, 4, 9, 11, -1})
    EXPECT_TRUE(model->FindNode(id) == NULL_exp) << id;
}

TEST_F(ExplicitHandles, GiveTheGlobalFrameUntilItIsTakenAway)
{
  VOXAnalysisExplicitAxis axis;
  EXPECT_EQ(model->GetGlobalRefFrame(axis), S_OK);
  EXPECT_TRUE(axis != NULL_exp);
  const VOXAnalysisExplicitAxis kept(axis);
  model->SetGlobalFrame(false);
  EXPECT_TRUE(kept == NULL_exp);
  EXPECT_EQ(model->GetGlobalRefFrame(axis), E_FAIL);
}

} // namespace
