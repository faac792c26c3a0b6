#pragma once

#include <cstddef>
#include <cstdint>

namespace store {

/// Runs any bytes through the terminal's line as its receiver would and holds what comes out
/// against what must always be true. The first byte says how the others are cut into chunks. A
/// broken rule ends the program with a word about it.
void FuzzWire(const std::uint8_t* data, std::size_t size);

}  // namespace store
