// SPDX-License-Identifier: MIT
// Each library has its own description of a contract's interface, and all of them are one type.
#include "VOXEAnalysisEditionControl.h"
#include "VOXEAnalysisUpgrade.h"

#include <gtest/gtest.h>

#include <cxxabi.h>
#include <typeinfo>

namespace
{

// The description of a base class that stands in the library, beside that of the adaptor.
template <class Adaptor>
const std::type_info& BaseInTheLibrary()
{
  return *dynamic_cast<const abi::__si_class_type_info&>(typeid(Adaptor)).__base_type;
}

TEST(Types, OfAnInterfaceAreOneWhereverTheyAreDescribed)
{
  EXPECT_TRUE(BaseInTheLibrary<VOXEAnalysisEditionControl>() == typeid(VOXISamEditionControl));
  EXPECT_TRUE(BaseInTheLibrary<VOXEAnalysisUpgrade>() == typeid(VOXBaseUnknown));
}

TEST(Types, OfAnAdaptorAreCastToItsInterfaceAcrossLibraries)
{
  VOXEAnalysisEditionControl control;
  VOXEAnalysisUpgrade upgrade;
  VOXBaseUnknown* const asBase = &control;
  EXPECT_EQ(dynamic_cast<VOXISamEditionControl*>(asBase), &control);
  EXPECT_EQ(dynamic_cast<VOXISamEditionControl*>(static_cast<VOXBaseUnknown*>(&upgrade)), nullptr);
  EXPECT_TRUE(typeid(*asBase) == typeid(VOXEAnalysisEditionControl));
}

} // namespace
