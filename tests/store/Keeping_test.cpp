// SPDX-License-Identifier: MIT
// What this program does not know of a document is kept as the document tells it.
#include "DocumentText.h"
#include "RunProgram.h"
#include "voxbench/features/Catalogue.h"
#include "voxbench/store/DocumentFile.h"

#include <gtest/gtest.h>

using voxbench::LoadedModel;
using voxhost::Feature;

namespace
{

//! A document of a program that knows more: a load type of its own, and an attribute more in a known type.
std::unique_ptr<voxhost::Document> DocumentOfAnotherProgram()
{
  std::vector<voxhost::TypeDeclaration> declarations = voxbench::WorkbenchDeclarations();
  for (voxhost::TypeDeclaration& declaration : declarations)
    if (declaration.name == "DeckLoad")
      declaration.attributes.push_back({.name = "Author", .type = VOXSpecString, .value = std::string("nobody")});
  declarations.push_back({.name = "WindGust", .base = "SAMRealComponent"});
  declarations.push_back({.name = "WindLoad",
                          .base = "DeckLoad",
                          .physicalType = "DISTRIBUTED_LOAD",
                          .attributes = {{.name = "Speeds", .type = VOXSpecList, .elementType = VOXSpecReal},
                                         {.name = "Gust",
                                          .type = VOXSpecComponent,
                                          .components = {{"Gust", "WindGust", {{"Value", 1.5}}}}}},
                          .alsoKindOf = {"Weather"}});
  const auto types = std::make_shared<voxhost::TypeCatalogue>();
  EXPECT_EQ(types->Declare(declarations), "");
  return std::make_unique<voxhost::Document>(types);
}

class DocumentOfANewerProgram : public testing::Test
{
protected:
  void SetUp() override
  {
    auto document = DocumentOfAnotherProgram();
    Feature& root = *document->New("AnalysisModel", "root");
    load = document->New("DeckLoad", "load");
    wind = document->New("WindLoad", "wind");
    root.Add("SonsList", *load);
    root.Add("SonsList", *wind);
    load->Set("Author", std::string("somebody"));
    wind->Set("Speeds", std::vector<double>{30., 42.});
    ASSERT_TRUE(model.Restore({}, std::make_unique<voxhost::ExplicitModel>(), std::move(document)));
    ASSERT_EQ(voxbench::WriteDocumentFile(file, model, true, {}), "");
    ASSERT_EQ(voxbench::ReadDocumentFile(file, opened, {}), "");
  }

  const std::string file = voxtest::TemporaryFile("newer.voxdoc", "");
  LoadedModel model;
  LoadedModel opened;
  Feature* load = nullptr;
  Feature* wind = nullptr;
};

TEST_F(DocumentOfANewerProgram, IsOpenedWithAllItsTypesAndAttributes)
{
  EXPECT_EQ(voxtest::TextOfDocument(opened), voxtest::TextOfDocument(model));
  EXPECT_TRUE(opened.Document().FindFeature(wind->Identifier())->Type().IsSubTypeOf("Weather"));
}

TEST_F(DocumentOfANewerProgram, InheritsWhatItsOwnDeclarationsSay)
{
  const Feature* const fresh = opened.Document().New("WindLoad", "fresh");
  EXPECT_TRUE(fresh->Text("Author") == "nobody");
  ASSERT_EQ(fresh->Features("Gust").size(), 1u);
  EXPECT_EQ(fresh->Features("Gust")[0]->Real("Value"), 1.5);
}

TEST_F(DocumentOfANewerProgram, LosesNothingWhenItIsWrittenAgain)
{
  LoadedModel third;
  ASSERT_EQ(voxbench::WriteDocumentFile(file, opened, true, {}), "");
  ASSERT_EQ(voxbench::ReadDocumentFile(file, third, {}), "");
  EXPECT_EQ(voxtest::TextOfDocument(third), voxtest::TextOfDocument(model));
}

TEST_F(DocumentOfANewerProgram, IsShownByThisProgram)
{
  const auto run = voxtest::RunInProcess({"tree", file});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_NE(run.out.find("WindLoad"), std::string::npos) << run.out;
}

} // namespace
