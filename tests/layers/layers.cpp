#include "tests/layers/layers.h"

#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace store {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

/// Which folders each folder may include. A folder of the same row is not among them.
const std::map<std::string, Names>& Below() {
  static const Names data = {"basics", "forms", "gateway"};
  static const Names documents = {"basics", "forms", "gateway", "slips", "lookup"};
  static const std::map<std::string, Names> below = {
      {"basics", {}},
      {"forms", {"basics"}},
      {"gateway", {"basics", "forms"}},
      {"slips", data},
      {"lookup", {"basics", "forms", "gateway", "slips"}},
      {"start", documents},
      {"board", documents},
      {"order", documents},
      {"receipt", documents},
      {"handheld", documents},
      {"ui",
       {"basics", "forms", "gateway", "slips", "lookup", "start", "board", "order", "receipt",
        "handheld"}},
  };
  return below;
}

std::string Content(const fs::path& file) {
  std::ifstream stream(file);
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

/// All that the first group of `pattern` finds in a text.
Names Found(const std::string& text, const std::regex& pattern) {
  Names found;
  for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at) {
    found.insert((*at)[1]);
  }
  return found;
}

struct Folder {
  Names included;
  Names linked;
  bool usesQt = false;
};

Folder ReadFolder(const fs::path& path) {
  static const std::regex include("#include \"([a-z_]+)/");
  static const std::regex qt("#include <(Q[A-Za-z]*)>");
  static const std::regex link("store_([a-z]+)");
  Folder folder;
  for (const auto& entry : fs::recursive_directory_iterator(path)) {
    const std::string ending = entry.path().extension();
    if (ending != ".h" && ending != ".cpp") continue;
    const std::string text = Content(entry.path());
    folder.included.merge(Found(text, include));
    folder.usesQt = folder.usesQt || !Found(text, qt).empty();
  }
  // The links stand behind the word LINKS, in ui behind target_link_libraries.
  const std::string build = Content(path / "CMakeLists.txt");
  for (const char* word : {"LINKS", "target_link_libraries(store_ui"}) {
    const size_t begin = build.find(word);
    if (begin == std::string::npos) continue;
    folder.linked.merge(Found(
        build.substr(begin + std::string(word).size(), build.find(')', begin) - begin), link));
  }
  return folder;
}

}  // namespace

std::vector<std::string> BrokenLayers(const fs::path& tree) {
  std::vector<std::string> broken;
  for (const auto& [name, below] : Below()) {
    if (!fs::exists(tree / name)) continue;
    Folder folder = ReadFolder(tree / name);
    folder.included.erase(name);
    folder.linked.erase(name);
    for (const std::string& included : folder.included) {
      if (!below.contains(included)) broken.push_back(name + " includes " + included);
      if (!folder.linked.contains(included)) {
        broken.push_back(name + " includes " + included + " and does not link it");
      }
    }
    for (const std::string& linked : folder.linked) {
      if (Below().contains(linked) && !folder.included.contains(linked)) {
        broken.push_back(name + " links " + linked + " and includes nothing of it");
      }
    }
    if (folder.usesQt && name != "ui") broken.push_back(name + " includes Qt");
  }
  return broken;
}

}  // namespace store
