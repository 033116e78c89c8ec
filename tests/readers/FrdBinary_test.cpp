// SPDX-License-Identifier: MIT
#include "FrdBench.h"

using testing::ElementsAre;

namespace voxbench
{
using namespace frdtext;

namespace
{

template <class Value>
std::string Bytes(std::initializer_list<Value> iValues)
{
  std::string bytes(iValues.size() * sizeof(Value), '\0');
  std::memcpy(bytes.data(), iValues.begin(), bytes.size());
  return bytes;
}

std::string Nodes()
{
  return kHead + NodesHead(2, 3) + Bytes<std::int32_t>({1}) + Bytes({0., 0.5, 0.}) + Bytes<std::int32_t>({2}) +
         Bytes({1. / 3., 0., 0.});
}

std::string Element(std::int32_t iId)
{
  return Bytes<std::int32_t>({iId, 11, 0, 1, 1, 2});
}

std::string Disp(float iFirst, float iSecond)
{
  return StepRecord(1, 1, 1) + ResultsHead(1, " 1.000000000", 2, 0, 2) + Names("DISP", {"D1"}) +
         Bytes<std::int32_t>({1}) + Bytes({iFirst}) + Bytes<std::int32_t>({2}) + Bytes({iSecond});
}

std::string BinaryFile()
{
  return Nodes() + ElementsHead(1, 2) + Element(5) + Disp(.25f, -1e-20f) + kFileEnd;
}

} // namespace

TEST(FrdBinary, NodesElementsAndValuesAreRead)
{
  FrdBench bench;
  bench.Read(BinaryFile());

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_EQ(bench.records.nodes.xyz[1], .5);
  EXPECT_EQ(bench.records.nodes.xyz[3], 1. / 3.);
  EXPECT_THAT(Ids(bench.records.elements.ids), ElementsAre(5));
  EXPECT_THAT(Values(bench.records.blocks[0]), ElementsAre(.25, static_cast<double>(-1e-20f)));
}

TEST(FrdBinary, ValuesOfDoublePrecisionAreRead)
{
  FrdBench bench;
  bench.Read(Nodes() + ResultsHead(1, " 1.000000000", 1, 0, 3) + Names("NDTEMP", {"T"}) + Bytes<std::int32_t>({2}) +
             Bytes({1. / 7.}) + kFileEnd);

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_THAT(Values(bench.records.blocks[0]), ElementsAre(1. / 7.));
}

TEST(FrdBinary, CoordinatesOfSinglePrecisionAreRead)
{
  FrdBench bench;
  bench.Read(kHead + NodesHead(1, 2) + Bytes<std::int32_t>({3}) + Bytes({.5f, .25f, .125f}) + kFileEnd);

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_EQ(bench.records.nodes.xyz[2], .125);
}

TEST(FrdBinary, ABlockMayEndLikeOneOfText)
{
  FrdBench bench;
  bench.Read(Nodes() + kBlockEnd + ElementsHead(1, 2) + Element(5) + kBlockEnd + Disp(1.f, 2.f) + kBlockEnd + kFileEnd);

  EXPECT_EQ(bench.Refusal(), "read");
}

TEST(FrdBinary, MoreElementsThanAnnouncedAreAFinding)
{
  FrdBench bench;
  bench.Read(Nodes() + ElementsHead(1, 2) + Element(5) + Element(6) + Disp(1.f, 2.f) + kFileEnd);

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_THAT(Ids(bench.records.elements.ids), ElementsAre(5, 6));
  EXPECT_THAT(bench.Findings(), ElementsAre("elements 1 elements are announced, 2 follow."));
}

TEST(FrdBinary, ValuesThatAreNoNumbersAreNaNAndAFinding)
{
  FrdBench bench;
  bench.Read(Nodes() + ElementsHead(1, 2) + Element(5) + Disp(std::numeric_limits<float>::infinity(), std::nanf("")) +
             kFileEnd);

  EXPECT_THAT(bench.Findings(), ElementsAre("DISP 2 values are no numbers."));
  EXPECT_TRUE(std::isnan(bench.records.blocks[0].values[0]));
}

TEST(FrdBinary, ARefusalNamesTheByte)
{
  FrdBench bench;
  const std::string head = Nodes() + ElementsHead(1, 2) + Element(5) + StepRecord(1, 1, 1) +
                           ResultsHead(1, " 1.000000000", 2, 0, 2) + Names("DISP", {"D1"}) + Bytes<std::int32_t>({1}) +
                           Bytes({1.f});
  bench.Read(head + Bytes<std::int32_t>({-7}) + Bytes({1.f}) + kFileEnd);

  EXPECT_EQ(bench.Refusal(),
            "0 results DISP: at byte " + std::to_string(head.size()) + ": row 2 has the node number -7.");
}

TEST(FrdBinary, AFileCutOffAnywhereIsRefused)
{
  const std::string whole = BinaryFile();
  FrdBench bench;
  for (std::size_t length = 0; length + 1 < whole.size(); ++length) // the last line may lack its end
  {
    bench.Read(std::string_view(whole).substr(0, length));
    EXPECT_FALSE(bench.outcome.ok) << "cut off at byte " << length;
  }
}

TEST(FrdBinary, AnAnnouncementBeyondTheFileIsRefused)
{
  FrdBench bench;
  bench.Read(kHead + NodesHead(2000000000, 3) + Bytes<std::int32_t>({1}) + Bytes({0., 0., 0.}) + kFileEnd);

  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_THAT(bench.outcome.reason, testing::HasSubstr("9999"));
}

} // namespace voxbench
