#include "handheld/wire/record.h"

#include <gtest/gtest.h>

#include <vector>

#include "basics/numbers.h"
#include "tests/handheld/terminal_text.h"

namespace store {
namespace {

std::string Shown(const HandheldRecord& record) {
  return record.Sequence + "|" + record.Kind + "|" + record.Partner + "|" + record.Barcode + "|" +
         record.Name + "|" + NumberText(record.Quantity) + "|" + NumberText(record.Price);
}

TEST(Record, KindsAndLayouts) {
  const auto trade = [](char kind) {
    return Shown(
        ParseRecord(TradeRecord(kind, "0007", "C0001", "8801000", "맑은생수", "00012", "0000480")));
  };
  EXPECT_EQ(trade('0'), "0007|매    입|C0001|8801000|맑은생수|12|480");
  EXPECT_EQ(trade('1'), "0007|매출반품 (반품)|C0001|8801000|맑은생수|12|480");
  EXPECT_EQ(trade('2'), "0007|매    출|C0001|8801000|맑은생수|12|480");
  EXPECT_EQ(trade('5'), "0007|매입반품 (반품)|C0001|8801000|맑은생수|12|480");
  EXPECT_EQ(trade('7'), "0007|||||0|0");
  const auto product = [](char kind) {
    return Shown(ParseRecord(ProductRecord(kind, "0012", "8801000", "콩나물", "0012345")));
  };
  EXPECT_EQ(product('3'), "0012|재고조사||8801000|콩나물|123|0");
  EXPECT_EQ(product('4'), "0012|상품관리||8801000|콩나물|0|12345");
}

TEST(Record, FieldsEndWhereTheirBytesEnd) {
  const std::string full = TradeRecord('0', "9999", "C00000000012", "880100012345678",
                                       "가나다라마바사아자차", "99999", "9999999");
  EXPECT_EQ(Shown(ParseRecord(full)),
            "9999|매    입|C00000000012|880100012345678|가나다라마바사아자차|99999|9999999");
  EXPECT_EQ(Shown(ParseRecord(full + "5")),
            "9999|매    입|C00000000012|880100012345678|가나다라마바사아자차|99999|9999999");
  // An odd byte in the name: the numbers behind it keep their places.
  const std::string odd =
      TradeRecord('0', " 1", " C1 ", " 88 ", "A가나다라마바사아자", "-12", "  1 50");
  EXPECT_EQ(Shown(ParseRecord(odd)), "1|매    입|C1|88|A가나다라마바사아자|-12|150");
}

TEST(Record, ALongBarcodeOfASurveyBeginsTheName) {
  EXPECT_EQ(Shown(ParseRecord(ProductRecord('3', "0001", "880100012345678", "물", "00003"))),
            "0001|재고조사||880100012345678|8물|3|0");
  // Fifteen characters from the barcode's last byte on, however many bytes they are.
  EXPECT_EQ(ParseRecord(ProductRecord('4', "0001", "1", "가나다라마바사아자차", "")).Name,
            "가나다라마바사아자차");
}

TEST(Record, EveryShorterTextIsRead) {
  const std::string whole =
      TradeRecord('0', "0007", "C0001", "8801000", "맑은생수", "00012", "0000480");
  for (int length = 0; length <= ByteLen(whole); ++length) {
    const HandheldRecord record = ParseRecord(ByteMid(whole, 1, length));
    EXPECT_EQ(record.Kind.empty(), length < 5) << length;
    EXPECT_EQ(record.Quantity, length < 56 ? 0 : length == 56 ? 1 : 12) << length;
    EXPECT_EQ(record.Price, length < 62 ? 0 : length == 62 ? 4 : length == 63 ? 48 : 480) << length;
  }
}

TEST(Record, NumbersOfTheTerminal) {
  const std::vector<std::pair<std::string, double>> cases = {
      {"00012", 12}, {"   12", 12}, {"1 2 3", 123}, {"- 5", -5},  {"12a4", 12},
      {"", 0},       {"  ", 0},     {"a", 0},       {"1.5", 1.5}, {"1,5", 1},
      {"+7", 7},     {"1e3", 1},    {"1.2.3", 1.2}, {"-", 0},
  };
  for (const auto& [text, number] : cases) EXPECT_EQ(RecordNumber(text), number) << text;
}

}  // namespace
}  // namespace store
