// SPDX-License-Identifier: MIT
#include "SmallModel.h"

namespace
{

using ExplicitLists = SmallModel;

TEST_F(ExplicitLists, WalkTheChildrenInTheirOrder)
{
  const VOXAnalysisExplicitEntity second = model->Create(groupSet, "GROUP", "SECOND");
  VOXAnalysisExplicitList list;
  EXPECT_EQ(groupSet.GetChildrenList(list), S_OK);
  EXPECT_EQ(Tags(list), (std::vector<int>{Tag(group), Tag(second)}));
  EXPECT_TRUE(*list.Next() == NULL_exp);
}

TEST_F(ExplicitLists, AreNotTheEmptyHandleWhenThereIsNoChild)
{
  VOXAnalysisExplicitList list;
  EXPECT_TRUE(list == NULL_exp);
  EXPECT_EQ(nodeGroup.GetChildrenList(list), S_OK);
  EXPECT_TRUE(list != NULL_exp);
  EXPECT_TRUE(*list.First() == NULL_exp);
  EXPECT_EQ(list.GetLength(0), 0);
  EXPECT_EQ(list.GetModel(), model.get());
}

TEST_F(ExplicitLists, SeeWhatIsAddedWhileTheCursorMoves)
{
  VOXAnalysisExplicitList list(groupSet);
  EXPECT_TRUE(*list.First() == group);
  const VOXAnalysisExplicitEntity second = model->Create(groupSet, "GROUP", "SECOND");
  EXPECT_TRUE(*list.Next() == second);
}

TEST_F(ExplicitLists, HoldNodesAndElementsBehindTheOtherChildrenOfAMesh)
{
  VOXAnalysisExplicitList list(mesh);
  EXPECT_EQ(list.GetLength(0), 6);
  EXPECT_TRUE(*list.First() == model->FindNode(1));
  VOXAnalysisExplicitList parents;
  EXPECT_EQ(model->FindElement(7).GetParentList(parents), S_OK);
  EXPECT_TRUE(*parents.First() == mesh);
  EXPECT_EQ(parents.GetLength(0), 1);
}

TEST_F(ExplicitLists, GiveTheirContentsAsAnArrayForTheCaller)
{
  VOXAnalysisExplicitList list(groupSet);
  int count = 0;
  VOXSamModelDataRoot** objects = nullptr;
  ASSERT_EQ(list.GetContents(count, objects), S_OK);
  ASSERT_EQ(count, 1);
  EXPECT_EQ(objects[0], VOXExplicitAccess::Object(group));
  delete[] objects;
}

TEST_F(ExplicitLists, FailToGiveTheContentsOfAnEmptyListAndLeaveTheArguments)
{
  const VOXAnalysisExplicitList list;
  int count = -1;
  VOXSamModelDataRoot** objects = nullptr;
  EXPECT_EQ(list.GetContents(count, objects), E_FAIL);
  EXPECT_EQ(count, -1);
}

TEST_F(ExplicitLists, OfAUserAreCreatedFilledAndDeleted)
{
  VOXAnalysisExplicitListUsr list;
  EXPECT_TRUE(list == NULL_exp);
  ASSERT_EQ(list.CreateList(model.get()), S_OK);
  EXPECT_TRUE(list != NULL_exp);
  VOXAnalysisExplicitList children(groupSet);
  EXPECT_EQ(list.Insert(children, false), S_OK);
  EXPECT_EQ(list.Insert(children, false), S_OK);
  EXPECT_EQ(list.GetLength(0), 2);
  EXPECT_EQ(list.Insert(children, true), S_OK);
  EXPECT_EQ(list.GetLength(0), 2);
  EXPECT_TRUE(*list.First(true) == group);
  EXPECT_EQ(list.Delete(), S_OK);
  EXPECT_TRUE(list == NULL_exp);
  EXPECT_EQ(list.Delete(), E_FAIL);
}

TEST_F(ExplicitLists, OfAUserCountInTheLedgerUntilTheyAreDeleted)
{
  VOXAnalysisExplicitListUsr list;
  const auto start = voxhost::Ledger::Read();
  ASSERT_EQ(list.CreateList(model.get()), S_OK);
  EXPECT_EQ((voxhost::Ledger::Read() - start).userLists, 1);
  EXPECT_EQ(list.Delete(), S_OK);
  EXPECT_EQ((voxhost::Ledger::Read() - start).userLists, 0);
}

TEST_F(ExplicitLists, OfAUserSkipDeletedItemsWhenAsked)
{
  VOXAnalysisExplicitEntity second = model->Create(groupSet, "GROUP", "SECOND");
  VOXAnalysisExplicitListUsr list;
  ASSERT_EQ(list.CreateList(model.get()), S_OK);
  EXPECT_EQ(list.Append(group), S_OK);
  EXPECT_EQ(list.Append(second), S_OK);
  EXPECT_EQ(group.Delete(), S_OK);
  EXPECT_TRUE(*list.First(true) == second);
  EXPECT_TRUE(*list.First(false) == NULL_exp);
  EXPECT_EQ(list.Delete(), S_OK);
}

TEST_F(ExplicitLists, OfAUserTakeTheChildrenThatPassAFilter)
{
  const VOXAnalysisExplicitEntity load = model->Create(NULL_exp, "CONCENTRATED_LOAD", "L");
  const VOXAnalysisExplicitEntity expression = model->Create(load, "EXPRESSION", "E");
  const VOXAnalysisExplicitEntity other = model->Create(load, "NODE_GROUP", "N");
  VOXAnalysisExplicitListUsr list;
  ASSERT_EQ(list.CreateList(model.get()), S_OK);
  const int category = VOXSamValueExpression;
  EXPECT_EQ(load.GetChildrenList(list, VOXSamCompareCategory, &category, false, false), S_OK);
  EXPECT_EQ(list.GetLength(0), 1);
  EXPECT_TRUE(*list.First(true) == expression);
  EXPECT_EQ(load.GetChildrenList(list, VOXSamCompareNone, nullptr, false, false), S_OK);
  EXPECT_EQ(list.GetLength(0), 3);
  EXPECT_EQ(list.Delete(), S_OK);
}

} // namespace
