#include "slips/slip_keys.h"

#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "gateway/gateway.h"

namespace store {

std::int16_t SlipSeqCounter = 0;
std::string SlipKeyPrefix;

namespace {

constexpr const char* kNumberMask = "0000";
constexpr const char* kNoKey = "0001";  // what stands for a key that could not be made

std::string SlipIdStatement(const std::string& table) {
  return Splice(
      " SELECT  CONCAT(date_format(now(),'%Y%m%d'),'', '{store}'),IF(COUNT(PE_ID)=0,1,"
      "MAX(RIGHT(PE_ID,4))+1)  from {table} WHERE   PE_ID LIKE "
      "CONCAT(date_format(now(),'%Y%m%d'),'',"
      " '{store}%')",
      "store"_a = Session.StoreCode, "table"_a = table);
}

std::string StockCountIdStatement() {
  return Splice(
      " SELECT  CONCAT(date_format(now(),'%Y%m%d'),'', '{store}'),IF(COUNT(ME_ID)=0,1,"
      "MAX(RIGHT(ME_ID,4))+1)  from ME  WHERE   ME_ID LIKE CONCAT(date_format(now(),'%Y%m%d'),'',"
      " '{store}%')",
      "store"_a = Session.StoreCode);
}

}  // namespace

std::string NextSlipId(const std::string& table) {
  const std::string kind = RightChars(table, 2);
  if (SlipSeqCounter != 0) {
    // Past the 16 bits the addition has no place to go and the same key comes out again.
    ToInt16(SlipSeqCounter + 1.0, SlipSeqCounter);
    return SlipKeyPrefix + Session.UserCode + kind + FormatNumber(SlipSeqCounter, kNumberMask);
  }
  StringTable found;
  std::int32_t rows = 0;
  std::int32_t highestColumn = 0;
  QueryRows(SlipIdStatement(table), found, rows, highestColumn);
  if (rows == 0) return kNoKey;
  const double number = ParseNumber(found.At(1, 1));
  ToInt16(number, SlipSeqCounter);
  SlipKeyPrefix = found.At(1, 0);
  return SlipKeyPrefix + Session.UserCode + kind + FormatNumber(number, kNumberMask);
}

std::string NextStockCountId(int before) {
  StringTable found;
  std::int32_t rows = 0;
  std::int32_t highestColumn = 0;
  QueryRows(StockCountIdStatement(), found, rows, highestColumn);
  if (rows == 0) return kNoKey;
  return found.At(1, 0) + Session.UserCode +
         FormatNumber(ParseNumber(found.At(1, 1)) + before, kNumberMask);
}

bool IsWholeKey(const std::string& slipId) { return !slipId.empty() && slipId != kNoKey; }

bool DateFitsKey(const std::string& date, const std::string& slipId) {
  const auto digits = [&](int start, int length) {
    return static_cast<int>(ParseNumber(MidChars(slipId, start, length)));
  };
  const int year = digits(1, 4);
  const int month = digits(5, 2);
  const int day = digits(7, 2);
  if (year == 0 || month == 0 || day == 0) return false;
  const std::string lower = FormatDateValue(DateSerial(year, month - 1, day), "YYYY-MM-DD");
  const std::string upper = FormatDateValue(DateSerial(year, month + 1, day), "YYYY-MM-DD");
  return lower <= date && date <= upper;
}

}  // namespace store
