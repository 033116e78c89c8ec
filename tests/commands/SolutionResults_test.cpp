// SPDX-License-Identifier: MIT
// The solution feature as a program of the host sees it, and where its values come from.
#include "host/ExplicitModel/ArchiverSwitches.h"
#include "tests/readers/FrdBench.h"
#include "voxbench/build/LoadedResults.h"
#include "voxbench/features/SolutionResults.h"

#include <gmock/gmock.h>

using voxbench::LoadedResults;
using voxbench::ReadOutcome;
using voxbench::ResultBlock;
using voxbench::ResultRecords;
namespace frdtext = voxbench::frdtext;

namespace
{

using Wants = std::function<bool(const ResultRecords&, const ResultBlock&)>;

class SolutionResults : public testing::Test
{
protected:
  //! Opens a file of displacements in three states, the imaginary part in the last, keeping no values at first.
  void SetUp() override
  {
    using namespace frdtext;
    std::string text = Mesh();
    for (const char* const value : {" 1.000000000", " 2.000000000", " 3.000000000"})
      text += Block("DISP", {"D1", "D2"}, ResultsHead(value[1] - '0', value, 4, 1));
    file = files.Write("job.frd", text + Block("DISPI", {"D1", "D2"}, ResultsHead(3, " 3.000000000", 4, 1)) + kFileEnd);
    ResultRecords records;
    ASSERT_TRUE(Read([](const auto&, const auto&) { return false; }, records).ok);
    readings = 0;
    ASSERT_EQ(results.Build(std::move(records), nullptr,
                            [this](const Wants& iWants, ResultRecords& oRecords) { return Read(iWants, oRecords); }),
              "");
    spResults = VOXICharacCollector_var(&results.Solution());
    ASSERT_FALSE(!spResults);
    int count = 0;
    const int* types = nullptr;
    const void* reserved = nullptr;
    ASSERT_EQ(spResults->GetAvailablePhysicalTypes(count, types, reserved), S_OK);
    ASSERT_EQ(count, 1);
    type = types[0];
  }

  ReadOutcome Read(const Wants& iWants, ResultRecords& oRecords)
  {
    ++readings;
    voxbench::ResultOptions options;
    options.wants = iWants;
    return voxbench::ReadFrd(file, options, oRecords);
  }

  static VOXSamCharacVersion Version(int iNumber, unsigned char iVariant = 0)
  {
    VOXSamCharacVersion version;
    version._KindCode = iNumber == 3 ? 4 : 1; // with an imaginary part a time is a frequency
    version._Occurrence = iNumber;
    version._Variant = iVariant;
    return version;
  }

  const VOXAnalysisCharacCollector* Collector(const VOXSamCharacVersion& iVersion)
  {
    const VOXAnalysisCharacCollector* collector = nullptr;
    EXPECT_EQ(spResults->GetCharacCollector(type, iVersion, "NODE", collector), S_OK);
    return collector;
  }

  voxbench::ArchiverState Archiver(const VOXSamCharacVersion& iVersion)
  {
    voxbench::ArchiverState state;
    EXPECT_EQ(dynamic_cast<voxbench::SolutionTie&>(*spResults.Get()).AskArchiver(type, iVersion, "NODE", state), S_OK);
    return state;
  }

  int Standing()
  {
    int count = -1;
    const VOXAnalysisCharacCollector* const* collectors = nullptr;
    EXPECT_EQ(spResults->GetCharacCollectors(count, collectors), S_OK);
    return count;
  }

  bool IsUpToDate(const VOXAnalysisCharacCollector* iCollector)
  {
    unsigned char isUpToDate = 0;
    EXPECT_EQ(spResults->IsCharacCollectorUpToDate(iCollector, isUpToDate), S_OK);
    return isUpToDate != 0;
  }

  voxbench::InpBench files;
  std::filesystem::path file;
  int readings = 0;
  LoadedResults results;
  VOXICharacCollector_var spResults;
  int type = 0;
};

} // namespace

TEST_F(SolutionResults, ACollectorIsThatOfItsDefinition)
{
  const VOXAnalysisCharacCollector* const collector = Collector(Version(2));
  ASSERT_NE(collector, nullptr);
  int physicalType = 0;
  VOXString name;
  VOXSamCharacVersion version;
  VOXString position;
  int components = 0;
  int frame = -1;
  ASSERT_EQ(collector->GetDefinition(physicalType, name, version, position, components, frame), S_OK);
  EXPECT_EQ(physicalType, type);
  EXPECT_EQ(name, "DISP");
  EXPECT_EQ(version, Version(2));
  EXPECT_EQ(position, "NODE");
  EXPECT_EQ(components, 2);
  EXPECT_EQ(frame, 0);
  EXPECT_THAT(std::vector<double>(collector->GetValues(), collector->GetValues() + 4),
              testing::ElementsAre(1., 1.1, 2., 2.1));
}

TEST_F(SolutionResults, ACollectorStandsUnderTheObjectOfItsFeature)
{
  VOXAnalysisExplicitParent context;
  ASSERT_EQ(Collector(Version(1))->GetContext(context), S_OK);
  int tag = 0;
  ASSERT_EQ(context.GetTag(tag), S_OK);
  EXPECT_EQ(tag, results.Solution().FirstExplicitTag());
  EXPECT_EQ(Collector(Version(1))->IsAttachedToModel(), 1);
}

TEST_F(SolutionResults, TheSameQuestionHasTheSameCollector)
{
  EXPECT_EQ(Collector(Version(1)), Collector(Version(1)));
  EXPECT_EQ(Standing(), 1);
}

TEST_F(SolutionResults, RealAndImaginaryPartsHaveCollectorsOfTheirOwn)
{
  EXPECT_NE(Collector(Version(3)), Collector(Version(3, 1)));
  EXPECT_EQ(Collector(Version(2, 1)), nullptr);
}

TEST_F(SolutionResults, ADefinitionThatIsNotOfferedHasNoCollector)
{
  EXPECT_EQ(Collector(Version(7)), nullptr);
  const VOXAnalysisCharacCollector* collector = nullptr;
  EXPECT_EQ(spResults->GetCharacCollector(type, Version(1), "CENTER", collector), S_OK);
  EXPECT_EQ(collector, nullptr);
}

TEST_F(SolutionResults, EveryDefinitionHasAnArchiverOfItsOwn)
{
  Collector(Version(3));
  EXPECT_TRUE(Archiver(Version(3)).isKept);
  EXPECT_FALSE(Archiver(Version(3, 1)).isKept);
  Collector(Version(3, 1));
  EXPECT_TRUE(Archiver(Version(3, 1)).isKept);
}

TEST_F(SolutionResults, AnArchiverThatIsNotStreamableIsNotKept)
{
  voxhost::ArchiverSwitches::SetNewAreStreamable(false);
  Collector(Version(1));
  voxhost::ArchiverSwitches::Restore();
  EXPECT_FALSE(Archiver(Version(1)).isKept);
}

TEST_F(SolutionResults, ACollectorOutOfDateIsMadeAnewAndTheArchiverStays)
{
  const VOXAnalysisCharacCollector* const first = Collector(Version(1));
  first->AddRef();
  VOXAnalysisExplicitParent context;
  first->GetContext(context);
  results.Model().Explicit().Touch(context);
  EXPECT_FALSE(IsUpToDate(first));

  const VOXAnalysisCharacCollector* const second = Collector(Version(1));
  EXPECT_NE(second, first);
  EXPECT_TRUE(IsUpToDate(second));
  EXPECT_FALSE(IsUpToDate(first));
  EXPECT_EQ(Standing(), 1);
  EXPECT_TRUE(Archiver(Version(1)).isKept);
  first->Release();
}

TEST_F(SolutionResults, AChangedMeshPutsTheResultsOutOfDateUntilTheyAreUpdated)
{
  const VOXAnalysisCharacCollector* const collector = Collector(Version(1));
  voxhost::Feature& mesh = *results.Model().MembersOf("MSHSetContainer").front();
  mesh.Set("Alias", std::string("changed"));
  EXPECT_FALSE(IsUpToDate(collector));
  EXPECT_TRUE(Archiver(Version(1)).isKept);

  ASSERT_EQ(results.Model().Document().UpdateAll(), S_OK);
  EXPECT_FALSE(Archiver(Version(1)).isKept); // an update of the feature drops the archivers
}

TEST_F(SolutionResults, ADeletedCollectorIsForgotten)
{
  const VOXAnalysisCharacCollector* collector = Collector(Version(1));
  Collector(Version(2));
  ASSERT_EQ(spResults->DeleteCharacCollector(collector), S_OK);
  EXPECT_EQ(collector, nullptr);
  EXPECT_EQ(Standing(), 1);
  ASSERT_EQ(spResults->DeleteAll(), S_OK);
  EXPECT_EQ(Standing(), 0);
  EXPECT_NE(Collector(Version(1)), nullptr);
}

TEST_F(SolutionResults, ATypeThatItHasNotHasNoTitle)
{
  VOXString title;
  EXPECT_EQ(spResults->GetTitle(type, title), S_OK);
  EXPECT_EQ(title, "displacements");
  EXPECT_EQ(spResults->GetTitle(type + 1, title), E_FAIL);
}

TEST_F(SolutionResults, ValuesThatWereNotKeptAreReadOnceForAllVersions)
{
  for (int number = 1; number <= 3; ++number)
    ASSERT_NE(Collector(Version(number)), nullptr);
  EXPECT_EQ(readings, 1);
}

TEST_F(SolutionResults, AFileThatHasChangedSinceIsNotTakenForTheSame)
{
  files.Write("job.frd", frdtext::SmallFile());
  const VOXAnalysisCharacCollector* collector = nullptr;
  EXPECT_EQ(spResults->GetCharacCollector(type, Version(1), "NODE", collector), E_FAIL);
  EXPECT_EQ(collector, nullptr);
  EXPECT_THAT(results.Source().Failure(), testing::HasSubstr("has changed since it was opened"));
}

TEST_F(SolutionResults, AFileOfTheSameShapeWithOtherNamesIsNotTakenForTheSame)
{
  std::ifstream original(file);
  std::string text(std::istreambuf_iterator<char>(original), {});
  for (std::size_t at = text.find("DISP "); at != std::string::npos; at = text.find("DISP ", at))
    text.replace(at, 4, "VELO");
  files.Write("job.frd", text);
  const VOXAnalysisCharacCollector* collector = nullptr;
  EXPECT_EQ(spResults->GetCharacCollector(type, Version(1), "NODE", collector), E_FAIL);
}

TEST_F(SolutionResults, AFileThatHasGoneIsAFailure)
{
  std::filesystem::remove(file);
  const VOXAnalysisCharacCollector* collector = nullptr;
  EXPECT_EQ(spResults->GetCharacCollector(type, Version(1), "NODE", collector), E_FAIL);
  EXPECT_THAT(results.Source().Failure(), testing::HasSubstr("No such file"));
}
