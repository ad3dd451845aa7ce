// The bits of the flags word of "CF". Those from 16 on say that a setting is off, so
// that a record that is not there means on.
#pragma once

#include <cstdint>

namespace magpie::flag {

inline constexpr std::int32_t useKeystrokes = 1;
inline constexpr std::int32_t mainOnTop = 2;
inline constexpr std::int32_t startFullWindow = 4;
inline constexpr std::int32_t filterAdvanced = 8;
inline constexpr std::int32_t noLoadSettings = 16;
inline constexpr std::int32_t noSaveSettings = 32;
inline constexpr std::int32_t noLoadURLs = 64;
inline constexpr std::int32_t noSaveURLs = 128;

}  // namespace magpie::flag
