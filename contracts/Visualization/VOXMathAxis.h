// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

//! A point or a direction: three coordinates.
struct VOXMathVector
{
  double x; //!< first coordinate
  double y; //!< second coordinate
  double z; //!< third coordinate
};

//! An axis system: origin and three directions. A value.
class VOXMathAxis
{
public:
  VOXMathVector origin; //!< where the axes meet
  VOXMathVector i;      //!< first direction
  VOXMathVector j;      //!< second direction
  VOXMathVector k;      //!< third direction
};

//! The canonical axis: origin and the three unit directions I, J, K.
extern VOX_HOST_API const VOXMathAxis VOXMathOIJK;
