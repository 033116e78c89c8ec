// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

struct VOXTraceData;

//! A trace channel. Implemented by: the analysis core services of the host.
//! - What is put while the channel is not active goes nowhere. The result of a put is the number of bytes taken.
class VOX_HOST_API VOXTrace
{
public:
  //! A channel of that name.
  explicit VOXTrace(const char* iName);
  ~VOXTrace();
  VOXTrace(const VOXTrace&) = delete;
  VOXTrace& operator=(const VOXTrace&) = delete;

  //! Whether anybody reads the channel. @return not 0 if so.
  int IsActive();

  //! Puts a text, the line goes on.
  int TraPut(const char* iText);

  //! Puts a text and ends the line.
  int TraPutLN(const char* iText);

  //! Puts a text, a blank and a number, and ends the line.
  int TraPutLN(const char* iText, int iNumber);

  //! Sets the level at which what follows is put: the higher, the more detailed.
  void SetOutputLevel(int iLevel);

private:
  friend class VOXTraceAccess; // the host's, which reads and switches channels
  VOXTraceData* _Data;
};

//! Explanations of explicitation failures.
extern VOX_HOST_API VOXTrace Tra_SAMTraceExpli;
//! Debug banners.
extern VOX_HOST_API VOXTrace Tra_SAMTraceExpDbg;
//! Upgrade messages.
extern VOX_HOST_API VOXTrace Tra_SAMTraceDebug;
