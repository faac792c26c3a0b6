#include "tests/layers/layers.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <sstream>

namespace store {
namespace {

using Names = std::set<std::string>;
using Folders = std::map<std::string, LayerFolder>;

/// From the ground up. A folder may include from and link those of the rows below its own.
const std::vector<Names> kRows = {{"basics"},  {"forms"},
                                  {"gateway"}, {"slips"},
                                  {"lookup"},  {"start", "board", "order", "receipt", "handheld"},
                                  {"ui"}};
/// These use nothing of the program's, and it uses nothing of theirs.
const Names kApart = {"demo", "private_db"};

/// Folders within a folder that may use less than it: themselves and those named.
const std::map<std::string, Names> kRooms = {{"handheld/wire", {"basics"}}};

/// The row of a folder from 0; those that stand in none are -1.
int RowOf(const std::string& folder) {
  const auto row = std::find_if(kRows.begin(), kRows.end(),
                                [&](const Names& names) { return names.contains(folder); });
  return row == kRows.end() ? -1 : static_cast<int>(row - kRows.begin());
}

std::string TextOf(const std::filesystem::path& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

/// Notes an include, "lookup/NEW_PR.h" of the folder "lookup", that a file's room does not allow.
void HoldToRoom(const std::string& include, const std::string& other, const std::string& shownAs,
                LayerFolder& folder) {
  const auto room = std::find_if(kRooms.begin(), kRooms.end(), [&](const auto& each) {
    return shownAs.starts_with(each.first + "/");
  });
  if (room == kRooms.end()) return;
  const auto& [name, allowed] = *room;
  if (allowed.contains(other) || include.starts_with(name + "/")) return;
  folder.RoomFaults.push_back(shownAs + ": " + include + " does not belong into " + name);
}

void ReadIncludes(const std::filesystem::path& file, const std::string& shownAs,
                  LayerFolder& folder) {
  static const std::regex kInclude(R"(^\s*#\s*include\s*(?:"(([^"/]+)/[^"]+)\"|(<Q[^>]*>)))");
  std::ifstream lines(file);
  std::string line;
  std::smatch found;
  while (std::getline(lines, line)) {
    if (!std::regex_search(line, found, kInclude)) continue;
    if (!found[3].matched) HoldToRoom(found.str(1), found.str(2), shownAs, folder);
    if (found[3].matched) {
      folder.ToolkitIncludes.push_back(shownAs + ": " + found.str(3));
    } else if (found.str(2) != folder.Name) {
      folder.Includes.emplace(found.str(2), shownAs + ": " + found.str(1));
    }
  }
}

/// The folders behind LINKS, or those that the window folder links, which names its own way.
Names LinksIn(const std::string& cmake) {
  static const std::regex kCall(
      R"((?:store_library\([^)]*LINKS|target_link_libraries\(store_ui\b)([^)]*)\))");
  static const std::regex kFolder(R"(\bstore_(\w+))");
  Names links;
  std::smatch call;
  if (!std::regex_search(cmake, call, kCall)) return links;
  const std::string listed = call.str(1);
  for (std::sregex_iterator link(listed.begin(), listed.end(), kFolder), end; link != end; ++link)
    links.insert(link->str(1));
  return links;
}

LayerFolder ReadFolder(const std::filesystem::path& root, const std::string& name) {
  LayerFolder folder;
  folder.Name = name;
  folder.Links = LinksIn(TextOf(root / name / "CMakeLists.txt"));
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root / name))
    if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp")
      files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  for (const auto& file : files)
    ReadIncludes(file, file.lexically_relative(root).generic_string(), folder);
  return folder;
}

bool MayUse(const std::string& folder, const std::string& other) {
  return RowOf(other) >= 0 && RowOf(other) < RowOf(folder);
}

void AddFaults(const LayerFolder& folder, std::vector<std::string>& faults) {
  const std::string& name = folder.Name;
  if (RowOf(name) < 0 && !kApart.contains(name))
    faults.push_back(name + " has no place in the layers");
  for (const auto& [other, where] : folder.Includes) {
    if (!MayUse(name, other)) {
      faults.push_back(where + " is against the layers");
    } else if (!folder.Links.contains(other)) {
      faults.push_back(where + " is of a folder that " + name + " does not link");
    }
  }
  for (const std::string& link : folder.Links) {
    if (!folder.Includes.contains(link))
      faults.push_back(name + " links " + link + " and includes nothing of it");
  }
  faults.insert(faults.end(), folder.RoomFaults.begin(), folder.RoomFaults.end());
  if (name == "ui") return;
  for (const std::string& where : folder.ToolkitIncludes)
    faults.push_back(where + " is of the toolkit");
}

bool Leads(const Folders& folders, const std::string& from, const std::string& to) {
  const auto folder = folders.find(from);
  if (folder == folders.end()) return false;
  const Names& links = folder->second.Links;
  return links.contains(to) || std::any_of(links.begin(), links.end(), [&](const auto& link) {
           return Leads(folders, link, to);
         });
}

}  // namespace

Folders ReadLayers(const std::filesystem::path& root) {
  static const std::regex kOwnLibrary(R"(\bstore_library\(|\badd_library\()");
  Folders folders;
  for (const auto& entry : std::filesystem::directory_iterator(root)) {
    const std::string name = entry.path().filename().string();
    if (std::regex_search(TextOf(entry.path() / "CMakeLists.txt"), kOwnLibrary))
      folders[name] = ReadFolder(root, name);
  }
  return folders;
}

std::vector<std::string> LayerFaults(const Folders& folders) {
  std::vector<std::string> faults;
  for (const auto& [name, folder] : folders) AddFaults(folder, faults);
  return faults;
}

std::string LayerGraph(const Folders& folders) {
  std::string graph = "graph TD\n";
  for (const auto& [name, folder] : folders) {
    for (const std::string& link : folder.Links) {
      const bool longerWay = std::any_of(
          folder.Links.begin(), folder.Links.end(),
          [&](const std::string& other) { return other != link && Leads(folders, other, link); });
      if (!longerWay) graph += "  " + name + " --> " + link + "\n";
    }
  }
  return graph;
}

}  // namespace store
