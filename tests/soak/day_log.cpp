#include "tests/soak/day_log.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <utility>

namespace store {
namespace {

std::vector<std::string> FieldsOf(std::string_view line) {
  std::vector<std::string> fields;
  for (;;) {
    const size_t tab = line.find('\t');
    fields.emplace_back(line.substr(0, tab));
    if (tab == std::string_view::npos) return fields;
    line.remove_prefix(tab + 1);
  }
}

}  // namespace

DayLog::DayLog(const std::string& path)
    : file_(open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600)) {}

DayLog::~DayLog() { close(file_); }

void DayLog::Line(std::initializer_list<std::string_view> fields) const {
  std::string line;
  for (const std::string_view field : fields) {
    if (!line.empty()) line += '\t';
    for (const char c : field) line += c == '\t' || c == '\n' || c == '\r' ? ' ' : c;
  }
  line += '\n';
  if (write(file_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) _exit(3);
}

std::vector<std::vector<std::string>> DayLogReader::News() {
  std::ifstream file(path_, std::ios::binary);
  file.seekg(static_cast<std::streamoff>(read_));
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  std::vector<std::vector<std::string>> news;
  std::string_view rest = text;
  for (size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
    news.push_back(FieldsOf(rest.substr(0, end)));
    rest.remove_prefix(end + 1);
  }
  read_ += text.size() - rest.size();
  return news;
}

ClerkNumbers* MapClerkNumbers(const std::string& path) {
  const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (file < 0 || ftruncate(file, sizeof(ClerkNumbers)) != 0) return nullptr;
  void* place = mmap(nullptr, sizeof(ClerkNumbers), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  close(file);
  return place == MAP_FAILED ? nullptr : static_cast<ClerkNumbers*>(place);
}

}  // namespace store
