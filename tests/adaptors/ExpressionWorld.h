// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXIExpressionCollector.h"
#include "ObjectModeler/VOXILinkableObject.h"
#include "VOXEExpressionCollector.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"
#include "tests/adaptors/Reported.h"
#include "tests/support/Bench.h"
#include "tests/support/ScriptedInterfaces.h"
#include "tests/support/WhenCalled.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace voxtest
{

struct ExpressionScript
{
};

//! A feature type that supplies what it must and overrides nothing.
class PlainExpressions : public Scripted<VOXEExpressionCollector, ExpressionScript>
{
public:
  using VOXEExpressionCollector::_LinkableValue;

  HRESULT GetExpressionTitle(const VOXAnalysisExplicitExpression& iExpression, VOXString& oTitle) override;
};

//! The tie over it.
class ExpressionTie : public VOXTieExpressionCollector<PlainExpressions>
{
public:
  using Carries = VOXIExpressionCollector;

  static PlainExpressions& AdaptorOf(VOXIExpressionCollector* iTie)
  {
    return *static_cast<ExpressionTie*>(iTie)->Tied();
  }
};

//! What a scripted VOXILinkableObject answers.
struct LinkableScript
{
  void* value = nullptr;
};

class ScriptedLinkable : public Scripted<VOXILinkableObject, LinkableScript>
{
public:
  void* GetLinkValue() override;
};

//! The private parts of the adaptor, as the class itself reaches them.
struct ExpressionParts
{
  static HRESULT GetList(VOXEExpressionCollector& ioAdaptor);
  static std::int32_t& Number(VOXEExpressionCollector& ioAdaptor);
  static VOXSamModelDataRoot** Pointers(VOXEExpressionCollector& ioAdaptor);
  static VOXAnalysisExplicitListUsr& List(VOXEExpressionCollector& ioAdaptor);
  static VOXAnalysisExplicitParent& Context(VOXEExpressionCollector& ioAdaptor);
  //! The offsets of the members, in their order.
  static std::vector<std::ptrdiff_t> Offsets(VOXEExpressionCollector& ioAdaptor);
};

//! A feature that publishes three expressions, "first" to "third", between other children of its object.
class ExpressionWorld
{
public:
  ExpressionWorld();

  VOXIExpressionCollector* operator->() const { return _Collector; }
  PlainExpressions& Adaptor() const { return ExpressionTie::AdaptorOf(_Collector); }
  VOXBaseUnknown* Feature() const { return _Feature; }
  ExplicitScript& Explicit() const { return ScriptedExplicit::ScriptOf(_Feature); }
  SpecObjectScript& Spec() const { return ScriptedSpecObject::ScriptOf(_Feature); }
  LinkableScript& Linkable() const { return ScriptedLinkable::ScriptOf(_Feature); }
  voxhost::ExplicitModel& Model() { return _Model; }
  const VOXAnalysisExplicitParent& Context() const { return _Context; }
  std::vector<VOXAnalysisExplicitExpression>& Expressions() { return _Expressions; }

  VOXAnalysisExplicitExpression Add(const char* iName);

  //! Asks for every interface once, so that none is made later.
  void MakeInterfaces() const;

  std::int32_t& Number() const { return ExpressionParts::Number(Adaptor()); }
  VOXSamModelDataRoot** Pointers() const { return ExpressionParts::Pointers(Adaptor()); }
  VOXAnalysisExplicitListUsr& List() const { return ExpressionParts::List(Adaptor()); }
  bool HasList() const { return List() != NULL_exp; }
  bool HasContext() const { return ExpressionParts::Context(Adaptor()) != NULL_exp; }

  //! What GetNumberOfExpressions gives; -7 when it failed, and then it gave -1.
  int Count();

  //! The name of an expression that GetExpression gives; empty when it failed, and then the expression was empty, too.
  std::string Name(int iNumber);

  //! The names of the context's children that are left.
  std::vector<std::string> Children();

private:
  std::string NameOf(const VOXAnalysisExplicitData& iObject);

  voxhost::ExplicitModel _Model;
  VOXAnalysisExplicitParent _Context;
  std::vector<VOXAnalysisExplicitExpression> _Expressions;
  Bench _Bench;
  VOXBaseUnknown* _Feature;
  VOXIExpressionCollector_var _Collector;
};

//! One world; errors and ledger as they were when the test is over.
class ExpressionTest : public testing::Test
{
protected:
  ExpressionTest();
  ~ExpressionTest() override;

  voxhost::Ledger::Balance Change() const { return voxhost::Ledger::Read() - before; }

  voxhost::Ledger::Balance before;
  std::optional<ExpressionWorld> world;
  voxhost::Ledger::Balance kept; // what the test leaves behind on purpose
};

inline const std::string kExpressions = SourceOf("VOXEExpressionCollector");

} // namespace voxtest
