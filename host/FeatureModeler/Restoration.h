// SPDX-License-Identifier: MIT
#pragma once

#include "host/FeatureModeler/Document.h"

#include <optional>

namespace voxhost
{

//! What a store keeps of a feature beside its name, its start-up and its values.
struct FeatureState
{
  std::int32_t timeStamp = 0;
  bool outOfDate = true;
  bool marked = false;
  bool updateFails = false;
  bool active = true;
  bool subscribed = false;
  int explicitState = 1;
  std::optional<std::string> identifyingString;
  std::optional<std::string> physicalType;

  friend bool operator==(const FeatureState&, const FeatureState&) = default;
};

//! The door for stores: tells the state of a document and puts it back as it was.
//!
//! - Nothing follows from what is put back: no stamps, no updates, nothing goes out of date, nobody is shown anything.
//! - Identifiers are kept; those of start-ups are given anew, behind the kept ones.
class VOX_HOST_API Restoration
{
public:
  //! @param ioDocument a document without features. @param iLastIdentifier the highest identifier to come.
  Restoration(Document& ioDocument, std::uint32_t iLastIdentifier);

  //! Makes a feature without components. @return borrowed; null when the identifier is taken or beyond the last, or for
  //! no memory.
  Feature* Make(std::uint32_t iIdentifier, Feature& iStartUp, const VOXUnicodeString& iName, Container& iContainer,
                const FeatureState& iState);

  //! Makes a value local; features in it must stand already. A component that is held already fits nowhere else.
  //! @return false when the value does not fit the attribute: nothing changed.
  bool Put(Feature& ioFeature, int iAttribute, StoredValue iValue);

  void SetClock(std::int32_t iClock) { _Document._Clock = iClock; }

  //! How many names of the document's choice instances of a start-up were given.
  static std::uint32_t NamesGiven(const Feature& iStartUp);
  void SetNamesGiven(const Feature& iStartUp, std::uint32_t iNames) { _Document._NamesGiven[&iStartUp] = iNames; }

  static FeatureState StateOf(const Feature& iFeature);

  //! The highest identifier of a feature that is no start-up; 0 for none.
  static std::uint32_t LastIdentifier(const Document& iDocument);

private:
  bool Fits(const Feature& iFeature, int iAttribute, const StoredValue& iValue) const;

  Document& _Document;
};

} // namespace voxhost
