#include "demo/terminal/terminal_record.h"

#include <iconv.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "demo/franchise.h"
#include "demo/random.h"

namespace store::demo {
namespace {

constexpr char kStockSurvey = '3';
constexpr char kPrice = '4';

std::string InCodePage949(const std::string& text) {
  static const iconv_t converter = iconv_open("CP949//TRANSLIT", "UTF-8");
  std::string out(text.size() * 2 + 4, '\0');
  std::string in = text;
  char* from = in.data();
  char* to = out.data();
  std::size_t fromLeft = in.size();
  std::size_t toLeft = out.size();
  iconv(converter, &from, &fromLeft, &to, &toLeft);
  out.resize(out.size() - toLeft);
  return out;
}

/// Cut or filled up with blanks; a Korean letter is never cut in two.
std::string Field(const std::string& text, std::size_t width) {
  std::string bytes = InCodePage949(text);
  if (bytes.size() > width) {
    std::size_t end = 0;
    while (true) {
      const std::size_t letter = static_cast<unsigned char>(bytes[end]) < 0x80 ? 1 : 2;
      if (end + letter > width) break;
      end += letter;
    }
    bytes.resize(end);
  }
  bytes.resize(width, ' ');
  return bytes;
}

std::string Digits(std::int64_t number, int width) {
  std::array<char, 24> text{};
  std::snprintf(text.data(), text.size(), "%0*lld", width, static_cast<long long>(number));
  return text.data();
}

bool IsOfPartner(char kind) { return kind != kStockSurvey && kind != kPrice; }

TerminalRecord ParseRecord(const std::string& line) {
  std::istringstream fields(line);
  std::array<std::string, 6> field;
  for (std::string& text : field) std::getline(fields, text, ',');
  if (field[0].size() != 1 || field[2].empty()) {
    throw std::runtime_error("not \"kind,partner,barcode,name,quantity,price\": " + line);
  }
  const auto number = [](const std::string& text) { return text.empty() ? 0 : std::stoll(text); };
  return {field[0][0], field[1], field[2], field[3], number(field[4]), number(field[5])};
}

}  // namespace

std::string RecordBytes(const TerminalRecord& record, int number) {
  std::string bytes = Digits(number, 4) + record.Kind;
  if (IsOfPartner(record.Kind)) {
    bytes += Field(record.Partner, 12) + Field(record.Barcode, 15) + Field(record.Name, 20);
    return bytes + Digits(record.Quantity, 5) + Digits(record.Price, 7);
  }
  bytes += Field(record.Barcode, 15) + Field(record.Name, 20);
  if (record.Kind == kStockSurvey) return bytes + Digits(record.Quantity, 5);
  return bytes + Digits(record.Price, 7);
}

std::vector<TerminalRecord> ReadRecords(const std::string& path) {
  std::ifstream lines(path);
  if (!lines) throw std::runtime_error("cannot read " + path);
  std::vector<TerminalRecord> records;
  std::string line;
  while (std::getline(lines, line)) {
    if (!line.empty() && line[0] != '#') records.push_back(ParseRecord(line));
  }
  return records;
}

std::vector<TerminalRecord> MakeRecords(char kind, std::size_t count, std::size_t items,
                                        std::uint64_t seed) {
  constexpr std::size_t kPartners = 3;  // a transfer is of a few
  const Franchise franchise = MakeFranchise({items, 0, SystemToday()});
  Random random(seed);
  std::vector<TerminalRecord> records;
  for (std::size_t i = 0; i < count; ++i) {
    const Product& product = random.Pick(franchise.Products);
    const Partner& partner = franchise.Partners[random.Index(kPartners)];
    records.push_back(
        {kind, partner.Code, product.Barcode, product.Name, random.Between(1, 48), product.Buy});
  }
  return records;
}

}  // namespace store::demo
