#include "basics/profile_file.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "basics/text.h"
#include "basics/whole_file.h"

namespace store {
namespace {

constexpr size_t kLongestValue = 254;
constexpr size_t kLargestFile = 1 << 20;
constexpr std::string_view kLineEnd = "\r\n";

using Lines = std::vector<std::string>;  // as in the file, each with its own line end

Lines SplitLines(std::string_view bytes) {
  Lines lines;
  while (!bytes.empty()) {
    const size_t end = bytes.find('\n');
    const size_t length = end == std::string_view::npos ? bytes.size() : end + 1;
    lines.emplace_back(bytes.substr(0, length));
    bytes.remove_prefix(length);
  }
  return lines;
}

std::string_view Stripped(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r\n";
  const size_t first = text.find_first_not_of(kBlank);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

// Names are compared decoded: the second byte of a Korean letter can look like an ASCII letter.
bool SameName(std::string_view inFile, std::string_view wanted) {
  const std::string name = FromCodePage949(Stripped(inFile));
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  const std::string_view plain = Stripped(wanted);
  return std::equal(name.begin(), name.end(), plain.begin(), plain.end(),
                    [&](char a, char b) { return lower(a) == lower(b); });
}

bool IsSectionLine(std::string_view line) { return Stripped(line).substr(0, 1) == "["; }

bool IsSection(std::string_view line, std::string_view section) {
  const std::string_view stripped = Stripped(line);
  const size_t close = stripped.find(']');
  return IsSectionLine(line) && close != std::string_view::npos &&
         SameName(stripped.substr(1, close - 1), section);
}

bool IsKey(std::string_view line, std::string_view key) {
  const size_t equals = line.find('=');
  return equals != std::string_view::npos && Stripped(line).substr(0, 1) != ";" &&
         SameName(line.substr(0, equals), key);
}

// The lines of a section are those from `first` up to `last`; none when it is missing.
struct SectionRange {
  bool found = false;
  size_t first = 0;
  size_t last = 0;
};

SectionRange FindSection(const Lines& lines, std::string_view section) {
  const auto head = std::find_if(lines.begin(), lines.end(),
                                 [&](const std::string& line) { return IsSection(line, section); });
  if (head == lines.end()) return {};
  const auto end = std::find_if(head + 1, lines.end(), IsSectionLine);
  return {true, static_cast<size_t>(head + 1 - lines.begin()),
          static_cast<size_t>(end - lines.begin())};
}

size_t FindKey(const Lines& lines, const SectionRange& range, std::string_view key) {
  size_t at = range.first;
  while (at < range.last && !IsKey(lines[at], key)) ++at;
  return at;
}

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted = value.size() > 1 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

void EndLastLine(Lines& lines) {
  if (!lines.empty() && lines.back().back() != '\n') lines.back() += kLineEnd;
}

void ReplaceValue(std::string& line, const std::string& value) {
  const size_t end = line.find_first_of("\r\n");
  const std::string lineEnd = end == std::string::npos ? "" : line.substr(end);
  line = line.substr(0, line.find('=') + 1) + value + lineEnd;
}

void AddKey(Lines& lines, SectionRange range, const std::string& section,
            const std::string& entry) {
  EndLastLine(lines);
  if (!range.found) {
    lines.push_back("[" + ToCodePage949(section) + "]" + std::string(kLineEnd));
    range.first = range.last = lines.size();
  }
  // Blank lines between two sections stay between them.
  while (range.last > range.first && Stripped(lines[range.last - 1]).empty()) --range.last;
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(range.last),
               entry + std::string(kLineEnd));
}

}  // namespace

std::string ProfileFault(const std::string& path) {
  std::string bytes;
  return ReadWholeFile(path, kLargestFile, bytes);
}

std::string ReadProfileValue(const std::string& path, const std::string& section,
                             const std::string& key) {
  std::string bytes;
  if (!ReadWholeFile(path, kLargestFile, bytes).empty()) return {};
  const Lines lines = SplitLines(bytes);
  const SectionRange range = FindSection(lines, section);
  const size_t at = FindKey(lines, range, key);
  if (at == range.last) return {};
  std::string_view value = lines[at];
  value = WithoutQuotes(Stripped(value.substr(value.find('=') + 1))).substr(0, kLongestValue);
  return FromCodePage949(value.substr(0, value.find('\0')));
}

bool WriteProfileValue(const std::string& path, const std::string& section, const std::string& key,
                       const std::string& value) {
  std::string bytes;
  if (!ReadWholeFile(path, kLargestFile, bytes).empty()) return false;
  Lines lines = SplitLines(bytes);
  const SectionRange range = FindSection(lines, section);
  const size_t at = FindKey(lines, range, key);
  const std::string_view ends("\r\n\0", 3);
  const std::string written = ToCodePage949(value.substr(0, value.find_first_of(ends)));
  if (at < range.last) {
    ReplaceValue(lines[at], written);
  } else {
    AddKey(lines, range, section, ToCodePage949(key) + "=" + written);
  }
  std::string all;
  for (const std::string& line : lines) all += line;
  return ReplaceFile(path, all).empty();
}

}  // namespace store
