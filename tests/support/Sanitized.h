// SPDX-License-Identifier: MIT
#pragma once

namespace voxtest
{

//! Whether the sanitizers watch: everything then takes several times as long, and tests that try very many cases take a
//! part of them.
#if defined(__has_feature)
inline constexpr bool kIsSanitized = __has_feature(address_sanitizer);
#elif defined(__SANITIZE_ADDRESS__)
inline constexpr bool kIsSanitized = true;
#else
inline constexpr bool kIsSanitized = false;
#endif

} // namespace voxtest
