// SPDX-License-Identifier: MIT
#include "VOXSamToolsForExplicitation.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/FeatureModeler/Document.h"
#include "tests/adaptors/AxisSetWorld.h"
#include "tests/support/Torture.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

using namespace voxtest;

namespace
{

// A document with an axis set, whose object in the model holds an axis that a feature made and one that nobody made.
class RealAxes
{
public:
  RealAxes() : document(Types())
  {
    document.SetExplicitModel(&model);
    const VOXAnalysisExplicitEntity setObject = model.Create(NULL_exp, "AXIS_SET", "axes");
    made = model.Create(setObject, "AXIS", "made");
    implicit = model.Create(setObject, "AXIS", "implicit");
    given = model.Create(NULL_exp, "AXIS", "given");
    model.GetGlobalRefFrame(frame);
    analysis = document.New("AnalysisModel", "analysis");
    set = document.New("AxisSet", "axes");
    voxhost::Feature* const axis = document.New("AnalysisAxis", "axis");
    EXPECT_EQ(analysis->Add("SonsList", *set), S_OK);
    EXPECT_EQ(set->Add("SonsList", *axis), S_OK);
    set->Set("ExplicitTag", TagOf(setObject));
    axis->Set("ExplicitTag", TagOf(made));
  }

  HRESULT Log(const VOXAnalysisExplicitAxis& iAxis)
  {
    const VOXISamAnalysisSet_var spSet(static_cast<VOXBaseUnknown*>(set));
    return VOXSamToolsForExplicitation::LogImplicitAxis(spSet, iAxis);
  }

  // The entities of implicit axes among the sons of the set.
  std::vector<voxhost::Feature*> Entities() const
  {
    std::vector<voxhost::Feature*> entities;
    for (voxhost::Feature* const son : set->Features("SonsList"))
      if (son->Name() == "AllImplicitAxis")
        entities.push_back(son);
    return entities;
  }

  Tags Recorded() const { return Entities().at(0)->ExplicitTags(); }

  static std::shared_ptr<const voxhost::TypeCatalogue> Types()
  {
    static const auto types = []
    {
      const auto declared = std::make_shared<voxhost::TypeCatalogue>();
      EXPECT_EQ(declared->Declare(voxhost::AnalysisTypes()), "");
      return std::shared_ptr<const voxhost::TypeCatalogue>(declared);
    }();
    return types;
  }

  voxhost::ExplicitModel model;
  voxhost::Document document;
  voxhost::Feature* analysis = nullptr;
  voxhost::Feature* set = nullptr;
  VOXAnalysisExplicitAxis made;
  VOXAnalysisExplicitAxis implicit;
  VOXAnalysisExplicitAxis given;
  VOXAnalysisExplicitAxis frame;
};

} // namespace

TEST(VOXSamToolsForExplicitationRealAxes, ASetOfADocumentGetsItsEntityAtTheEndOfItsSons)
{
  RealAxes axes;
  EXPECT_EQ(axes.Log(axes.given), S_OK);
  ASSERT_EQ(axes.Entities().size(), 1u);
  ASSERT_EQ(axes.set->Features("SonsList").size(), 2u) << "behind the feature that was there";
  EXPECT_EQ(axes.set->Features("SonsList").back(), axes.Entities()[0]);
  EXPECT_EQ(axes.Entities()[0]->Type().Name(), "SAMImplicitAxes");
  EXPECT_EQ(axes.Recorded(), (Tags{TagOf(axes.implicit), TagOf(axes.frame), TagOf(axes.given)}));
}

TEST(VOXSamToolsForExplicitationRealAxes, TheSameAxisTwiceIsRecordedOnceInOneEntity)
{
  for (const voxhost::TagListing listing : {voxhost::TagListing::kAppends, voxhost::TagListing::kReplaces})
  {
    RealAxes axes;
    axes.document.SetTagListing(listing);
    EXPECT_EQ(axes.Log(axes.given), S_OK);
    const Tags first = axes.Recorded();
    EXPECT_EQ(axes.Log(axes.given), S_OK);
    EXPECT_EQ(axes.Entities().size(), 1u);
    EXPECT_EQ(axes.Recorded(), first);
  }
}

TEST(VOXSamToolsForExplicitationRealAxes, AnAxisThatWasDeletedIsGoneAtTheNextRecord)
{
  RealAxes axes;
  EXPECT_EQ(axes.Log(axes.given), S_OK);
  axes.implicit.Delete();
  EXPECT_EQ(axes.Log(axes.made), S_OK);
  EXPECT_EQ(axes.Recorded(), (Tags{TagOf(axes.frame), TagOf(axes.given), TagOf(axes.made)}));
}

TEST(VOXSamToolsForExplicitationRealAxes, EveryFailureOfAFirstRecordIsSurvived)
{
  Torture torture("LogImplicitAxis");
  for (const char* const missing :
       {"!!spSet", "!!spSetExplicit", "pModel", "!!spFacto", "!!spEntity", "!!spEntiExplicit"})
    torture.Reports(VOXSamErrorMissingObject, missing, "VOXSamToolsForExplicitation");
  torture.Reports(VOXSamErrorNullExplicit, "ParentSet", "VOXSamToolsForExplicitation")
      .Reports(VOXSamErrorPropagated, "", "VOXSamToolsForExplicitation")
      .Run(
          [](TortureRun& ioRun)
          {
            RealAxes axes;
            const VOXISamAnalysisSet_var spSet(static_cast<VOXBaseUnknown*>(axes.set));
            ioRun.Call([&] { return VOXSamToolsForExplicitation::LogImplicitAxis(spSet, axes.given); });
            // What the factory made and is no feature is not given back, on purpose.
            for (voxhost::Feature* const feature : axes.document.MainContainer().Members())
              if (feature->Name() == "AllImplicitAxis" && voxhost::ErrorLog::Reports().size() == 1 &&
                  voxhost::ErrorLog::Reports()[0].text == "!!spEntity")
                feature->Release();
            EXPECT_LE(axes.Entities().size(), 1u);
            EXPECT_TRUE(ioRun.IsTortured() || axes.Recorded().size() == 3);
          });
}

TEST(VOXSamToolsForExplicitationRealAxes, EveryFailureOfALaterRecordIsSurvived)
{
  Torture torture("LogImplicitAxis");
  for (const char* const missing : {"!!spSet", "!!spSetExplicit", "pModel", "!!spEntiExplicit"})
    torture.Reports(VOXSamErrorMissingObject, missing, "VOXSamToolsForExplicitation");
  torture.Reports(VOXSamErrorPropagated, "", "VOXSamToolsForExplicitation")
      .MayReport(VOXSamErrorMissingObject, "!!spFacto", "VOXSamToolsForExplicitation")
      .MayReport(VOXSamErrorMissingObject, "!!spEntity", "VOXSamToolsForExplicitation")
      .MayReport(VOXSamErrorNullExplicit, "ParentSet", "VOXSamToolsForExplicitation")
      .Run(
          [](TortureRun& ioRun)
          {
            RealAxes axes;
            EXPECT_EQ(axes.Log(axes.given), S_OK);
            const VOXISamAnalysisSet_var spSet(static_cast<VOXBaseUnknown*>(axes.set));
            ioRun.Call([&] { return VOXSamToolsForExplicitation::LogImplicitAxis(spSet, axes.made); });
            EXPECT_TRUE(ioRun.IsTortured() || axes.Recorded().size() == 4);
          });
}
