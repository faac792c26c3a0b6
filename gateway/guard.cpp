#include "gateway/guard.h"

#include "gateway/byte_search.h"

namespace store {
namespace {

constexpr std::string_view kBeforeWords = "\n-- ";
constexpr std::string_view kAnyRefusal = "다른 곳에서 먼저 바뀐 자료입니다. 다시 조회하세요.";

}  // namespace

std::string Guard(const std::string& select, std::string_view refusal) {
  return select + std::string(kBeforeWords) + std::string(refusal);
}

bool IsGuard(std::string_view statement) {
  const size_t begin = statement.find_first_not_of(" \t\r\n(");
  return begin != std::string_view::npos && SameFolded(statement.substr(begin, 6), "SELECT");
}

std::string_view GuardSelect(std::string_view statement) {
  return statement.substr(0, statement.rfind(kBeforeWords));
}

std::string_view GuardRefusal(std::string_view statement) {
  const size_t words = statement.rfind(kBeforeWords);
  return words == std::string_view::npos ? kAnyRefusal
                                         : statement.substr(words + kBeforeWords.size());
}

}  // namespace store
