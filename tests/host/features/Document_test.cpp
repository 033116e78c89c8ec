// SPDX-License-Identifier: MIT
#include "ObjectModeler/VOXSequence.h"
#include "SmallDocument.h"

#include <string>

using voxhost::Components;
using voxhost::Container;
using voxhost::Feature;

namespace
{

class AnalysisDocument : public SmallDocument
{
protected:
  static std::string NameOf(const Feature& iFeature) { return iFeature.Name().ConvertToChar(); }
};

} // namespace

TEST_F(AnalysisDocument, MakesTheStartUpOfATypeOnceInAContainerOfItsOwn)
{
  Feature* const startUp = document->StartUp("Bolt");
  ASSERT_NE(startUp, nullptr);
  EXPECT_EQ(document->StartUp("Bolt"), startUp);
  EXPECT_EQ(document->StartUpContainer().Members().front(), startUp);
  EXPECT_EQ(document->NumberOfFeatures(), 0u) << "start-ups are not counted";
}

TEST_F(AnalysisDocument, HasNoStartUpOfATypeThatItDoesNotKnow)
{
  EXPECT_EQ(document->StartUp("Rivet"), nullptr);
  EXPECT_EQ(document->New("Rivet", "one"), nullptr);
  EXPECT_EQ(document->NumberOfFeatures(), 0u);
}

TEST_F(AnalysisDocument, GivesNamesOfItsChoiceWithANumberPerStartUp)
{
  EXPECT_EQ(NameOf(*document->New("Bolt", "")), "Bolt.1");
  EXPECT_EQ(NameOf(*document->New("Bolt", "named")), "named");
  EXPECT_EQ(NameOf(*document->New("AnalysisMass", "")), "AnalysisMass.1");
  EXPECT_EQ(NameOf(*document->New("Bolt", "")), "Bolt.2");
}

TEST_F(AnalysisDocument, RefusesAStartUpOfAnotherDocument)
{
  voxhost::Document other(Types());
  EXPECT_EQ(document->New(*other.StartUp("Bolt"), "stranger"), nullptr);
}

TEST_F(AnalysisDocument, PutsAFeatureIntoTheContainerThatIsNamed)
{
  Container* const shelf = document->NewContainer("shelf");
  ASSERT_NE(shelf, nullptr);
  Feature* const bolt = document->New("Bolt", "bolt", shelf, Components::kNone);
  EXPECT_EQ(shelf->Members(), std::vector<Feature*>{bolt});
  EXPECT_EQ(document->MainContainer().NumberOfMembers(), 0u);
  EXPECT_EQ(shelf->Name(), "shelf");
}

TEST_F(AnalysisDocument, MakesNoContainerOfATypeThatIsSomethingElse)
{
  EXPECT_EQ(document->NewContainer("shelf", "AnalysisLoad"), nullptr);
}

TEST_F(AnalysisDocument, FindsAFeatureByItsIdentifierUntilItIsRemoved)
{
  Feature& bolt = New("Bolt", "bolt");
  const std::uint32_t identifier = bolt.Identifier();
  EXPECT_EQ(document->FindFeature(identifier), &bolt);
  document->Remove(bolt);
  EXPECT_EQ(document->FindFeature(identifier), nullptr);
  EXPECT_EQ(document->FindFeature(0), nullptr);
  EXPECT_EQ(document->FindFeature(4000000000u), nullptr);
}

TEST_F(AnalysisDocument, LeavesAFeatureThatSomebodyHoldsAsARemovedOneWhenItGoes)
{
  const VOXISpecObject_var bolt = Spec(New("Bolt", "bolt"));
  document.reset();
  EXPECT_TRUE(Feature::Of(bolt)->IsRemoved());
  VOXIContainer_var container;
  EXPECT_LT(bolt->GetContainer(container), 0);
  EXPECT_TRUE(!container);
}

TEST_F(AnalysisDocument, ListsNoMembersOfAnInterfaceThatNobodyHas)
{
  New("Bolt", "bolt");
  _SEQUENCE_VOXBaseUnknown_ptr members;
  EXPECT_EQ(document->MainContainer().ListMembers("VOXINothing", members), 0);
}
