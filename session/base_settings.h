#pragma once

#include <cstdint>
#include <string>

namespace store {

/// The customer's settings, from table BAS. Everything stays 0 or empty when no row came back.
struct BaseSettingsRecord {
  std::int16_t QtyDecimals = 0;     ///< Z401 BAS_OP3
  std::int16_t QtyRounding = 0;     ///< Z401 BAS_OP4: 1 up on the first digit, 3 half up, else cut.
  std::int16_t PriceDecimals = 0;   ///< Z402 BAS_OP3
  std::int16_t PriceRounding = 0;   ///< Z402 BAS_OP4
  std::int16_t AmountDecimals = 0;  ///< Z403 BAS_OP3
  std::int16_t AmountRounding = 0;  ///< Z403 BAS_OP4
  std::int16_t RateDecimals = 0;    ///< Z404 BAS_OP3
  std::int16_t RateRounding = 0;    ///< Z404 BAS_OP4
  std::int16_t MaxSlipLines = 0;    ///< ZA05 BAS_OP1, at least 100 where the row exists.
  std::string VatPercent;           ///< Z103 BAS_OP2
  std::string VatRounding;          ///< Z103 BAS_OP4: "0" cuts the tax, anything else rounds it.
  std::int16_t CodeLengthA = 0;     ///< ZY01 BAS_OP2
  std::string ProductCodeMode;      ///< ZY02 BAS_OP1
  std::int16_t ProductCodeLength = 0;  ///< ZY02 BAS_OP2

  std::string QtyKind = "수량";  ///< The three kind words that `RoundText` knows.
  std::string PriceKind = "단가";
  std::string AmountKind = "금액";
};

inline BaseSettingsRecord BaseSettings;

}  // namespace store
