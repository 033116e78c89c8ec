// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/TypeCatalogue.h"
#include "voxbench/store/Database.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace voxbench
{

//! The types that a set of features needs: their own, their bases, and those of the components of their start-ups.
//! Bases come before what derives from them.
std::vector<const voxhost::FeatureType*> WithAllThatTheyNeed(const voxhost::TypeCatalogue& iTypes,
                                                             const std::vector<const voxhost::FeatureType*>& iUsed);

//! The numbers that stand for types and attributes in a file.
struct WrittenTypes
{
  std::unordered_map<const voxhost::FeatureType*, std::int64_t> types;
  std::unordered_map<const voxhost::FeatureType*, std::vector<std::int64_t>> attributes; //!< by index
};

WrittenTypes WriteTypes(const Database& iDatabase, const std::vector<const voxhost::FeatureType*>& iTypes,
                        Checksum& ioSum);

//! What the numbers of a file stand for.
struct ReadTypes
{
  struct AttributeOfType
  {
    const voxhost::FeatureType* type = nullptr;
    int index = -1;
  };
  std::shared_ptr<const voxhost::TypeCatalogue> catalogue;
  std::unordered_map<std::int64_t, const voxhost::FeatureType*> types;
  std::vector<AttributeOfType> attributes; //!< by number

  const voxhost::FeatureType& Find(std::int64_t iNumber) const;
};

//! Reads the types of a file: those of this program, and what it does not know as the file declares it.
ReadTypes ReadStoredTypes(const Database& iDatabase, Checksum& ioSum);

} // namespace voxbench
