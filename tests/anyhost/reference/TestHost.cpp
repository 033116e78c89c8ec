// SPDX-License-Identifier: MIT
#include "tests/anyhost/TestHost.h"

#include "host/AnalysisCore/ErrorLog.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Ledger.h"

#include <numeric>

#include <gtest/gtest.h>

namespace anyhost
{
namespace
{

std::uint32_t FacesOf(unsigned iRoles)
{
  static constexpr std::pair<Role, voxhost::FeatureFaces> kFaces[] = {
      {kExplicit, voxhost::kExplicitFace},
      {kEntity, voxhost::kEntityFace},
      {kSet, voxhost::kSetFace},
      {kBasicComponent, voxhost::kBasicComponentFace},
      {kSupport, voxhost::kSupportFace},
      {kMeshPartFilter, voxhost::kMeshPartFilterFace},
      {kModelFactory, voxhost::kModelFactoryFace},
  };
  std::uint32_t faces = voxhost::kNoFaces;
  for (const auto& [role, face] : kFaces)
    if ((iRoles & role) != 0)
      faces |= face;
  return faces;
}

voxhost::TypeDeclaration DeclarationOf(const Type& iType)
{
  voxhost::TypeDeclaration declaration{
      .name = iType.name, .physicalType = iType.physicalType, .faces = FacesOf(iType.roles)};
  for (const Attribute& attribute : iType.attributes)
  {
    voxhost::AttributeDeclaration declared{
        .name = attribute.name, .type = attribute.type, .elementType = attribute.elementType};
    for (const Component& component : attribute.components)
      declared.components.push_back({.name = component.name, .type = component.type});
    declaration.attributes.push_back(declared);
  }
  if (!iType.entries.empty())
  {
    declaration.attributes.push_back({.name = "Value", .type = VOXSpecInteger, .value = std::int32_t{0}});
    declaration.parameter = voxhost::ParameterDeclaration{VOXCkeContext::EnumType, iType.entries};
  }
  return declaration;
}

std::shared_ptr<const voxhost::TypeCatalogue> CatalogueOf(const std::vector<Type>& iTypes)
{
  static const auto catalogue = [&]
  {
    const auto made = std::make_shared<voxhost::TypeCatalogue>();
    for (const Type& type : iTypes)
      EXPECT_EQ(made->Declare(DeclarationOf(type)), "");
    return std::shared_ptr<const voxhost::TypeCatalogue>(made);
  }();
  return catalogue;
}

std::vector<std::int32_t> NumbersFrom(std::int32_t iFirst, int iCount)
{
  std::vector<std::int32_t> numbers(static_cast<std::size_t>(iCount));
  std::iota(numbers.begin(), numbers.end(), iFirst);
  return numbers;
}

class ReferenceWorld final : public World
{
public:
  explicit ReferenceWorld(const std::vector<Type>& iTypes) : _Document(CatalogueOf(iTypes))
  {
    _Document.SetExplicitModel(&_Model);
  }

  VOXBaseUnknown* NewFeature(const char* iType, const char* iName) override { return _Document.New(iType, iName); }
  VOXIContainer* Container() override { return &_Document.MainContainer(); }
  VOXAnalysisExplicitModel* Model() override { return &_Model; }

  VOXAnalysisExplicitEntity NewObject(const VOXAnalysisExplicitData& iParent, const char* iPhysicalType) override
  {
    return _Model.Create(iParent, iPhysicalType, iPhysicalType);
  }

  // Each element is a bar between the first two nodes: the tests ask no more of an element than that it is there.
  void FillMesh(const VOXAnalysisExplicitData& iMesh, int iNodes, int iElements) override
  {
    const auto elements = static_cast<std::size_t>(iElements);
    voxhost::MeshData mesh;
    mesh.nodeIds = voxhost::SharedArray<std::int32_t>(NumbersFrom(1, iNodes));
    mesh.coordinates = voxhost::SharedArray<double>(std::vector<double>(3 * static_cast<std::size_t>(iNodes), 0.));
    mesh.elementIds = voxhost::SharedArray<std::int32_t>(NumbersFrom(1, iElements));
    mesh.elementTypes = voxhost::SharedArray<std::uint16_t>(std::vector<std::uint16_t>(elements, 1));
    std::vector<std::uint32_t> offsets;
    std::vector<std::int32_t> connectivity;
    for (std::size_t i = 0; i <= elements; ++i)
      offsets.push_back(static_cast<std::uint32_t>(2 * i));
    for (std::size_t i = 0; i < elements; ++i)
      connectivity.insert(connectivity.end(), {1, 2});
    mesh.offsets = voxhost::SharedArray<std::uint32_t>(std::move(offsets));
    mesh.connectivity = voxhost::SharedArray<std::int32_t>(std::move(connectivity));
    EXPECT_TRUE(_Model.SetMesh(iMesh, mesh));
  }

  VOXAnalysisExplicitChild Node(int iNumber) override { return _Model.FindNode(iNumber); }
  VOXAnalysisExplicitChild Element(int iNumber) override { return _Model.FindElement(iNumber); }

  void SetApplyTo(const VOXAnalysisExplicitData& iEntity, VOXSamPosition iPosition, const std::vector<int>& iNumbers,
                  const std::vector<int>& iSides) override
  {
    std::vector<std::uint32_t> places;
    for (const int number : iNumbers)
      places.push_back(static_cast<std::uint32_t>(number - 1));
    voxhost::ApplyTo applyTo;
    applyTo.position = iPosition;
    applyTo.places = voxhost::SharedArray<std::uint32_t>(std::move(places));
    applyTo.sides = voxhost::SharedArray<std::uint8_t>(std::vector<std::uint8_t>(iSides.begin(), iSides.end()));
    EXPECT_TRUE(_Model.SetApplyTo(iEntity, applyTo));
  }

  void Touch(const VOXAnalysisExplicitData& iObject) override { _Model.Touch(iObject); }
  void SetStatus(const VOXAnalysisExplicitData& iObject, int iStatus) override { _Model.SetStatus(iObject, iStatus); }

  Maker MakerOf(const VOXAnalysisExplicitData& iObject) override
  {
    const voxhost::Record& record = *_Model.RecordOf(iObject);
    return {record.featureKind, record.featureIdentifier};
  }

private:
  voxhost::ExplicitModel _Model;
  voxhost::Document _Document;
};

} // namespace

std::unique_ptr<World> World::Make(const std::vector<Type>& iTypes)
{
  return std::make_unique<ReferenceWorld>(iTypes);
}

std::vector<Report> TakeReports()
{
  std::vector<Report> reports;
  for (const voxhost::ErrorReport& report : voxhost::ErrorLog::Reports())
    reports.push_back({report.kind, report.text, report.file, report.number});
  voxhost::ErrorLog::Clear();
  return reports;
}

std::string FatalTextOf(const std::function<void()>& iCall)
{
  struct Ended
  {
    std::string text;
  };
  voxhost::ErrorLog::SetFatalHandler([](const voxhost::CheckReport& iReport) { throw Ended{iReport.text}; });
  std::string text;
  try
  {
    iCall();
  }
  catch (const Ended& ended)
  {
    text = ended.text;
  }
  voxhost::ErrorLog::SetFatalHandler({});
  return text;
}

long LiveObjects()
{
  const voxhost::Ledger::Balance live = voxhost::Ledger::Read();
  return static_cast<long>(live.components + live.extensions + live.collectors + live.archivers + live.userLists);
}

} // namespace anyhost
