// SPDX-License-Identifier: MIT
#pragma once

#include "PlainInterfaces.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <type_traits>
#include <utility>

namespace voxtest
{

//! The operations that answered since the last question, joined by commas.
class Answers
{
public:
  static void Note(const char* iOperation)
  {
    _Names += _Names.empty() ? "" : ", ";
    _Names += iOperation;
  }
  static std::string Take() { return std::exchange(_Names, {}); }

private:
  static inline std::string _Names;
};

template <class Result>
Result Answer(const char* iOperation)
{
  Answers::Note(iOperation);
  if constexpr (!std::is_void_v<Result>)
    return Result{};
}

//! Overrides an operation with one that only notes its name. The last argument is empty or const.
#define NOTES(Result, Operation, Arguments, Qualifier)                                                                 \
  Result Operation Arguments Qualifier override                                                                        \
  {                                                                                                                    \
    return voxtest::Answer<Result>(#Operation);                                                                        \
  }

//! An adaptor whose base operations note that they were called.
template <class Adaptor>
class Noting : public Adaptor
{
public:
  HRESULT QueryInterface(const IID&, void**) override { return Answer<HRESULT>("QueryInterface by identifier"); }
  VOXBaseUnknown* QueryInterface(const char*) const override
  {
    return Answer<VOXBaseUnknown*>("QueryInterface by name");
  }
  NOTES(unsigned long, AddRef, (), )
  NOTES(unsigned long, Release, (), )
  NOTES(HRESULT, GetTypeInfoCount, (unsigned int*), )
  NOTES(HRESULT, GetTypeInfo, (unsigned int, unsigned long, VOXTypeInfo**), )
  NOTES(HRESULT, GetIDsOfNames, (const IID&, wchar_t**, unsigned int, unsigned long, long*), )
  NOTES(HRESULT, Invoke, (long, const IID&, unsigned long, unsigned short, VOXDispatchParameters*), )
  NOTES(VOXMetaClass*, GetMetaObject, (), const)
  NOTES(const char*, IsA, (), const)
  NOTES(int, IsAKindOf, (const char*), const)
  NOTES(VOXBaseUnknown*, GetImpl, (int), const)
  NOTES(VOXBaseUnknown*, SetImpl, (VOXBaseUnknown*), )
  NOTES(int, IsNull, (), const)
  NOTES(int, IsEqual, (const VOXBaseUnknown*), const)
  NOTES(HRESULT, ChangeComponentState, (ComponentState, ComponentState, const VOXSysChangeComponentStateContext*), )

  ~Noting() override { Answers::Note("destructor"); }

  static void* operator new(std::size_t iSize) { return ::operator new(iSize); }
  static void operator delete(void* iMemory)
  {
    Answers::Note("operator delete");
    ::operator delete(iMemory);
  }
};

//! A type as a call passes it: an enumeration is its integer.
template <class Type, bool = std::is_enum_v<Type>>
struct Passed
{
  using As = Type;
};
template <class Type>
struct Passed<Type, true>
{
  using As = std::underlying_type_t<Type>;
};

//! Result and arguments of an operation, whatever class it is of.
template <class Member>
struct Signature;
template <class Result, class Class, class... Arguments>
struct Signature<Result (Class::*)(Arguments...)>
{
  using Type = typename Passed<Result>::As(typename Passed<Arguments>::As...);
};
template <class Result, class Class, class... Arguments>
struct Signature<Result (Class::*)(Arguments...) const>
{
  using Type = typename Passed<Result>::As(typename Passed<Arguments>::As...) const;
};

//! Some argument of a type: zero, empty, or room that nobody looks into.
template <class Argument>
Argument Some()
{
  if constexpr (std::is_reference_v<Argument>)
  {
    alignas(std::max_align_t) static unsigned char room[256];
    return reinterpret_cast<Argument>(room);
  }
  else
    return Argument{};
}

//! The operation of iObject that answers a call through the place that a plain interface gives to one of its own.
template <class Plain, class Result, class... Arguments>
std::string AnsweredAt(VOXBaseUnknown& iObject, Result (Plain::*iOperation)(Arguments...))
{
  Answers::Take();
  (reinterpret_cast<Plain&>(iObject).*iOperation)(Some<Arguments>()...);
  return Answers::Take();
}
template <class Plain, class Result, class... Arguments>
std::string AnsweredAt(VOXBaseUnknown& iObject, Result (Plain::*iOperation)(Arguments...) const)
{
  Answers::Take();
  (reinterpret_cast<const Plain&>(iObject).*iOperation)(Some<Arguments>()...);
  return Answers::Take();
}

//! An operation of a plain interface reaches the feature type's operation of the same name, and both take the same.
#define EXPECT_PLACE_OF(Feature, Plain, Operation)                                                                     \
  do                                                                                                                   \
  {                                                                                                                    \
    using InThePlain = typename voxtest::Signature<decltype(&Plain::Operation)>::Type;                                 \
    using InTheFeature =                                                                                               \
        typename voxtest::Signature<decltype(&std::remove_reference_t<decltype(Feature)>::Operation)>::Type;           \
    static_assert(std::is_same_v<InThePlain, InTheFeature>, #Operation " takes or gives something else");              \
    EXPECT_EQ(voxtest::AnsweredAt(Feature, &Plain::Operation), #Operation)                                             \
        << "at the place of " #Plain "::" #Operation;                                                                  \
  } while (false)

//! The 17 base operations of a feature type answer at the places of a plain interface.
template <class Plain, class Feature>
void ExpectBaseOperationsInPlace()
{
  using ByIdentifier = HRESULT (Plain::*)(const IID&, void**);
  using ByName = VOXBaseUnknown* (Plain::*)(const char*) const;
  {
    Feature feature;
    EXPECT_EQ(AnsweredAt(feature, static_cast<ByIdentifier>(&Plain::QueryInterface)), "QueryInterface by identifier");
    EXPECT_PLACE_OF(feature, Plain, AddRef);
    EXPECT_PLACE_OF(feature, Plain, Release);
    EXPECT_PLACE_OF(feature, Plain, GetTypeInfoCount);
    EXPECT_PLACE_OF(feature, Plain, GetTypeInfo);
    EXPECT_PLACE_OF(feature, Plain, GetIDsOfNames);
    EXPECT_PLACE_OF(feature, Plain, Invoke);
    EXPECT_EQ(AnsweredAt(feature, static_cast<ByName>(&Plain::QueryInterface)), "QueryInterface by name");
    EXPECT_PLACE_OF(feature, Plain, GetMetaObject);
    EXPECT_PLACE_OF(feature, Plain, IsA);
    EXPECT_PLACE_OF(feature, Plain, IsAKindOf);
    EXPECT_PLACE_OF(feature, Plain, GetImpl);
    EXPECT_PLACE_OF(feature, Plain, SetImpl);
    EXPECT_PLACE_OF(feature, Plain, IsNull);
    EXPECT_PLACE_OF(feature, Plain, IsEqual);
    EXPECT_PLACE_OF(feature, Plain, ChangeComponentState);
  }

  alignas(Feature) unsigned char room[sizeof(Feature)];
  Plain* destroyed = reinterpret_cast<Plain*>(::new (room) Feature);
  Answers::Take();
  destroyed->~Plain();
  EXPECT_EQ(Answers::Take(), "destructor") << "at the first entry of the destructor";

  Plain* deleted = reinterpret_cast<Plain*>(new Feature);
  delete deleted;
  EXPECT_EQ(Answers::Take(), "destructor, operator delete") << "at the second entry of the destructor";
}

} // namespace voxtest
