// SPDX-License-Identifier: MIT
// Errors, traces, repair mode, automation values, representations.
#include "AnalysisCore/VOXTrace.h"
#include "AnalysisInterfaces/VOXSamRattrapMode.h"
#include "Automation/VOXAutomation.h"
#include "Log.h"
#include "Visualization/VOXMathAxis.h"
#include "Visualization/VOXRep.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

VOXSamErrorType ErrorDepthHandler::_ier_ = VOXSamErrorNone;
const char* ErrorDepthHandler::_c_err_ = nullptr;
int ErrorDepthHandler::_i_err_ = -1;
const char* ErrorDepthHandler::_errfile_ = nullptr;
int ErrorDepthHandler::_i_errline_ = 0;
const char* ErrorDepthHandler::_errincfile_ = nullptr;
int ErrorDepthHandler::_i_errincline_ = 0;
int ErrorDepthHandler::_MustJump_ = 1;
int ErrorDepthHandler::_SamDepth_ = 0;

namespace
{

unsigned char g_displaysErrors = 1;
int g_repairMode = 0;

} // namespace

otherhost::Log& otherhost::Log::Get()
{
  static Log log;
  return log;
}

ErrorDepthHandler::ErrorDepthHandler()
{
  ++_SamDepth_;
}

// A report leaves the error pending on its way out; nobody is left to ask when the outermost operation ends.
ErrorDepthHandler::~ErrorDepthHandler()
{
  if (--_SamDepth_ == 0)
    _ier_ = VOXSamErrorNone;
}

void VOXSamInstanciateError(VOXSamErrorType& ioKind, int, const char* iFile, int iLine, const char*, int,
                            const char* iText, int iNumber, int)
{
  otherhost::Log::Get().errors.push_back(
      {ioKind, iText == nullptr ? "" : iText, iFile == nullptr ? "" : iFile, iLine, iNumber});
}

int VOXSamDisplayError(unsigned char iDisplay)
{
  const int previous = g_displaysErrors;
  g_displaysErrors = iDisplay;
  return previous;
}

struct VOXTraceData
{
  std::string name;
  int level = 0;
  bool isActive = false;
};

VOXTrace::VOXTrace(const char* iName) : _Data(new VOXTraceData{iName == nullptr ? "" : iName, 0, false})
{
  const char* const wanted = std::getenv("OTHERHOST_TRACES");
  _Data->isActive = wanted != nullptr && std::strstr(wanted, _Data->name.c_str()) != nullptr;
}

VOXTrace::~VOXTrace()
{
  delete _Data;
}

int VOXTrace::IsActive()
{
  return _Data->isActive ? 1 : 0;
}

int VOXTrace::TraPut(const char* iText)
{
  if (!_Data->isActive || iText == nullptr)
    return 0;
  std::fputs(iText, stderr);
  return static_cast<int>(std::strlen(iText));
}

int VOXTrace::TraPutLN(const char* iText)
{
  return TraPut(iText) + TraPut("\n");
}

int VOXTrace::TraPutLN(const char* iText, int iNumber)
{
  return TraPut(iText) + TraPut(" ") + TraPutLN(std::to_string(iNumber).c_str());
}

void VOXTrace::SetOutputLevel(int iLevel)
{
  _Data->level = iLevel;
}

VOXTrace Tra_SAMTraceExpli("SAMTraceExpli");
VOXTrace Tra_SAMTraceExpDbg("SAMTraceExpDbg");
VOXTrace Tra_SAMTraceDebug("SAMTraceDebug");

void VOXSamRattrapMode::SetMode(int iMode)
{
  g_repairMode = iMode;
}

int VOXSamRattrapMode::GetMode()
{
  return g_repairMode;
}

any::any() : _Value{VT_EMPTY, {0}} {}

any::any(std::int16_t iValue) : _Value{VT_I2, {iValue}} {}

any::any(std::int32_t iValue) : _Value{VT_I4, {0}}
{
  _Value.lVal = iValue;
}

any::any(double iValue) : _Value{VT_R8, {0}}
{
  _Value.dblVal = iValue;
}

any::any(const any&) = default;
any& any::operator=(const any&) = default;
any::~any() = default;

VARTYPE any::GetKind() const
{
  return _Value.vt;
}

std::int16_t any::AsShort() const
{
  return static_cast<std::int16_t>(AsLong());
}

std::int32_t any::AsLong() const
{
  if (_Value.vt == VT_R8)
    return static_cast<std::int32_t>(_Value.dblVal);
  if (_Value.vt == VT_I4)
    return _Value.lVal;
  return _Value.vt == VT_EMPTY ? 0 : _Value.iVal;
}

double any::AsDouble() const
{
  return _Value.vt == VT_R8 ? _Value.dblVal : AsLong();
}

HRESULT ConvertAnyToVariant(const any& iValue, VARIANT& oVariant)
{
  VARIANT made{iValue.GetKind(), {0}};
  switch (made.vt)
  {
  case VT_EMPTY:
    return E_FAIL;
  case VT_R8:
    made.dblVal = iValue.AsDouble();
    break;
  case VT_I4:
    made.lVal = iValue.AsLong();
    break;
  default:
    made.iVal = iValue.AsShort();
    break;
  }
  oVariant = made;
  return S_OK;
}

SAFEARRAY* BuildFromVariantArray(const VARIANT* iValues, int iCount)
{
  if (iValues == nullptr || iCount < 0)
    return nullptr;
  const auto count = static_cast<std::size_t>(iCount);
  std::unique_ptr<VARIANT[]> values(new (std::nothrow) VARIANT[count]);
  auto* const made = values == nullptr ? nullptr : new (std::nothrow) SAFEARRAY;
  if (made == nullptr)
    return nullptr;
  std::copy_n(iValues, count, values.get());
  *made = {static_cast<std::uint32_t>(iCount), values.release()};
  return made;
}

void DestroySafeArray(SAFEARRAY* iArray)
{
  if (iArray != nullptr)
    delete[] iArray->values;
  delete iArray;
}

const VOXMathAxis VOXMathOIJK = {{0., 0., 0.}, {1., 0., 0.}, {0., 1., 0.}, {0., 0., 1.}};

VOXRep::VOXRep() = default;
VOXRep::~VOXRep() = default;

int VOXRep::GetNumberOfChildren() const
{
  return 0;
}

void* VOXRep::operator new(std::size_t iSize, const char*, void*, int) noexcept
{
  return std::malloc(iSize);
}

void VOXRep::operator delete(void* iMemory)
{
  std::free(iMemory);
}

void VOXRep::operator delete(void* iMemory, const char*, void*, int) noexcept
{
  std::free(iMemory);
}

struct VOXBagData
{
  std::vector<std::unique_ptr<VOXRep>> children;
};

VOX3DBagRep::VOX3DBagRep() : _Data(new VOXBagData) {}

VOX3DBagRep::~VOX3DBagRep()
{
  delete _Data;
}

int VOX3DBagRep::GetNumberOfChildren() const
{
  return static_cast<int>(_Data->children.size());
}

void VOX3DBagRep::AddChild(VOXRep* iChild)
{
  _Data->children.emplace_back(iChild);
}
