#pragma once
// The bytes that stand before the version block in a program file. They are kept inverted here,
// so that the reader's own copy is not taken for a block.

#include <array>
#include <cstdint>

namespace padral {

inline constexpr std::array<std::uint8_t, 16> MarcaVersionInvertida{
    0xa9, 0xac, 0xa0, 0xb9, 0xb6, 0xb3, 0xba, 0xa9, 0x3e, 0x91, 0x07, 0xd2, 0x55, 0x8c, 0xe1, 0x76};

}  // namespace padral
