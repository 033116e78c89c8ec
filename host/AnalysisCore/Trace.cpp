// SPDX-License-Identifier: MIT
#include "host/AnalysisCore/TraceLog.h"

namespace
{

void (*g_listener)(const std::string& iCall) = nullptr;

} // namespace

struct VOXTraceData
{
  std::string name;
  std::string text;
  bool active = false;
  bool keepsEverything = false;
  int level = 0;

  void Tell(const std::string& iCall) const
  {
    if (g_listener != nullptr)
      g_listener(name + "::" + iCall);
  }

  int Put(const char* iOperation, const char* iText, const std::string& iEnd)
  {
    if (g_listener != nullptr)
      Tell(std::string(iOperation) + "(" + (iText != nullptr ? iText : "") + ")");
    const std::string put = (iText != nullptr ? iText : "") + iEnd;
    if (active || keepsEverything)
      text += put;
    return static_cast<int>(put.size());
  }
};

VOXTrace Tra_SAMTraceExpli("SAMTraceExpli");
VOXTrace Tra_SAMTraceExpDbg("SAMTraceExpDbg");
VOXTrace Tra_SAMTraceDebug("SAMTraceDebug");

VOXTrace::VOXTrace(const char* iName) : _Data(new VOXTraceData)
{
  _Data->name = iName;
}

VOXTrace::~VOXTrace()
{
  delete _Data;
}

int VOXTrace::IsActive()
{
  return _Data->active ? 1 : 0;
}

int VOXTrace::TraPut(const char* iText)
{
  return _Data->Put("TraPut", iText, "");
}

int VOXTrace::TraPutLN(const char* iText)
{
  return _Data->Put("TraPutLN", iText, "\n");
}

int VOXTrace::TraPutLN(const char* iText, int iNumber)
{
  std::string end(1, ' ');
  end += std::to_string(iNumber);
  end += '\n';
  return _Data->Put("TraPutLN", iText, end);
}

void VOXTrace::SetOutputLevel(int iLevel)
{
  _Data->Tell("SetOutputLevel(" + std::to_string(iLevel) + ")");
  _Data->level = iLevel;
}

void VOXTraceAccess::SetActive(VOXTrace& ioTrace, bool iActive)
{
  ioTrace._Data->active = iActive;
}

std::string VOXTraceAccess::Text(const VOXTrace& iTrace)
{
  return iTrace._Data->text;
}

void VOXTraceAccess::Clear(VOXTrace& ioTrace)
{
  ioTrace._Data->text.clear();
}

void VOXTraceAccess::KeepEverything(VOXTrace& ioTrace, bool iKeep)
{
  ioTrace._Data->keepsEverything = iKeep;
}

int VOXTraceAccess::Level(const VOXTrace& iTrace)
{
  return iTrace._Data->level;
}

void VOXTraceAccess::Listen(void (*iListener)(const std::string& iCall))
{
  g_listener = iListener;
}
