// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"
#include "ComponentRuntime/VOXResult.h"

class VOXAnalysisCharacCollector;
class VOXECharacCollector;
struct VOXArchiverData;

//! Archive that keeps a collector's values across rebuilds, stamped with the time stamp of the feature that made it.
//! Implemented by: the host. Reference counted, born with one reference. Made with the plain global operator new.
class VOX_HOST_API VOXAnalysisCollectorArchiver
{
public:
  VOXAnalysisCollectorArchiver(const VOXAnalysisCollectorArchiver&) = delete;
  VOXAnalysisCollectorArchiver& operator=(const VOXAnalysisCollectorArchiver&) = delete;
  ~VOXAnalysisCollectorArchiver();

  //! Whether the archive still fits a feature of that time stamp. @return 1 or 0.
  unsigned char IsMatchingTimeStamp(const int& iTimeStamp) const;

  //! Whether the archive depends on the numbering of the model. Borrowed.
  const unsigned char& IsNumberingDependant() const;

  //! Whether the archive can be stored with its document. Borrowed.
  const unsigned char& IsStreamable() const;

  //! From now on the archive is not stored any more.
  void SetUnStreamable();

  //! Empties the archive; it stays usable. @return S_OK.
  HRESULT ResetStorage();

private:
  friend class ::VOXECharacCollector;
  friend class ::VOXAnalysisCharacCollector; // which keeps a reference on its archiver
  friend class VOXExplicitAccess;            // the host's

  //! An archive of the given time stamp, with one reference for the creator; not streamable when its storage cannot be
  //! made.
  explicit VOXAnalysisCollectorArchiver(const int& iTimeStamp);

  //! The reference count afterwards. At 0 the archiver is destroyed.
  int AddRef() const;
  int Release() const;

  VOXArchiverData* _Data;
};
