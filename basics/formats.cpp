#include "basics/formats.h"

#include "basics/records.h"

namespace store {

std::string FormatInteger;
std::string FormatPlain;
std::string FormatQty;
std::string FormatPrice;
std::string FormatAmount;
std::string FormatRate;
std::string FormatMonth;
std::string FormatDate;
std::string FormatMinute;
std::string FormatSecond;
std::string FormatStamp;

void FormatSetup() {
  FormatInteger = "###,##0";
  FormatPlain = "######.####";
  FormatQty = BuildNumberFormat(BaseSettings.QtyDecimals);
  FormatPrice = BuildNumberFormat(BaseSettings.PriceDecimals);
  FormatAmount = BuildNumberFormat(BaseSettings.AmountDecimals);
  FormatRate = BuildNumberFormat(BaseSettings.RateDecimals);
  FormatMonth = "YYYY-MM";
  FormatDate = "YYYY-MM-DD";
  FormatMinute = "YYYY-MM-DD HH:NN";
  FormatSecond = "YYYY-MM-DD HH:NN:SS";
  FormatStamp = "YYYYMMDDHHNNSS";
}

std::string BuildNumberFormat(int decimals) {
  if (decimals < 1) return "###,##0";
  return "###,###." + std::string(static_cast<size_t>(decimals) - 1, '#') + "0";
}

void ResetFormats() {
  for (std::string* format :
       {&FormatInteger, &FormatPlain, &FormatQty, &FormatPrice, &FormatAmount, &FormatRate,
        &FormatMonth, &FormatDate, &FormatMinute, &FormatSecond, &FormatStamp})
    format->clear();
}

}  // namespace store
