// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisCore/ErrorDepthHandler.h"
#include "ComponentRuntime/VOXHandle.h"
#include "host/Instruments/Faults.h"
#include "tests/support/Bench.h"
#include "tests/support/CallLog.h"
#include "tests/support/Torture.h"
#include "tests/support/VirtualTable.h"

#include <algorithm>
#include <functional>
#include <string>

namespace voxtest
{

//! An adaptor as the simplest feature type derives from it: overriding nothing.
template <class Adaptor, class Interface>
class Face : public Adaptor
{
public:
  using Carries = Interface;
};

//! The same, noting each query that goes to the object itself, "own query", and each question for its implementation,
//! "own implementation(0)". A query of its component is not noted.
template <class Adaptor, class Interface>
class QueriedFace : public Face<Adaptor, Interface>
{
public:
  using Adaptor::QueryInterface;
  HRESULT QueryInterface(const IID& iInterface, void** oFace) override
  {
    CallLog::Note("own query");
    return Adaptor::QueryInterface(iInterface, oFace);
  }
  VOXBaseUnknown* GetImpl(int iMode = 0) const override
  {
    CallLog::Note("own implementation(" + std::to_string(iMode) + ")");
    return Adaptor::GetImpl(iMode);
  }
};

//! One component that carries a class under test, reached by a query as the host reaches it.
template <class ClassUnderTest>
class AdaptorBench
{
public:
  using Interface = typename ClassUnderTest::Carries;

  AdaptorBench() : _Component(_Bench.Component<ClassUnderTest>()), _Handle(_Component) {}

  Interface* operator->() const { return _Handle; }
  Interface* Get() const { return _Handle; }
  const VOXBaseUnknown* Component() const { return _Component; }

private:
  Bench _Bench;
  VOXBaseUnknown* _Component;
  VOXHandle<Interface> _Handle;
};

//! The most error handlers that were alive at any host call of an operation. Not under a CallLog.
inline int ErrorHandlersDuring(const std::function<void()>& iOperation)
{
  static int most;
  most = 0;
  voxhost::Faults::Listen([](const char*) { most = std::max(most, ErrorDepthHandler::_SamDepth_); });
  iOperation();
  voxhost::Faults::Listen(nullptr);
  return most;
}

} // namespace voxtest
