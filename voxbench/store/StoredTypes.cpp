// SPDX-License-Identifier: MIT
#include "voxbench/store/StoredTypes.h"
#include "voxbench/features/Catalogue.h"
#include "voxbench/features/TypeText.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>

namespace voxbench
{
namespace
{

using voxhost::FeatureType;
using voxhost::TypeDeclaration;

constexpr std::int64_t kMostAttributes = 1 << 20;

class Gathering
{
public:
  explicit Gathering(const voxhost::TypeCatalogue& iTypes) : _Types(iTypes) {}

  void Add(const FeatureType* iType)
  {
    if (iType == nullptr || !_Seen.insert(iType).second)
      return;
    Add(iType->Base());
    gathered.push_back(iType);
    for (const voxhost::Attribute& attribute : iType->Attributes())
      for (const voxhost::ComponentDeclaration& component : attribute.components)
        Add(_Types.Find(component.type));
  }

  std::vector<const FeatureType*> gathered;

private:
  const voxhost::TypeCatalogue& _Types;
  std::set<const FeatureType*> _Seen;
};

//! The declarations of this program, and what the file adds to them.
class Merging
{
public:
  Merging() : declarations(WorkbenchDeclarations())
  {
    for (std::size_t place = 0; place < declarations.size(); ++place)
      _Places.emplace(declarations[place].name, place);
  }

  void Add(TypeDeclaration iDeclaration)
  {
    const auto known = _Places.find(iDeclaration.name);
    if (known == _Places.end())
    {
      _Places.emplace(iDeclaration.name, declarations.size());
      declarations.push_back(std::move(iDeclaration));
      adds = true;
      return;
    }
    for (voxhost::AttributeDeclaration& attribute : iDeclaration.attributes)
      AddAttribute(known->second, std::move(attribute));
  }

  std::vector<TypeDeclaration> declarations;
  bool adds = false;

private:
  void AddAttribute(std::size_t iPlace, voxhost::AttributeDeclaration iAttribute)
  {
    const voxhost::AttributeDeclaration* const known = Find(declarations[iPlace].name, iAttribute.name);
    if (known == nullptr)
    {
      declarations[iPlace].attributes.push_back(std::move(iAttribute));
      adds = true;
    }
    else if (known->type != iAttribute.type || known->elementType != iAttribute.elementType)
      throw StoreError(
          fmt::format("attribute {} of its type {} is of another kind than this program's. Open it with the "
                      "program that wrote it.",
                      iAttribute.name, declarations[iPlace].name));
  }

  //! The declaration of an attribute in a type or in one of its bases; null when there is none.
  const voxhost::AttributeDeclaration* Find(const std::string& iType, const std::string& iAttribute) const
  {
    for (auto place = _Places.find(iType); place != _Places.end();
         place = _Places.find(declarations[place->second].base))
    {
      const auto& attributes = declarations[place->second].attributes;
      const auto found = std::find_if(attributes.begin(), attributes.end(),
                                      [&](const auto& iDeclared) { return iDeclared.name == iAttribute; });
      if (found != attributes.end())
        return &*found;
    }
    return nullptr;
  }

  std::unordered_map<std::string, std::size_t> _Places;
};

//! Whether a declaration only says again what every feature type has: the root is known before all others.
bool IsOfTheRoot(const TypeDeclaration& iDeclaration)
{
  return iDeclaration.name == "SpecFeature";
}

std::shared_ptr<const voxhost::TypeCatalogue> CatalogueFor(Merging& ioMerging)
{
  const auto known = WorkbenchTypes(); // first of all: it declares the adaptors that carry the interfaces
  if (!ioMerging.adds)
    return known;
  const auto catalogue = std::make_shared<voxhost::TypeCatalogue>();
  if (const std::string wrong = catalogue->Declare(ioMerging.declarations); !wrong.empty())
    throw StoreError(fmt::format("its feature types do not fit this program: {}.", wrong));
  return catalogue;
}

TypeDeclaration ParseType(std::string_view iText)
{
  try
  {
    return DeclarationOf(TypeText::parse(iText));
  }
  catch (const std::exception& wrong)
  {
    throw Damaged(wrong.what());
  }
}

void ReadAttributes(const Database& iDatabase, Checksum& ioSum, ReadTypes& ioTypes)
{
  Statement rows(iDatabase, "SELECT id, type, name FROM attribute ORDER BY id", &ioSum);
  while (rows.Next())
  {
    const std::int64_t number = rows.Integer(0, kMostAttributes);
    const FeatureType& type = ioTypes.Find(rows.Integer());
    const std::string_view name = rows.Text();
    const int index = type.IndexOf(name);
    if (index < 0)
      throw Damaged(fmt::format("type {} has no attribute {}", type.Name(), name));
    if (ioTypes.attributes.size() <= static_cast<std::size_t>(number))
      ioTypes.attributes.resize(static_cast<std::size_t>(number) + 1);
    ioTypes.attributes[static_cast<std::size_t>(number)] = {&type, index};
  }
}

} // namespace

std::vector<const FeatureType*> WithAllThatTheyNeed(const voxhost::TypeCatalogue& iTypes,
                                                    const std::vector<const FeatureType*>& iUsed)
{
  Gathering gathering(iTypes);
  for (const FeatureType* const type : iUsed)
    gathering.Add(type);
  return gathering.gathered;
}

WrittenTypes WriteTypes(const Database& iDatabase, const std::vector<const FeatureType*>& iTypes, Checksum& ioSum)
{
  WrittenTypes written;
  Statement types(iDatabase, "INSERT INTO type VALUES(?1, ?2, ?3)", &ioSum);
  for (const FeatureType* const type : iTypes)
  {
    const auto number = static_cast<std::int64_t>(written.types.size()) + 1;
    const std::string declaration = TextOf(*type).dump();
    types.Add(number).Add(type->Name()).Add(declaration).Insert();
    written.types.emplace(type, number);
  }
  Statement attributes(iDatabase, "INSERT INTO attribute VALUES(?1, ?2, ?3)", &ioSum);
  std::int64_t number = 0;
  for (const FeatureType* const type : iTypes)
    for (const voxhost::Attribute& attribute : type->Attributes())
    {
      attributes.Add(++number).Add(written.types.at(type)).Add(attribute.name).Insert();
      written.attributes[type].push_back(number);
    }
  return written;
}

const FeatureType& ReadTypes::Find(std::int64_t iNumber) const
{
  const auto found = types.find(iNumber);
  if (found == types.end())
    throw Damaged(fmt::format("there is no type of the number {}", iNumber));
  return *found->second;
}

ReadTypes ReadStoredTypes(const Database& iDatabase, Checksum& ioSum)
{
  ReadTypes read;
  Merging merging;
  std::unordered_map<std::int64_t, std::string> names;
  Statement rows(iDatabase, "SELECT id, name, declaration FROM type ORDER BY id", &ioSum);
  while (rows.Next())
  {
    const std::int64_t number = rows.Integer();
    names.emplace(number, rows.Text());
    TypeDeclaration declaration = ParseType(rows.Text());
    if (declaration.name != names.at(number))
      throw Damaged(fmt::format("type {} is declared as {}", names.at(number), declaration.name));
    if (!IsOfTheRoot(declaration))
      merging.Add(std::move(declaration));
  }
  read.catalogue = CatalogueFor(merging);
  for (const auto& [number, name] : names)
    read.types.emplace(number, read.catalogue->Find(name));
  ReadAttributes(iDatabase, ioSum, read);
  return read;
}

} // namespace voxbench
