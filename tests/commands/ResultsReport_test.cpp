// SPDX-License-Identifier: MIT
#include "voxbench/report/ResultsReport.h"

#include <gmock/gmock.h>
#include <limits>
#include <sstream>

using testing::HasSubstr;
using testing::Not;
using voxbench::Output;
using voxbench::ResultsListing;
using voxbench::ResultsReport;
using voxbench::ResultTable;

namespace
{

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
using Maker = std::unique_ptr<ResultsReport> (*)(Output&, bool);

std::string Shown(Maker iMake, const ResultTable& iTable, bool iWithValues)
{
  std::ostringstream text;
  {
    Output output(text);
    const auto report = iMake(output, iWithValues);
    report->Add(iTable);
    report->Close();
  }
  return text.str();
}

std::string Listed(Maker iMake, const ResultsListing& iListing)
{
  std::ostringstream text;
  {
    Output output(text);
    const auto report = iMake(output, true);
    report->List(iListing);
    report->Close();
  }
  return text.str();
}

//! Temperatures of two nodes, the second without a value.
ResultTable Temperatures()
{
  ResultTable table;
  table.type = "NDTEMP";
  table.title = "temperatures";
  table.version = {"2i", "mode", true, 2, 1, 0, 4, 3, 12.5};
  table.position = "NODE";
  table.components = {"T"};
  table.entities = 2;
  table.whole = 1;
  table.archiver = "none";
  table.groups.push_back({"A, \"B\"", "NODE", 2, {7, 9}, {20.5, kNone}, {0., 0., 1., 0., 0., 2.}, {}, {}, ""});
  table.groups[0].minima = {{20.5, 7, {0., 0., 1.}}};
  table.groups[0].maxima = {{20.5, 7, {0., 0., 1.}}};
  return table;
}

} // namespace

TEST(ResultsReport, VersionsInARowAreShownAsOneRun)
{
  ResultsListing listing;
  listing.types.push_back({"DISP", "displacements", {"D1"}, {}});
  for (const char* const version : {"1", "1i", "3", "3i", "4", "4i", "5"})
    listing.types[0].available.push_back({version, {"NODE"}});
  EXPECT_THAT(Listed(ResultsReport::Text, listing), HasSubstr("1, 3-5, 1i, 3i-4i  NODE"));
}

TEST(ResultsReport, AListingWithoutTypesSaysSo)
{
  EXPECT_THAT(Listed(ResultsReport::Text, {}), HasSubstr("No results."));
}

TEST(ResultsReport, ACommaSeparatedListingHasARowPerDefinition)
{
  ResultsListing listing;
  listing.types.push_back({"DISP", "displacements", {"D1", "D2"}, {{"1", {"NODE", "CENTER"}}}});
  EXPECT_EQ(Listed(ResultsReport::Csv, listing), "type,title,version,position,components\n"
                                                 "DISP,displacements,1,NODE,D1 D2\n"
                                                 "DISP,displacements,1,CENTER,D1 D2\n");
}

TEST(ResultsReport, TextTellsTheVersionTheCollectorAndTheGroup)
{
  const std::string text = Shown(ResultsReport::Text, Temperatures(), false);
  EXPECT_THAT(text,
              HasSubstr("NDTEMP (temperatures) at NODE, version 2i: mode, step 1, mode 4, nodal diameter 3, value "
                        "12.5, imaginary part\n"));
  EXPECT_THAT(text, HasSubstr("2 entities, 1 with values; out of date; archiver: none\n"));
  EXPECT_THAT(text, HasSubstr("Group A, \"B\", NODE: 2 entities, 2 nodes with results\n"));
}

TEST(ResultsReport, AMissingNumberIsADashAnEmptyFieldOrNull)
{
  EXPECT_THAT(Shown(ResultsReport::Text, Temperatures(), true), HasSubstr("           9              -\n"));
  EXPECT_THAT(Shown(ResultsReport::Csv, Temperatures(), true),
              HasSubstr("NDTEMP,2i,12.5,NODE,\"A, \"\"B\"\"\",9,0,0,2,\n"));
  EXPECT_THAT(Shown(ResultsReport::Json, Temperatures(), true), HasSubstr("[9, null]"));
}

TEST(ResultsReport, ExtremesOfNothingAreDashesEmptyFieldsOrNull)
{
  ResultTable table = Temperatures();
  table.groups[0].minima = {{}};
  EXPECT_THAT(Shown(ResultsReport::Text, table, false), HasSubstr("  T        -     -  -  -  -  2.050000e+01     7"));
  EXPECT_THAT(Shown(ResultsReport::Csv, table, false), HasSubstr(",T,,,,,,20.5,7,0,0,1\n"));
  EXPECT_THAT(Shown(ResultsReport::Json, table, false), HasSubstr("\"minimum\":null"));
}

TEST(ResultsReport, WithoutValuesOnlyExtremesAreShown)
{
  EXPECT_THAT(Shown(ResultsReport::Json, Temperatures(), false), Not(HasSubstr("values\":")));
  EXPECT_THAT(Shown(ResultsReport::Csv, Temperatures(), false),
              HasSubstr("type,version,value,position,group,component,minimum,minimumNode,minimumX,minimumY,minimumZ,"
                        "maximum,maximumNode,maximumX,maximumY,maximumZ\n"));
}

TEST(ResultsReport, FailuresAreTold)
{
  ResultTable table = Temperatures();
  table.groups[0].failure = "no faces";
  EXPECT_THAT(Shown(ResultsReport::Text, table, true), HasSubstr("  failed: no faces\n"));
  EXPECT_THAT(Shown(ResultsReport::Json, table, true), HasSubstr("\"failure\":\"no faces\""));
  table.failure = "no collector";
  EXPECT_THAT(Shown(ResultsReport::Text, table, true), HasSubstr("  failed: no collector\n"));
  EXPECT_THAT(Shown(ResultsReport::Json, table, true), HasSubstr("\"failure\":\"no collector\""));
}

TEST(ResultsReport, ANumberOfSinglePrecisionIsShownAsShortAsOne)
{
  EXPECT_EQ(voxbench::NumberText(static_cast<double>(0.1f)), "0.1");
  EXPECT_EQ(voxbench::NumberText(0.1), "0.1");
  EXPECT_EQ(voxbench::NumberText(1.23456789012), "1.23456789012");
  EXPECT_EQ(voxbench::NumberText(kNone), "");
}
