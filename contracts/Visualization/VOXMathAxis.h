// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

//! A point or a direction: three coordinates.
struct VOXMathVector
{
  double x;
  double y;
  double z;
};

//! An axis system: origin and three directions. A value.
class VOXMathAxis
{
public:
  VOXMathVector origin;
  VOXMathVector i;
  VOXMathVector j;
  VOXMathVector k;
};

//! The canonical axis: origin and the three unit directions I, J, K.
extern VOX_HOST_API const VOXMathAxis VOXMathOIJK;
