#include "lookup/consonant_tabs.h"

#include "basics/text.h"

namespace store {
namespace {

// Each tab begins at its letter; the last one closes the range of "하".
constexpr const char* kLetters = "가나다라마바사아자차카타파하희";
constexpr const char* kLastLetter = "희";

}  // namespace

const std::vector<std::string>& ConsonantTabCaptions() {
  static const std::vector<std::string> captions = {"가", "나", "다", "라", "마", "바", "사",  "아",
                                                    "자", "차", "카", "타", "파", "하", "기타"};
  return captions;
}

ConsonantRange RangeOfTab(int tab) {
  const std::string letter = MidChars(kLetters, tab + 1, 1);
  if (letter == kLastLetter) return {.Rest = true, .From = "", .To = ""};
  return {.Rest = false, .From = letter, .To = MidChars(kLetters, tab + 2, 1)};
}

}  // namespace store
