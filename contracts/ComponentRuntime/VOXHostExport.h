// SPDX-License-Identifier: MIT
#pragma once

//! Marks what the host supplies and what crosses library boundaries (interfaces, handles, lists): visible in every
//! library, whatever visibility that library is compiled with.
#define VOX_HOST_API __attribute__((visibility("default")))
