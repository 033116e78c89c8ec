// SPDX-License-Identifier: MIT
// Every operation of the enumeration manager and the connection design adaptor, called through its place in a plain interface.
#include "VOXESamConnectionDesignAdaptor.h"
#include "VOXESamEnumManager.h"
#include "tests/abi/Noting.h"

using namespace voxtest;

namespace
{

class SelectionListType : public Noting<VOXESamEnumManager>
{
public:
  NOTES(HRESULT, GetMode, (VOXSamSelectionMode&), )
  NOTES(HRESULT, GetList, (VOXListValVOXUnicodeString&), )
  NOTES(HRESULT, GetSelected, (VOXUnicodeString&, int&), )
  NOTES(HRESULT, SetSelected, (int), )
  NOTES(HRESULT, GetResult,
        (const VOXUnicodeString&, VOXListValVOXUnicodeString&, VOXListValVOXUnicodeString&,
         VOXListValVOXBaseUnknown_var&), )
};

TEST(AdaptorSlots, OfVOXESamEnumManagerAnswerAtTheirPlacesInAPlainInterface)
{
  SelectionListType feature;
  EXPECT_PLACE_OF(feature, plain::SelectionList, GetMode);
  EXPECT_PLACE_OF(feature, plain::SelectionList, GetList);
  EXPECT_PLACE_OF(feature, plain::SelectionList, GetSelected);
  EXPECT_PLACE_OF(feature, plain::SelectionList, SetSelected);
  EXPECT_PLACE_OF(feature, plain::SelectionList, GetResult);
  ExpectBaseOperationsInPlace<plain::SelectionList, SelectionListType>();
}

using ConnectionDesignType = Noting<VOXESamConnectionDesignAdaptor>;

TEST(AdaptorSlots, OfVOXESamConnectionDesignAdaptorAnswerAtTheirPlacesInAPlainInterface)
{
  ExpectBaseOperationsInPlace<plain::Base, ConnectionDesignType>();
}

} // namespace
