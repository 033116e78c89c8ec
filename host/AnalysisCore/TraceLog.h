// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisCore/VOXTrace.h"

#include <string>

//! The reference host's hand on the trace channels.
class VOX_HOST_API VOXTraceAccess
{
public:
  //! Switches a channel; all are inactive at the start. An active channel keeps what is put.
  static void SetActive(VOXTrace& ioTrace, bool iActive);

  //! What was put since the last Clear, lines ended by line feeds. What the channel is given while it is not active is
  //! kept, too, when it was told to keep everything.
  static std::string Text(const VOXTrace& iTrace);
  static void Clear(VOXTrace& ioTrace);

  //! Keeps what is put even while the channel is not active.
  static void KeepEverything(VOXTrace& ioTrace, bool iKeep);

  //! Output level in force.
  static int Level(const VOXTrace& iTrace);

  //! Calls iListener with every put and every setting of a level, on any channel, active or not: its name and operation,
  //! and the text or the level, such as "SAMTraceDebug::TraPut(Adding)". Null for none.
  static void Listen(void (*iListener)(const std::string& iCall));
};
