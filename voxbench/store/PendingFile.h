// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/store/UnfinishedFile.h"

#include <string>

namespace voxbench
{

//! A file that is written beside another one, whose place it takes in one step when it is whole. Whoever looks at the
//! target sees the old file or the new one, whenever this program or the machine stops.
//!
//! - Until then it is called as the target, with ".part-" and a number behind; it goes with its object, and with a
//!   program that a signal ends (see UnfinishedFile.h).
//! - It is for the same eyes as the file that it replaces: whoever may read or write that one. Its owner may do both.
//! - Failures are thrown as StoreError.
class PendingFile
{
public:
  //! @param iTarget may be a symbolic link: the file that it leads to is meant.
  explicit PendingFile(const std::string& iTarget);
  PendingFile(const PendingFile&) = delete;
  PendingFile& operator=(const PendingFile&) = delete;

  const std::string& Path() const { return _Part.Path(); }

  //! Fills it with the bytes of another file.
  void CopyFrom(const std::string& iFile) const;

  //! Waits for the disk, then takes the place of the target, whatever stands there.
  void Replace();

  //! The same; the old file is kept as the target's name with ".backup-" and the first free number from 1 behind.
  //! @return that name.
  std::string ReplaceKeepingOld();

  //! The same, but only where nothing stands. @return false when something does: nothing changed.
  bool TakeFreePlace();

private:
  std::string KeepOld() const;
  void Settle() const;
  void SettleFolder() const;

  std::string _Target;
  UnfinishedFile _Part;
  bool _IsPlaced = false;
};

} // namespace voxbench
