// SPDX-License-Identifier: MIT
#include "DocumentText.h"
#include "RunProgram.h"
#include "host/FeatureModeler/Restoration.h"
#include "voxbench/readers/inp/InpReader.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <stdexcept>

namespace voxtest
{
namespace
{

using voxhost::Feature;

//! A value, all digits told.
struct Text
{
  std::string operator()(double iValue) const { return fmt::format("{:a}", iValue); }
  std::string operator()(unsigned char iValue) const { return iValue != 0 ? "yes" : "no"; }
  std::string operator()(std::int32_t iValue) const { return std::to_string(iValue); }
  std::string operator()(const VOXUnicodeString& iValue) const
  {
    return '"' + std::string(iValue.ConvertToChar()) + '"';
  }
  std::string operator()(Feature* iValue) const
  {
    return iValue == nullptr ? "#none" : '#' + std::to_string(iValue->Identifier());
  }
  template <class Element>
  std::string operator()(const voxhost::StoredList<Element>& iList) const
  {
    std::string text = "[";
    for (std::size_t place = 0; iList != nullptr && place < iList->size(); ++place)
      text += (*this)((*iList)[place]) + " ";
    return text + "]";
  }
};

std::string TextOfState(const Feature& iFeature)
{
  const voxhost::FeatureState state = voxhost::Restoration::StateOf(iFeature);
  const voxhost::Views& views = iFeature.OwningDocument()->ShownViews();
  return fmt::format(
      "stamp {} out {} marked {} fails {} active {} subscribed {} explicit {} shown {}{} id '{}' type '{}'",
      state.timeStamp, state.outOfDate, state.marked, state.updateFails, state.active, state.subscribed,
      state.explicitState, views.IsShown(&iFeature, voxhost::Views::kIn3D),
      views.IsShown(&iFeature, voxhost::Views::kInGraph), state.identifyingString.value_or("-"),
      state.physicalType.value_or("-"));
}

std::string TextOfReferrers(const Feature& iFeature)
{
  std::vector<std::string> referrers;
  for (const voxhost::Referrer& referrer : iFeature.Referrers())
    referrers.push_back(fmt::format("{}.{}", referrer.feature->Identifier(), referrer.attribute));
  std::sort(referrers.begin(), referrers.end());
  return fmt::format("{}", fmt::join(referrers, " "));
}

std::string TextOfObject(const voxhost::ExplicitModel& iModel, const voxhost::Record& iRecord)
{
  std::string text = fmt::format("{} '{}' status {} mesh {} feature {} {} {} position {} frame {}",
                                 iRecord.physicalType, iRecord.name, iRecord.status, iRecord.hasMesh,
                                 iRecord.featureKind, iRecord.featureIdentifier, iRecord.featurePointer != nullptr,
                                 static_cast<int>(iRecord.applyTo.position), iModel.GlobalFrame() == &iRecord.head);
  const auto addTags = [&](const char* iWhat, const auto& iObjects)
  {
    text += iWhat;
    for (const VOXSamModelDataRoot* const object : iObjects)
      text += ' ' + std::to_string(iModel.TagOf(*object));
  };
  addTags(" parents", iRecord.parents);
  addTags(" children", iRecord.children);
  text += fmt::format(" places {}", fmt::join(iRecord.applyTo.places.begin(), iRecord.applyTo.places.end(), " "));
  text += fmt::format(" sides {}", fmt::join(iRecord.applyTo.sides.begin(), iRecord.applyTo.sides.end(), " "));
  for (const voxhost::AxisData& axis : iRecord.axis)
    text += fmt::format(" axis {} {} {} {} {}", axis.origin, axis.i, axis.j, axis.k, axis.cylindrical);
  for (const voxhost::ExpressionData& expression : iRecord.expression)
  {
    text += fmt::format(" expression '{}' {:a}", expression.text, expression.constant);
    for (const auto& term : expression.terms)
      text += fmt::format(" {} {} {:a}", term.nodeId, term.dof, term.coefficient);
    for (const auto& [from, to] : expression.table)
      text += fmt::format(" {:a}:{:a}", from, to);
  }
  return text;
}

std::string TextOfMesh(const voxhost::MeshData& iMesh)
{
  const auto all = [](const auto& iArray) { return fmt::format("{}\n", fmt::join(iArray.begin(), iArray.end(), " ")); };
  return all(iMesh.nodeIds) + all(iMesh.coordinates) + all(iMesh.elementIds) + all(iMesh.elementTypes) +
         all(iMesh.offsets) + all(iMesh.connectivity);
}

} // namespace

std::string TextOfFeature(const Feature& iFeature)
{
  const Feature* const father = iFeature.Father();
  std::string text =
      fmt::format("#{} {} '{}' of {} in {} below {}.{} referred {} {}\n", iFeature.Identifier(), iFeature.Type().Name(),
                  iFeature.Name().ConvertToChar(), iFeature.StartUp()->Name().ConvertToChar(),
                  iFeature.OwningContainer()->Name(), father == nullptr ? 0 : father->Identifier(),
                  iFeature.HoldingAttribute(), TextOfReferrers(iFeature), TextOfState(iFeature));
  const auto& attributes = iFeature.Type().Attributes();
  for (std::size_t place = 0; place < attributes.size(); ++place)
  {
    const auto index = static_cast<int>(place);
    const voxhost::StoredValue* const value = iFeature.Find(index);
    text += fmt::format("  {} {} {} {}\n", attributes[place].name, iFeature.TypeOf(index),
                        iFeature.IsLocal(index) ? "local" : "inherited",
                        value == nullptr ? "none" : std::visit(Text(), *value));
  }
  return text;
}

std::string TextOfDocument(const voxbench::LoadedModel& iModel)
{
  std::string text = fmt::format("clock {} root {}\n", iModel.Document().Clock(), iModel.Root().Identifier());
  for (const voxhost::Container* const container : iModel.Document().Containers())
    text += fmt::format("container {} {} {}\n", container->Name(), container->LateType(), container->Holds());
  for (const Feature* const feature : iModel.Document().AllFeatures())
    text += TextOfFeature(*feature);
  const voxhost::ExplicitModel& objects = iModel.Explicit();
  for (int tag = 1; tag <= static_cast<int>(objects.RecordCount()); ++tag)
    if (const VOXSamModelDataRoot* const object = objects.FindTag(tag))
      text += fmt::format("@{} {}\n", tag, TextOfObject(objects, *voxhost::ExplicitModel::RecordAt(*object)));
  return text + TextOfMesh(objects.Mesh());
}

void OpenDeck(const std::string& iName, voxbench::LoadedModel& oModel)
{
  voxbench::NeutralModel records;
  if (!voxbench::ReadInp(DataFile(iName), {}, records).ok || !oModel.Build(std::move(records)).empty())
    throw std::runtime_error("the deck " + iName + " cannot be opened");
}

} // namespace voxtest
