#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace store {

/// A folder of the program as its sources and its CMakeLists.txt tell of it.
struct LayerFolder {
  std::string Name;
  std::set<std::string> Links;  ///< Folders that it links.
  /// Folders that it includes from, each with the first include found: "board/a.cpp: order/b.h".
  std::map<std::string, std::string> Includes;
  /// Includes that a folder within it, such as handheld/wire, keeps out.
  std::vector<std::string> RoomFaults;
  std::vector<std::string> ToolkitIncludes;  ///< "board/a.cpp: <QString>"
};

/// The folders below `root` that have a place in the layers, by name.
std::map<std::string, LayerFolder> ReadLayers(const std::filesystem::path& root);

/// What breaks the layers: an include or a link against them, a folder without a place in them, an
/// include of a folder that is not linked, a link that no include needs, and the toolkit outside of
/// ui/.
std::vector<std::string> LayerFaults(const std::map<std::string, LayerFolder>& folders);

/// The folders and their links as a graph in the notation of mermaid, without those links that lead
/// where a longer way leads as well.
std::string LayerGraph(const std::map<std::string, LayerFolder>& folders);

}  // namespace store
