// SPDX-License-Identifier: MIT
#pragma once

#include "ObjectModeler/VOXIContainer.h"
#include "host/ComponentRuntime/Component.h"

#include <cstdint>
#include <string>
#include <vector>

namespace voxhost
{

class Document;
class Feature;

//! A container of features, owned by its document. Its members are all features that were made in it, components
//! included, in the order in which they came.
class VOX_HOST_API Container final : public VOXIContainer
{
public:
  //! The container that a face belongs to, borrowed; null when its component is no container of the reference host.
  static Container* Of(const VOXBaseUnknown* iFace);

  Document* OwningDocument() const { return _Document; } //!< borrowed; null once the document is gone
  const std::string& Name() const { return _Name; }
  const std::string& LateType() const;
  bool Holds() const { return _Holds; } //!< whether it is the father of features that no feature holds
  std::size_t NumberOfMembers() const { return _NumberOfMembers; }

  //! The members, borrowed.
  std::vector<Feature*> Members() const;

  int ListMembers(const char* iInterfaceName, _SEQUENCE_VOXBaseUnknown_ptr& oMembers) const override;

private:
  friend class Document;
  friend class Restoration;

  Container(Document& iDocument, std::string iName, bool iHolds);
  static Container* Make(Document& iDocument, const std::string& iName, const char* iLateType, bool iHolds);
  void Add(Feature& iFeature);
  void Take(Feature& iFeature);

  VOXComponentRecord _Record;
  Document* _Document;
  std::string _Name;
  std::vector<Feature*> _Members; // null where a member left
  std::size_t _NumberOfMembers = 0;
  bool _Holds;
};

} // namespace voxhost
