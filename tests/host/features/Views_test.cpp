// SPDX-License-Identifier: MIT
#include "SmallDocument.h"

using voxhost::Views;

namespace
{

class DocumentViews : public SmallDocument
{
protected:
  Views& views = document->ShownViews();
  voxhost::Feature& bolt = New("Bolt", "bolt");
};

} // namespace

TEST_F(DocumentViews, ShowAnObjectInTheViewThatIsNamedAlone)
{
  views.Show(&bolt, Views::kInGraph);
  EXPECT_TRUE(views.IsShown(&bolt, Views::kInGraph));
  EXPECT_FALSE(views.IsShown(&bolt, Views::kIn3D));
  views.Show(&bolt, Views::kIn3D);
  EXPECT_TRUE(views.IsShown(&bolt, Views::kInGraph));
  EXPECT_TRUE(views.IsShown(&bolt, Views::kIn3D));
}

TEST_F(DocumentViews, CountAViewThatDoesNotExistAndShowNothingInIt)
{
  views.Show(&bolt, 7);
  EXPECT_EQ(views.ShowCalls(), 1);
  EXPECT_FALSE(views.IsShown(&bolt, Views::kInGraph));
  EXPECT_FALSE(views.IsShown(&bolt, Views::kIn3D));
}

TEST_F(DocumentViews, KeepTheCallsInTheirOrderWhileTheyAreRecorded)
{
  voxhost::Feature& other = New("Bolt", "other");
  views.Show(&other, Views::kIn3D);
  views.RecordCalls(true);
  views.Show(&bolt, Views::kInGraph);
  views.Show(&other, Views::kIn3D);
  views.RecordCalls(false);
  views.Show(&bolt, Views::kIn3D);
  EXPECT_EQ(views.Calls(), (std::vector<Views::ShowCall>{{&bolt, Views::kInGraph}, {&other, Views::kIn3D}}));
  EXPECT_EQ(views.ShowCalls(), 4);
}

TEST_F(DocumentViews, ForgetAFeatureThatIsRemoved)
{
  views.Show(&bolt, Views::kInGraph);
  const VOXISpecObject_var held = Spec(bolt);
  document->Remove(bolt);
  EXPECT_FALSE(views.IsShown(held, Views::kInGraph));
}

TEST_F(DocumentViews, BeginAnewWhenTheyAreCleared)
{
  views.RecordCalls(true);
  views.Show(&bolt, Views::kInGraph);
  views.NoteShowStatus();
  views.NoteRedraw();
  views.Clear();
  EXPECT_FALSE(views.IsShown(&bolt, Views::kInGraph));
  EXPECT_EQ(views.ShowCalls() + views.ShowStatusCalls() + views.RedrawRequests(), 0);
  EXPECT_TRUE(views.Calls().empty());
}
