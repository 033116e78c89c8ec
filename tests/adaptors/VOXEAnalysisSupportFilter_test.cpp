// SPDX-License-Identifier: MIT
#include "VOXEAnalysisSupportFilter.h"

#include "tests/adaptors/Face.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using SupportFilter = Face<VOXEAnalysisSupportFilter, VOXISamSupportFilter>;

const VOXBaseUnknown* const kAnything = Poison<const VOXBaseUnknown>();

} // namespace

TEST(VOXEAnalysisSupportFilter, LetsEverythingBeSelected)
{
  AdaptorBench<SupportFilter> filter;
  EXPECT_TRUE(filter->GetStatus(nullptr));
  EXPECT_TRUE(filter->GetStatus(Poison<VOXPathElement>()));
}

TEST(VOXEAnalysisSupportFilter, NullsBothObjectsAlthoughItSelectsNone)
{
  AdaptorBench<SupportFilter> filter;
  VOXBaseUnknown* pFirst = Poison<VOXBaseUnknown>();
  VOXBaseUnknown* pSecond = Poison<VOXBaseUnknown>();
  EXPECT_EQ(filter->GetSelectableObject(Poison<VOXPathElement>(), pFirst, pSecond), E_NOTIMPL);
  EXPECT_EQ(pFirst, nullptr);
  EXPECT_EQ(pSecond, nullptr);
}

TEST(VOXEAnalysisSupportFilter, RefusesANullSupportAndTakesAnyOther)
{
  AdaptorBench<SupportFilter> filter;
  EXPECT_EQ(filter->ValidateSupport(nullptr, kAnything), E_FAIL);
  EXPECT_EQ(filter->ValidateSupport(kAnything, nullptr), E_FAIL);
  EXPECT_EQ(filter->ValidateSupport(nullptr, nullptr), E_FAIL);
  EXPECT_EQ(filter->ValidateSupport(kAnything, kAnything), S_OK);
}

TEST(VOXEAnalysisSupportFilter, RefusesWithoutAReport)
{
  ResetErrors();
  AdaptorBench<SupportFilter> filter;
  filter->ValidateSupport(nullptr, nullptr);
  EXPECT_TRUE(voxhost::ErrorLog::Reports().empty());
  EXPECT_EQ(ErrorDepthHandler::_ier_, VOXSamErrorNone);
}

TEST(VOXEAnalysisSupportFilter, HasNoMessageAndLeavesTheKey)
{
  AdaptorBench<SupportFilter> filter;
  VOXString id("as before");
  EXPECT_EQ(filter->GetNLSid(kAnything, id), E_FAIL);
  EXPECT_TRUE(id == "as before");
}

TEST(VOXEAnalysisSupportFilter, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisSupportFilter::GetStatus), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisSupportFilter::GetSelectableObject), 2);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisSupportFilter::ValidateSupport), 3);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisSupportFilter::GetNLSid), 4);
  AdaptorBench<SupportFilter> filter;
  VOXString id;
  EXPECT_TRUE((CallOwn<bool, VOXPathElement*>(filter.Get(), 1, nullptr)));
  EXPECT_EQ((CallOwn<HRESULT, const VOXBaseUnknown*, const VOXBaseUnknown*>(filter.Get(), 3, kAnything, kAnything)),
            S_OK);
  EXPECT_EQ((CallOwn<HRESULT, const VOXBaseUnknown*, VOXString&>(filter.Get(), 4, kAnything, id)), E_FAIL);
}
