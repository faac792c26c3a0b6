#include "gateway/splice.h"

#include <gtest/gtest.h>

#include "gateway/gateway.h"

namespace store {
namespace {

struct Columns {
  static constexpr char kLetter = 'L';
  static constexpr size_t kFields = 23;
  std::string Field(size_t number) const { return "<" + std::to_string(number) + ">"; }
};

TEST(Splice, PutsValuesInAsTheyAreAndNeverTwice) {
  EXPECT_EQ(Splice("A = '{code}' AND B = {n} OR C = '{code}'", "code"_a = "o\"neil", "n"_a = "3"),
            "A = 'o\"neil' AND B = 3 OR C = 'o\"neil'");
  EXPECT_EQ(Splice("{a}{b}", "a"_a = "{b}", "b"_a = "{a}"), "{b}{a}");
  EXPECT_EQ(Splice("{L2}{table}{L22}", Columns(), "table"_a = "PSM22"), "<2>PSM22<22>");
}

TEST(Splice, MarksAValueThatWouldEndItsText) {
  const struct {
    std::string spliced;
    const char* broken;  // nothing when the text is whole
  } cases[] = {
      {Splice("A = '{a}' AND B = '{b}'", "a"_a = "x", "b"_a = "o'neil"), "o'neil"},
      {Splice("A LIKE '%{a}%'", "a"_a = "'"), "'"},
      {Splice("A = 'it''s {a}'", "a"_a = "'x'"), "'x'"},
      {Splice("A = '{a}{b}'", "a"_a = "", "b"_a = "''"), "''"},
      {Splice("SELECT ({a})", "a"_a = Splice("B = '{b}'", "b"_a = "' OR '1'='1")), "' OR '1'='1"},
      {Splice("A = '{a}'", "a"_a = "\\`\";--"), nullptr},
      {Splice("A IN ({a}) AND B = ''", "a"_a = "'x','y'"), nullptr},
  };
  for (const auto& each : cases) {
    const auto value = BrokenValue(each.spliced);
    EXPECT_EQ(value.value_or("-"), each.broken != nullptr ? each.broken : "-") << each.spliced;
  }
}

using splice::NamesFit;
using Code = splice::Value<"code">;
static_assert(NamesFit<Code>("'{code}' {code}"));
static_assert(NamesFit<Columns>("{L0} {L22}"));
static_assert(!NamesFit<Code>("'{kode}'"), "a place that no argument bears");
static_assert(!NamesFit<Code>("nothing"), "an argument without a place");
static_assert(!NamesFit<Columns>("{L23}"), "a field behind the last");
static_assert(!NamesFit<Columns>("{L02}"), "a field by another name");
static_assert(!NamesFit<>("{0}") && !NamesFit<>("{}") && !NamesFit<>("{"), "a brace for nothing");

TEST(BuildConnectString, JoinsItsPartsAsTheDriverReadsThem) {
  BuildConnectString("127.0.0.1;PORT=33061", "kt", "demo");
  EXPECT_EQ(ConnectString,
            "DRIVER={MySQL ODBC 3.51 Driver};SERVER=127.0.0.1;PORT=33061;DATABASE=demo;UID=kt;"
            "PWD=qz4471;OPTION=16386");
}

}  // namespace
}  // namespace store
