// SPDX-License-Identifier: MIT
// The parts that make a model of records: what entities are called and what they apply to.
#include "voxbench/build/Coverage.h"
#include "voxbench/build/EntityNames.h"
#include "voxbench/build/MeshPlaces.h"

#include <gtest/gtest.h>

using namespace voxbench;

namespace
{

using Places = std::vector<std::uint32_t>;

Places PlacesOf(const voxhost::ApplyTo& iApplyTo)
{
  return {iApplyTo.places.begin(), iApplyTo.places.end()};
}

std::vector<int> SidesOf(const voxhost::ApplyTo& iApplyTo)
{
  return {iApplyTo.sides.begin(), iApplyTo.sides.end()};
}

//! Nodes of the ids given, and elements 1 to 4.
voxhost::MeshData MeshOf(std::vector<std::int32_t> iNodeIds)
{
  voxhost::MeshData mesh;
  mesh.nodeIds = voxhost::SharedArray<std::int32_t>(std::move(iNodeIds));
  mesh.elementIds = voxhost::SharedArray<std::int32_t>({1, 2, 3, 4});
  return mesh;
}

//! A card with one row per name or id: names begin with a letter.
struct CardBench
{
  NeutralModel records;
  AppliedCard card;

  CardBench(const char* iKeyword, std::int32_t iStep, const std::vector<std::string>& iTargets)
  {
    card.keyword = iKeyword;
    card.step = iStep;
    for (const std::string& target : iTargets)
    {
      AppliedRow row;
      row.firstDof = row.lastDof = 3;
      if (std::isdigit(target[0]) != 0)
        row.id = std::stoi(target);
      else
        row.name = static_cast<std::int32_t>(records.names.size());
      records.names.push_back(target);
      card.rows.push_back(row);
    }
  }
  std::string Alias() const { return AliasOf(card, records); }
};

TEST(AliasOfACard, NamesItsTargetsAndItsStep)
{
  EXPECT_EQ(CardBench("CLOAD", 1, {"TOP"}).Alias(), "CLOAD 3 on TOP, step 1");
  EXPECT_EQ(CardBench("CLOAD", 0, {"TOP", "13"}).Alias(), "CLOAD 3 on TOP and node 13");
  EXPECT_EQ(CardBench("DLOAD", 0, {"7"}).Alias(), "DLOAD 3 on element 7");
}

TEST(AliasOfACard, CountsWhatIsMoreThanTwoTargets)
{
  EXPECT_EQ(CardBench("BOUNDARY", 0, {"A", "B", "C", "4"}).Alias(), "BOUNDARY 3 on A, B and 2 more");
}

TEST(AliasOfACard, WithoutRowsIsTheKeyword)
{
  EXPECT_EQ(CardBench("CLOAD", 2, {}).Alias(), "CLOAD, step 2");
}

TEST(AliasOfACard, TellsARangeOfDegreesOfFreedomOnlyWhenAllRowsHaveIt)
{
  CardBench bench("BOUNDARY", 0, {"A", "B"});
  bench.card.rows[0].firstDof = bench.card.rows[1].firstDof = 1;
  EXPECT_EQ(bench.Alias(), "BOUNDARY 1-3 on A and B");
  bench.card.rows[1].firstDof = 2;
  EXPECT_EQ(bench.Alias(), "BOUNDARY on A and B");
}

TEST(AliasOfACard, TellsALabelInPlaceOfDegreesOfFreedom)
{
  CardBench bench("DLOAD", 0, {"ALL"});
  bench.records.names.push_back("GRAV");
  bench.card.rows[0].label = 1;
  EXPECT_EQ(bench.Alias(), "DLOAD GRAV on ALL");
}

TEST(AliasOfASection, NamesSetAndMaterial)
{
  Section section;
  section.kind = SectionKind::Shell;
  section.elementSet = "PLATE";
  section.material = "STEEL";
  EXPECT_EQ(AliasOf(section), "Shell section on PLATE of STEEL");
}

TEST(AliasOfAnOutputRequest, ListsAFewVariables)
{
  OutputRequest request;
  request.keyword = "ELFILE";
  request.variables = {"S", "E", "PEEQ", "ENER", "SDV"};
  request.set = "ALL";
  request.card.step = 1;
  EXPECT_EQ(AliasOf(request), "ELFILE S,E,PEEQ,ENER,... on ALL, step 1");
}

TEST(MeshPlaces, OfIdsWithoutHolesAreTheIdsFromTheFirstOn)
{
  const voxhost::MeshData mesh = MeshOf({11, 12, 13, 14});
  EXPECT_EQ(PlacesOf(MeshPlaces(mesh).OfNodes({11, 14})), (Places{0, 3}));
}

TEST(MeshPlaces, OfIdsWithHolesAreLookedUp)
{
  const voxhost::MeshData mesh = MeshOf({5, 90, 1000});
  EXPECT_EQ(PlacesOf(MeshPlaces(mesh).OfNodes({5, 1000})), (Places{0, 2}));
}

TEST(MeshPlaces, IdsThatAreNotInTheMeshAreLeftOut)
{
  const voxhost::MeshData withHoles = MeshOf({5, 90, 1000});
  const voxhost::MeshData without = MeshOf({5, 6, 7});
  EXPECT_EQ(PlacesOf(MeshPlaces(withHoles).OfNodes({4, 90, 91, 2000})), (Places{1}));
  EXPECT_EQ(PlacesOf(MeshPlaces(without).OfNodes({4, 6, 8})), (Places{1}));
  EXPECT_EQ(PlacesOf(MeshPlaces(MeshOf({})).OfNodes({1, 2})), Places{});
}

TEST(MeshPlaces, SidesStayWithTheirElements)
{
  const voxhost::MeshData mesh = MeshOf({1});
  Surface surface;
  surface.members = {2, 4, 9};
  surface.sides = {5, 6, 1};
  const voxhost::ApplyTo applyTo = MeshPlaces(mesh).OfSurface(surface);
  EXPECT_EQ(PlacesOf(applyTo), (Places{1, 3}));
  EXPECT_EQ(SidesOf(applyTo), (std::vector<int>{5, 6}));
  EXPECT_EQ(applyTo.position, VOXSamPositionFace);
}

TEST(ApplyToUnion, OfOneSetIsTheSetItself)
{
  const voxhost::MeshData mesh = MeshOf({1, 2, 3});
  const voxhost::ApplyTo set = MeshPlaces(mesh).OfNodes({1, 3});
  ApplyToUnion targets(mesh);
  targets.Add(set);
  EXPECT_EQ(targets.Take().places.data(), set.places.data());
}

TEST(ApplyToUnion, TakesEachEntityOnceInAscendingOrder)
{
  const voxhost::MeshData mesh = MeshOf({1, 2, 3, 4});
  ApplyToUnion targets(mesh);
  targets.AddNode(4);
  targets.Add(MeshPlaces(mesh).OfNodes({2, 4}));
  targets.AddNode(1);
  targets.AddNode(77);
  EXPECT_EQ(PlacesOf(targets.Take()), (Places{0, 1, 3}));
}

TEST(ApplyToUnion, TakesWholeElementsWhereSidesMeetThem)
{
  const voxhost::MeshData mesh = MeshOf({1});
  Surface surface;
  surface.members = {2, 2};
  surface.sides = {1, 5};
  ApplyToUnion targets(mesh);
  targets.Add(MeshPlaces(mesh).OfSurface(surface));
  targets.AddElement(3);
  const voxhost::ApplyTo applyTo = targets.Take();
  EXPECT_EQ(applyTo.position, VOXSamPositionElement);
  EXPECT_EQ(PlacesOf(applyTo), (Places{1, 2}));
  EXPECT_TRUE(applyTo.sides.empty());
}

TEST(ApplyToUnion, OfNothingAppliesToNothing)
{
  const voxhost::MeshData mesh = MeshOf({1});
  EXPECT_EQ(ApplyToUnion(mesh).Take().position, VOXSamPositionUnknown);
}

TEST(Coverage, CountsTheRecordsThatBecomeNoFeature)
{
  NeutralModel records;
  records.interactions.resize(2);
  records.otherCards.resize(2);
  records.otherCards[0].keyword = records.otherCards[1].keyword = "CONTROLS";
  const auto uncovered = RecordsWithoutFeature(records);
  ASSERT_EQ(uncovered.size(), 2u);
  EXPECT_EQ(uncovered[0].what, "contact interactions");
  EXPECT_EQ(uncovered[1].what, "*CONTROLS cards");
  EXPECT_EQ(uncovered[1].count, 2);
}

} // namespace
