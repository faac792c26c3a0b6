#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace store::demo {

/// The thirteenth digit that belongs to the first twelve of an EAN-13 barcode.
char CheckDigit(std::string_view twelve);

/// The barcode of the n-th product: prefix 880 (Korea), different for every n below a thousand
/// million, and scattered, so that goods that stand together do not share a long prefix.
std::string Barcode(std::size_t n);

}  // namespace store::demo
