#include "basics/log.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace store {
namespace {

TEST(WriteLog, MakesOneLineOfUtf8AndKeepsFaultsToItself) {
  struct Case {
    std::string Text;
    const char* Line;
  };
  const Case cases[] = {
      {"한글\r\nline\ttwo\x7F", "a: 한글  line two "},
      {"\xB0\xA1 \xED\x95", "a: ?? ??"},
      {"\xC0\xAF\xED\xA0\x80\xF5", "a: ??????"},
      {"\xF0\x9F\x98\x80", "a: \xF0\x9F\x98\x80"},
  };
  std::string written;
  Log.Write = [&](LogWeight, const std::string& record) { written = record; };
  for (const Case& c : cases) {
    WriteLog(LogWeight::Note, "a", c.Text);
    EXPECT_EQ(written, c.Line);
  }
  Log.Write = [](LogWeight, const std::string&) { throw std::runtime_error("full"); };
  EXPECT_NO_THROW(WriteLog(LogWeight::Note, "a", "b"));
  Log = {};
  EXPECT_NO_THROW(WriteLog(LogWeight::Note, "a", "b"));
}

}  // namespace
}  // namespace store
