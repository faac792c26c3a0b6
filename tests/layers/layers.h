#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace store {

/// What breaks the order of the folders in a source tree, a sentence each: an include of a folder
/// that does not lie below, an include of a folder that is not linked, a link of which nothing is
/// included, and Qt outside of `ui`. A header with inline code slips past the linker, so the
/// sources are read.
std::vector<std::string> BrokenLayers(const std::filesystem::path& tree);

}  // namespace store
