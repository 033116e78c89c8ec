// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

//! Version of a characteristic: one state of the analysis that values belong to. A value.
//! - Equality compares all members, the variant flag included.
class VOXSamCharacVersion
{
public:
  std::int32_t _KindCode =
      0; //!< 0 static step, 1 time step, 2 vibration mode, 3 buckling mode, 4 frequency; 8 and more
         //!< are derived versions, which are never archived
  std::int32_t _Occurrence = 0; //!< number of the step or mode, from 1
  std::int32_t _Step = 0;       //!< number of the analysis step, from 1; 0 when it is not known
  unsigned char _Variant = 0;   //!< 1 selects the variant: the imaginary part of complex values

  //! Whether all members are equal.
  bool operator==(const VOXSamCharacVersion& iOther) const
  {
    return _KindCode == iOther._KindCode && _Occurrence == iOther._Occurrence && _Step == iOther._Step &&
           _Variant == iOther._Variant;
  }
  //! The opposite.
  bool operator!=(const VOXSamCharacVersion& iOther) const { return !(*this == iOther); }
};
