#include "lookup/new_document.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <string_view>

#include "basics/text.h"
#include "forms/host.h"

namespace store {
namespace {

std::string FileWord(const std::string& text) {
  std::string word = Trim(text);
  for (char& letter : word) {
    const bool isControl = static_cast<unsigned char>(letter) < ' ';
    if (isControl || std::string_view("/\\:*?\"<>|").find(letter) != std::string_view::npos) {
      letter = '_';
    }
  }
  return word;
}

}  // namespace

std::string NewDocument(const std::string& name, const std::string& ending) {
  const std::filesystem::path folder(Host.DocumentsFolder);
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  const std::string word = FileWord(name);
  for (int number = 1;; ++number) {
    std::string path = (folder / word).string();
    if (number > 1) path += "_" + std::to_string(number);
    path += ending;
    if (std::FILE* file = std::fopen(path.c_str(), "wbx")) {
      std::fclose(file);
      return path;
    }
    if (errno != EEXIST) return {};
  }
}

}  // namespace store
