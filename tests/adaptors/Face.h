// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "tests/support/Bench.h"
#include "tests/support/CallLog.h"
#include "tests/support/Torture.h"
#include "tests/support/VirtualTable.h"

namespace voxtest
{

//! An adaptor as the simplest feature type derives from it: overriding nothing.
template <class Adaptor, class Interface>
class Face : public Adaptor
{
public:
  using Carries = Interface;
};

//! The same, noting each query that goes to the object itself: "own query". A query of its component is not noted.
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

} // namespace voxtest
