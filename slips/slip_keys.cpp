#include "slips/slip_keys.h"

#include <algorithm>
#include <map>

#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"

namespace store {

std::int16_t SlipSeqCounter = 0;
std::string SlipKeyPrefix;
CalendarDate SlipKeyDay;

namespace {

/// The highest number of this run behind each beginning of a key. Two tables share the counter but
/// not their numbers, and a read for one of them may send the counter back.
std::map<std::string, double> HandedOut;

constexpr const char* kNumberMask = "0000";
constexpr double kLastOfFourDigits = 9999;
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

std::string HighestNumberStatement(const std::string& table, const std::string& key,
                                   const std::string& beginning) {
  return Splice(
      " SELECT MAX(CAST(SUBSTRING({key},CHAR_LENGTH('{beginning}')+1) AS UNSIGNED)) FROM {table} "
      "WHERE {key} LIKE '{beginning}%'",
      "beginning"_a = beginning, "table"_a = table, "key"_a = key);
}

/// The statements above see the last four digits only, so that behind 9999 they always say 10000.
/// 0 when the database cannot be read.
double BehindTheHighest(double number, const std::string& table, const std::string& key,
                        const std::string& beginning) {
  if (number <= kLastOfFourDigits) return number;
  const std::string highest = QueryText(HighestNumberStatement(table, key, beginning), "");
  return LastErrorText.empty() ? std::max(number, ParseNumber(highest) + 1) : 0;
}

std::string BeginningOf(const std::string& table) {
  return SlipKeyPrefix + Session.UserCode + RightChars(table, 2);
}

/// The workstation's day. Its midnight may come before the database's, which is then asked for each
/// key until it has followed.
CalendarDate DayOf(const std::string& prefix) {
  const CalendarDate yesterday = AddDays(Today(), -1);
  return LeftChars(prefix, 8) == FormatDateValue(yesterday, "YYYYMMDD") ? yesterday : Today();
}

bool CountsInMemory() {
  return SlipSeqCounter != 0 && (SlipKeyDay == CalendarDate() || SlipKeyDay == Today());
}

/// The number behind the last one in memory; 0 when 16 bits have no place for it.
double NextInMemory(const std::string& table) {
  const double next = std::max<double>(SlipSeqCounter, HandedOut[BeginningOf(table)]) + 1;
  return ToInt16(next, SlipSeqCounter) ? next : 0;
}

/// The number behind the highest stored one; 0 when the database cannot be read. One that the
/// counter has no place for leaves it at 0, and the database is asked for each key.
double NextInDatabase(const std::string& table) {
  SlipSeqCounter = 0;
  StringTable found;
  std::int32_t rows = 0;
  std::int32_t highestColumn = 0;
  QueryRows(SlipIdStatement(table), found, rows, highestColumn);
  if (rows == 0) return 0;
  SlipKeyPrefix = found.At(1, 0);
  SlipKeyDay = DayOf(SlipKeyPrefix);
  const double number =
      BehindTheHighest(ParseNumber(found.At(1, 1)), table, "PE_ID", BeginningOf(table));
  ToInt16(number, SlipSeqCounter);
  return number;
}

}  // namespace

std::string NextSlipId(const std::string& table) {
  double number = CountsInMemory() ? NextInMemory(table) : 0;
  if (number == 0) number = NextInDatabase(table);
  if (number == 0) return kNoKey;
  const std::string beginning = BeginningOf(table);
  double& highest = HandedOut[beginning];
  highest = std::max(highest, number);
  return beginning + FormatNumber(number, kNumberMask);
}

void ResetSlipKeys() {
  SlipSeqCounter = 0;
  SlipKeyPrefix.clear();
  SlipKeyDay = {};
  HandedOut.clear();
}

std::string NextStockCountId(int before) {
  StringTable found;
  std::int32_t rows = 0;
  std::int32_t highestColumn = 0;
  QueryRows(StockCountIdStatement(), found, rows, highestColumn);
  if (rows == 0) return kNoKey;
  const std::string beginning = found.At(1, 0) + Session.UserCode;
  const double number = BehindTheHighest(ParseNumber(found.At(1, 1)), "ME", "ME_ID", beginning);
  return number == 0 ? kNoKey : beginning + FormatNumber(number + before, kNumberMask);
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
