// SPDX-License-Identifier: MIT
#include "voxbench/store/StoredValue.h"
#include "host/FeatureModeler/Document.h"

#include <cmath>
#include <cstring>

namespace voxbench
{
namespace
{

using voxhost::Feature;
using voxhost::StoredList;
using voxhost::StoredValue;

std::uint32_t IdentifierOf(const Feature* iFeature)
{
  return iFeature == nullptr ? 0 : iFeature->Identifier();
}

void Append(std::vector<std::byte>& ioBytes, const void* iData, std::size_t iSize)
{
  const auto* const data = static_cast<const std::byte*>(iData);
  ioBytes.insert(ioBytes.end(), data, data + iSize);
}

//! Adds a value to a row, by its kind.
struct Writer
{
  Statement& row;
  std::vector<std::byte>& scratch;

  void operator()(double iValue) const
  {
    // A database has no room for a number that is none: its bytes are kept.
    if (!std::isnan(iValue))
    {
      row.Add(iValue);
      return;
    }
    scratch.clear();
    Append(scratch, &iValue, sizeof iValue);
    row.AddBlob(scratch);
  }
  void operator()(unsigned char iValue) const { row.Add(std::int64_t{iValue}); }
  void operator()(std::int32_t iValue) const { row.Add(std::int64_t{iValue}); }
  void operator()(const VOXUnicodeString& iValue) const { row.Add(iValue.ConvertToChar()); }
  void operator()(Feature* const& iFeature) const { row.Add(std::int64_t{IdentifierOf(iFeature)}); }

  template <class Element>
  void operator()(const StoredList<Element>& iList) const
  {
    if (iList == nullptr)
      row.AddBlob({});
    else
      row.AddBlob(BytesOf(iList->data(), iList->size()));
  }
  void operator()(const StoredList<VOXUnicodeString>& iList) const
  {
    scratch.clear();
    for (std::size_t place = 0; iList != nullptr && place < iList->size(); ++place)
    {
      const VOXUnicodeString& text = (*iList)[place];
      const auto length = static_cast<std::uint32_t>(text.GetLength());
      Append(scratch, &length, sizeof length);
      Append(scratch, text.ConvertToChar(), length);
    }
    row.AddBlob(scratch);
  }
  void operator()(const StoredList<Feature*>& iList) const
  {
    scratch.clear();
    for (std::size_t place = 0; iList != nullptr && place < iList->size(); ++place)
    {
      const std::uint32_t identifier = IdentifierOf((*iList)[place]);
      Append(scratch, &identifier, sizeof identifier);
    }
    row.AddBlob(scratch);
  }
};

template <class Element>
StoredList<Element> ListOf(std::span<const std::byte> iBytes)
{
  if (iBytes.size() % sizeof(Element) != 0)
    throw Damaged("a list ends within an element");
  if (iBytes.empty())
    return nullptr;
  auto list = std::make_unique<std::vector<Element>>(iBytes.size() / sizeof(Element));
  std::memcpy(list->data(), iBytes.data(), iBytes.size());
  return list;
}

StoredList<VOXUnicodeString> TextsOf(std::span<const std::byte> iBytes)
{
  if (iBytes.empty())
    return nullptr;
  auto list = std::make_unique<std::vector<VOXUnicodeString>>();
  while (!iBytes.empty())
  {
    std::uint32_t length = 0;
    if (iBytes.size() < sizeof length)
      throw Damaged("a list of texts ends within a length");
    std::memcpy(&length, iBytes.data(), sizeof length);
    iBytes = iBytes.subspan(sizeof length);
    if (iBytes.size() < length)
      throw Damaged("a list of texts ends within a text");
    list->emplace_back(std::string(reinterpret_cast<const char*>(iBytes.data()), length).c_str());
    iBytes = iBytes.subspan(length);
  }
  return list;
}

Feature* FeatureAt(std::int64_t iIdentifier, const voxhost::Document& iDocument)
{
  if (iIdentifier == 0)
    return nullptr;
  Feature* const found = iDocument.FindFeature(static_cast<std::uint32_t>(iIdentifier));
  if (found == nullptr || found->IsStartUp() || iIdentifier != found->Identifier())
    throw Damaged("a value refers to a feature that is not there");
  return found;
}

StoredList<Feature*> FeaturesOf(std::span<const std::byte> iBytes, const voxhost::Document& iDocument)
{
  const StoredList<std::uint32_t> identifiers = ListOf<std::uint32_t>(iBytes);
  if (identifiers == nullptr)
    return nullptr;
  auto list = std::make_unique<std::vector<Feature*>>();
  list->reserve(identifiers->size());
  for (const std::uint32_t identifier : *identifiers)
    list->push_back(FeatureAt(identifier, iDocument));
  return list;
}

StoredValue ReadList(Statement& ioRow, const voxhost::Attribute& iAttribute, const voxhost::Document& iDocument)
{
  const std::span<const std::byte> bytes = ioRow.Blob();
  switch (iAttribute.elementType)
  {
  case VOXSpecReal:
    return ListOf<double>(bytes);
  case VOXSpecBoolean:
    return ListOf<unsigned char>(bytes);
  case VOXSpecInteger:
    return ListOf<std::int32_t>(bytes);
  case VOXSpecString:
    return TextsOf(bytes);
  default:
    return FeaturesOf(bytes, iDocument);
  }
}

double RealOf(Statement& ioRow)
{
  if (ioRow.KindOfNext() != Statement::Kind::kBlob)
    return ioRow.Real();
  const StoredList<double> single = ListOf<double>(ioRow.Blob());
  if (single == nullptr || single->size() != 1)
    throw Damaged("a number has the form of a list");
  return single->front();
}

StoredValue IntegerOf(Statement& ioRow)
{
  if (ioRow.KindOfNext() == Statement::Kind::kBlob) // made a list of integers
    return ListOf<std::int32_t>(ioRow.Blob());
  return static_cast<std::int32_t>(ioRow.Integer(INT32_MIN, INT32_MAX));
}

} // namespace

void AddValue(Statement& ioRow, const StoredValue& iValue, std::vector<std::byte>& ioScratch)
{
  std::visit(Writer{ioRow, ioScratch}, iValue);
}

StoredValue ReadValue(Statement& ioRow, const voxhost::Attribute& iAttribute, const voxhost::Document& iDocument)
{
  switch (iAttribute.type)
  {
  case VOXSpecReal:
    return RealOf(ioRow);
  case VOXSpecBoolean:
    return static_cast<unsigned char>(ioRow.Integer(0, 1));
  case VOXSpecInteger:
    return IntegerOf(ioRow);
  case VOXSpecString:
    return VOXUnicodeString(ioRow.Text().data()); // texts of the database end with a zero
  case VOXSpecList:
    return ReadList(ioRow, iAttribute, iDocument);
  default:
    return FeatureAt(ioRow.Integer(0, UINT32_MAX), iDocument);
  }
}

} // namespace voxbench
