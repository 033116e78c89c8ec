// SPDX-License-Identifier: MIT
#pragma once

//! A class with an operation that nobody described.
class Undocumented
{
public:
  int Nameless(int iValue);
};
