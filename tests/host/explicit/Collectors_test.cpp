// SPDX-License-Identifier: MIT
#include "ExplicitModel/VOXAnalysisCharacCollector.h"
#include "ExplicitModel/VOXAnalysisEntityCollector.h"
#include "SmallModel.h"

namespace
{

class ExplicitCollectors : public SmallModel
{
protected:
  // A collector of the group's nodes, attached to the group, on which only the model has a reference.
  VOXAnalysisEntityCollector* Attached()
  {
    auto* const collector = new VOXAnalysisEntityCollector;
    EXPECT_EQ(collector->SetContext(group, 1), S_OK);
    EXPECT_EQ(collector->SetDefinition(VOXSamValueNode, "NODE"), S_OK);
    EXPECT_EQ(collector->SetExplicitPointers(1, &object, nullptr), S_OK);
    EXPECT_EQ(collector->SetAttachedToModel(1, nullptr, 0), S_OK);
    return collector;
  }

  VOXAnalysisEntityCollector* Found()
  {
    VOXAnalysisEntityCollector* found = nullptr;
    EXPECT_EQ(group.FindEntityCollector(VOXSamValueNode, "NODE", found), S_OK);
    return found;
  }

  VOXSamModelDataRoot* object = VOXExplicitAccess::Object(model->FindNode(2));
};

TEST_F(ExplicitCollectors, AreDestroyedWhenTheLastReferenceIsGivenBack)
{
  auto* const collector = new VOXAnalysisEntityCollector;
  const auto alive = voxhost::Ledger::Read();
  EXPECT_EQ(collector->AddRef(), 1);
  EXPECT_EQ(collector->AddRef(), 2);
  EXPECT_EQ(collector->Release(), 1);
  EXPECT_EQ(collector->Release(), 0);
  EXPECT_EQ((voxhost::Ledger::Read() - alive).collectors, -1);
}

TEST_F(ExplicitCollectors, AreFoundByTheirDefinitionWhileTheyAreAttached)
{
  VOXAnalysisEntityCollector* const collector = Attached();
  EXPECT_EQ(Found(), collector);
  EXPECT_EQ(collector->IsAttachedToModel(), 1);
  VOXAnalysisEntityCollector* other = collector;
  EXPECT_EQ(group.FindEntityCollector(VOXSamValueElement, "NODE", other), S_OK);
  EXPECT_EQ(other, nullptr);
}

TEST_F(ExplicitCollectors, AreFoundNoMoreOnceTheirDestructionIsRequested)
{
  VOXAnalysisEntityCollector* const collector = Attached();
  collector->AddRef();
  collector->RequestDelayedDestruction(1);
  EXPECT_EQ(Found(), nullptr);
  EXPECT_EQ(collector->Release(), 1) << "the model's own reference, which passed to whoever asked";
  EXPECT_EQ(collector->Release(), 0);
}

TEST_F(ExplicitCollectors, AreUpToDateUntilSomethingChangesUnderTheirContext)
{
  const VOXAnalysisEntityCollector* const collector = Attached();
  EXPECT_EQ(collector->IsUpToDate(), 1);
  ASSERT_TRUE(model->SetApplyTo(nodeGroup, OnNodes({1})));
  EXPECT_EQ(collector->IsUpToDate(), 0);
}

TEST_F(ExplicitCollectors, StayUpToDateWhenAnotherBranchChanges)
{
  const VOXAnalysisEntityCollector* const collector = Attached();
  model->Create(root, "LOAD_SET", "Loads");
  EXPECT_EQ(collector->IsUpToDate(), 1);
}

TEST_F(ExplicitCollectors, CopyTheArraysThatTheyAreGiven)
{
  auto* const collector = new VOXAnalysisEntityCollector;
  collector->AddRef();
  VOXSamModelDataRoot* objects[] = {object, object};
  int indices[] = {4, 5};
  ASSERT_EQ(collector->SetExplicitPointers(2, objects, indices), S_OK);
  objects[0] = nullptr;
  indices[0] = 0;
  int count = 0;
  VOXSamModelDataRoot* const* kept = nullptr;
  const int* keptIndices = nullptr;
  ASSERT_EQ(collector->GetEntities(count, kept, keptIndices), S_OK);
  EXPECT_EQ(count, 2);
  EXPECT_EQ(kept[0], object);
  EXPECT_EQ(keptIndices[0], 4);
  const unsigned char* flags = nullptr;
  EXPECT_EQ(collector->GetEntitiesFLags(flags), S_OK);
  EXPECT_EQ(flags[1], 1);
  collector->Release();
}

TEST_F(ExplicitCollectors, RefuseANegativeCountAndKeepWhatTheyHave)
{
  auto* const collector = new VOXAnalysisEntityCollector;
  collector->AddRef();
  ASSERT_EQ(collector->SetExplicitPointers(1, &object, nullptr), S_OK);
  EXPECT_EQ(collector->SetExplicitPointers(-1, &object, nullptr), E_FAIL);
  EXPECT_EQ(collector->SetExplicitPointers(1, nullptr, nullptr), E_FAIL);
  int count = 0;
  EXPECT_EQ(collector->GetNbEntities(count), S_OK);
  EXPECT_EQ(count, 1);
  collector->Release();
}

TEST_F(ExplicitCollectors, CannotBeAttachedWithoutAContext)
{
  auto* const collector = new VOXAnalysisEntityCollector;
  collector->AddRef();
  EXPECT_EQ(collector->SetAttachedToModel(1, nullptr, 0), E_FAIL);
  EXPECT_EQ(collector->IsAttachedToModel(), 0);
  collector->Release();
}

TEST_F(ExplicitCollectors, CannotChangeDefinitionOrContextWhileTheyAreAttached)
{
  VOXAnalysisEntityCollector* const collector = Attached();
  EXPECT_EQ(collector->SetDefinition(VOXSamValueElement, "FACE"), E_FAIL);
  EXPECT_EQ(collector->SetContext(groupSet, 1), E_FAIL);
  EXPECT_EQ(collector->SetContext(group, 1), S_OK);
}

TEST_F(ExplicitCollectors, LoseTheirAttachmentWhenTheirContextIsDeletedWhileSomebodyHoldsThem)
{
  VOXAnalysisEntityCollector* const collector = Attached();
  collector->AddRef();
  EXPECT_EQ(group.Delete(), S_OK);
  EXPECT_EQ(collector->IsAttachedToModel(), 0);
  EXPECT_EQ(collector->IsUpToDate(), 0);
  EXPECT_EQ(collector->Release(), 0);
}

TEST_F(ExplicitCollectors, OfValuesAreDeletedThroughTheirParent)
{
  auto* const values = new VOXAnalysisCharacCollector;
  ASSERT_EQ(values->SetContext(group, 1), S_OK);
  ASSERT_EQ(values->SetAttachedToModel(1, nullptr, 0), S_OK);
  const VOXAnalysisCharacCollector* asked = values;
  EXPECT_EQ(groupSet.DeleteCharacCollector(asked), E_FAIL);
  EXPECT_EQ(asked, values);
  EXPECT_EQ(group.DeleteCharacCollector(asked), S_OK);
  EXPECT_EQ(asked, nullptr);
}

TEST_F(ExplicitCollectors, OfValuesAllGoWithDeleteAll)
{
  const auto alive = voxhost::Ledger::Read();
  for (int i = 0; i < 3; ++i)
  {
    auto* const values = new VOXAnalysisCharacCollector;
    ASSERT_EQ(values->SetContext(group, 1), S_OK);
    ASSERT_EQ(values->SetAttachedToModel(1, nullptr, 0), S_OK);
  }
  EXPECT_EQ((voxhost::Ledger::Read() - alive).collectors, 3);
  EXPECT_EQ(group.DeleteAll(), S_OK);
  EXPECT_EQ((voxhost::Ledger::Read() - alive).collectors, 0);
}

TEST_F(ExplicitCollectors, OfValuesGiveBackDefinitionValuesAndFlags)
{
  VOXAnalysisCharacCollector* const values = new VOXAnalysisCharacCollector;
  values->AddRef();
  VOXSamCharacVersion version;
  version._Occurrence = 3;
  int type = 0;
  int components = 0;
  int frame = 0;
  VOXString name;
  VOXString position;
  VOXSamCharacVersion asked;
  EXPECT_EQ(values->GetDefinition(type, name, asked, position, components, frame), E_FAIL);
  ASSERT_EQ(values->SetDefinition(42, "U", version, "NODE", 3, 0), S_OK);
  ASSERT_EQ(values->SetEntities(1, &object, nullptr), S_OK);
  EXPECT_EQ(values->IsCollectorContainValues(), 0);
  const double numbers[] = {1., 2., 3.};
  const unsigned char flags[] = {0};
  ASSERT_EQ(values->SetValues(numbers, flags), S_OK);
  ASSERT_EQ(values->GetDefinition(type, name, asked, position, components, frame), S_OK);
  EXPECT_EQ(type, 42);
  EXPECT_TRUE(asked == version);
  EXPECT_EQ(components, 3);
  EXPECT_EQ(values->GetValues()[2], 3.);
  const unsigned char* kept = nullptr;
  EXPECT_EQ(values->GetEntitiesFLags(kept), S_OK);
  EXPECT_EQ(kept[0], 0);
  values->Release();
}

} // namespace
