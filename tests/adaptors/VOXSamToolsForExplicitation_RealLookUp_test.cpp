// SPDX-License-Identifier: MIT
#include "VOXSamToolsForExplicitation.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Faults.h"
#include "tests/adaptors/LookUpWorld.h"

#include <memory>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Document;
using voxhost::ExplicitModel;
using voxhost::Faults;

namespace
{

// A document with a part that made the mesh of a model, and a group.
class RealLookUp
{
public:
  RealLookUp() : document(Types())
  {
    document.SetExplicitModel(&model);
    mesh = model.Create(NULL_exp, "MESH", "mesh");
    model.SetMesh(mesh, TwoNodesAndAnElement());
    group = model.Create(NULL_exp, "GROUP", "group");
    Make("MaterialSet", 4711);
    part = Make("MSHPart", TagOf(mesh));
    maker = Make("SAMFreeGroup", TagOf(group));
  }

  voxhost::Feature* Make(const char* iType, int iTag)
  {
    voxhost::Feature* const feature = document.New(iType, iType);
    feature->Set("ExplicitTag", iTag);
    return feature;
  }

  const VOXBaseUnknown* Found(const VOXAnalysisExplicitParent& iObject)
  {
    const VOXIContainer_var spContainer(&document.MainContainer());
    VOXISpecObject* const found = VOXSamToolsForExplicitation::GetParentFeature(iObject, spContainer);
    const VOXBaseUnknown* const component = found == nullptr ? nullptr : found->GetImpl(0);
    if (found != nullptr)
      found->Release();
    return component;
  }

  static std::shared_ptr<const voxhost::TypeCatalogue> Types()
  {
    static const auto types = []
    {
      const auto made = std::make_shared<voxhost::TypeCatalogue>();
      EXPECT_EQ(made->Declare(voxhost::AnalysisTypes()), "");
      return std::shared_ptr<const voxhost::TypeCatalogue>(made);
    }();
    return types;
  }

  ExplicitModel model;
  Document document;
  VOXAnalysisExplicitEntity mesh;
  VOXAnalysisExplicitEntity group;
  voxhost::Feature* part = nullptr;
  voxhost::Feature* maker = nullptr;
};

} // namespace

TEST(VOXSamToolsForExplicitationRealLookUp, FeaturesOfADocumentAreFoundHoweverItsHostListsTags)
{
  for (const voxhost::TagListing listing : {voxhost::TagListing::kAppends, voxhost::TagListing::kReplaces})
  {
    RealLookUp world;
    world.document.SetTagListing(listing);
    EXPECT_EQ(world.Found(world.group), world.maker);
    EXPECT_EQ(world.Found(world.model.FindNode(2)), world.part);
    EXPECT_EQ(world.Found(world.model.FindElement(10)), world.part);
    EXPECT_EQ(world.Found(world.model.Create(NULL_exp, "GROUP", "nobody's")), nullptr);
  }
}

TEST(VOXSamToolsForExplicitationRealLookUp, AFeatureThatCannotBeHadLeavesItsTagToTheNextUnlessListingsReplace)
{
  const auto foundWhenTheMakerCannotBeHad = [](voxhost::TagListing iListing)
  {
    RealLookUp world;
    world.document.SetTagListing(iListing);
    voxhost::Feature* const last = world.Make("GroupSet", 4712);
    const VOXIContainer_var spContainer(&world.document.MainContainer());
    Faults::FailOperation("VOXBaseUnknown::QueryInterface", 8, false); // 4 while listing, 2 before, 2 for the maker
    VOXISpecObject* const found = VOXSamToolsForExplicitation::GetParentFeature(world.group, spContainer);
    Faults::Disarm();
    const bool isLast = found != nullptr && found->GetImpl(0) == last;
    if (found != nullptr)
      found->Release();
    return isLast;
  };
  EXPECT_TRUE(foundWhenTheMakerCannotBeHad(voxhost::TagListing::kAppends));
  EXPECT_FALSE(foundWhenTheMakerCannotBeHad(voxhost::TagListing::kReplaces));
}
