// SPDX-License-Identifier: MIT
#include "tests/adaptors/ExpressionWorld.h"

#include "tests/adaptors/PrivateDoor.h"

#include <utility>

using voxhost::Faults;
using voxhost::Ledger;

namespace
{

using Adaptor = VOXEExpressionCollector;
using Listing = HRESULT (Adaptor::*)();
using Count = std::int32_t Adaptor::*;
using Objects = VOXSamModelDataRoot** Adaptor::*;
using List = VOXAnalysisExplicitListUsr Adaptor::*;
using Parent = VOXAnalysisExplicitParent Adaptor::*;

VOX_DOOR(GetListDoor, Listing, &Adaptor::GetList);
VOX_DOOR(NumberDoor, Count, &Adaptor::_Number);
VOX_DOOR(PointersDoor, Objects, &Adaptor::_Pointers);
VOX_DOOR(ListDoor, List, &Adaptor::_List);
VOX_DOOR(ContextDoor, Parent, &Adaptor::_Context);

template <class Member>
std::ptrdiff_t OffsetOf(const Adaptor& iAdaptor, const Member& iMember)
{
  return reinterpret_cast<const char*>(&iMember) - reinterpret_cast<const char*>(&iAdaptor);
}

} // namespace

namespace voxtest
{

HRESULT PlainExpressions::GetExpressionTitle(const VOXAnalysisExplicitExpression&, VOXString&)
{
  CallLog::Enter("VOXEExpressionCollector::GetExpressionTitle");
  return S_OK;
}

void* ScriptedLinkable::GetLinkValue()
{
  return CallLog::Enter("VOXILinkableObject::GetLinkValue") ? nullptr : Told().value;
}

HRESULT ExpressionParts::GetList(VOXEExpressionCollector& ioAdaptor)
{
  return (ioAdaptor.*Open(GetListDoor()))();
}

std::int32_t& ExpressionParts::Number(VOXEExpressionCollector& ioAdaptor)
{
  return ioAdaptor.*Open(NumberDoor());
}

VOXSamModelDataRoot** ExpressionParts::Pointers(VOXEExpressionCollector& ioAdaptor)
{
  return ioAdaptor.*Open(PointersDoor());
}

VOXAnalysisExplicitListUsr& ExpressionParts::List(VOXEExpressionCollector& ioAdaptor)
{
  return ioAdaptor.*Open(ListDoor());
}

VOXAnalysisExplicitParent& ExpressionParts::Context(VOXEExpressionCollector& ioAdaptor)
{
  return ioAdaptor.*Open(ContextDoor());
}

std::vector<std::ptrdiff_t> ExpressionParts::Offsets(VOXEExpressionCollector& ioAdaptor)
{
  return {OffsetOf(ioAdaptor, Number(ioAdaptor)), OffsetOf(ioAdaptor, ioAdaptor.*Open(PointersDoor())),
          OffsetOf(ioAdaptor, List(ioAdaptor)), OffsetOf(ioAdaptor, Context(ioAdaptor)),
          OffsetOf(ioAdaptor, static_cast<PlainExpressions&>(ioAdaptor)._LinkableValue)};
}

ExpressionWorld::ExpressionWorld()
    : _Context(_Model.Create(NULL_exp, "SOLUTION", "solution")),
      _Feature(_Bench.Component<ExpressionTie, ScriptedExplicit, ScriptedSpecObject, ScriptedLinkable>())
{
  Explicit().model = &_Model;
  Explicit().parent = _Context;
  _Model.Create(_Context, "SOLUTION", "a child before");
  for (const char* const name : {"first", "second", "third"})
    _Expressions.push_back(Add(name));
  _Model.Create(_Context, "SOLUTION", "a child behind");
  _Collector = VOXIExpressionCollector_var(_Feature);
}

VOXAnalysisExplicitExpression ExpressionWorld::Add(const char* iName)
{
  return {_Model.Create(_Context, "EXPRESSION", iName)};
}

void ExpressionWorld::MakeInterfaces() const
{
  EXPECT_TRUE(!!VOXISamExplicit_var(_Feature));
  EXPECT_TRUE(!!VOXISpecObject_var(_Feature));
  EXPECT_TRUE(!!VOXILinkableObject_var(_Feature));
}

int ExpressionWorld::Count()
{
  int number = 99;
  const HRESULT result = _Collector->GetNumberOfExpressions(number);
  Faults::Disarm();
  EXPECT_TRUE(SUCCEEDED(result) || number == -1);
  return SUCCEEDED(result) ? number : -7;
}

std::string ExpressionWorld::Name(int iNumber)
{
  VOXAnalysisExplicitExpression expression(_Context);
  const HRESULT result = _Collector->GetExpression(iNumber, expression, 0);
  Faults::Disarm();
  EXPECT_EQ(SUCCEEDED(result), expression != NULL_exp);
  return SUCCEEDED(result) ? NameOf(expression) : "";
}

std::vector<std::string> ExpressionWorld::Children()
{
  std::vector<std::string> names;
  VOXAnalysisExplicitList children(_Context);
  for (children.First(); *children != NULL_exp; children.Next())
    names.push_back(NameOf(*children));
  return names;
}

std::string ExpressionWorld::NameOf(const VOXAnalysisExplicitData& iObject)
{
  const voxhost::Record* const record = _Model.RecordOf(iObject);
  return record == nullptr ? "(gone)" : record->name;
}

ExpressionTest::ExpressionTest()
{
  ResetErrors();
  Ledger::TurnOn();
  before = Ledger::Read();
  world.emplace();
}

ExpressionTest::~ExpressionTest()
{
  Faults::Disarm();
  EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
  world.reset();
  EXPECT_EQ((Change() - kept).Describe(), "balanced");
  Ledger::TurnOff();
  ResetErrors();
}

} // namespace voxtest
