#pragma once

#include <cstdint>
#include <string>

namespace store {

/// The plain records of a run: who works, how the workstation is set up, what the customer has
/// chosen. Everybody reads them; who fills one stands beside it.

/// Who is working, and for which store. The user fields are filled at login from a row of ST, the
/// store and depot fields behind the splash from RCT, RCTI and HCT. Nothing clears them in a run.
struct SessionRecord {
  std::string UserCode;       ///< ST_CODE; stamped on every slip and part of its key.
  std::string UserPassword;   ///< ST_PWD, as stored.
  std::string UserName;       ///< ST_NAME
  std::string UserStoreCode;  ///< RCT_CODE of the user's row; key of the store load.
  std::string UserLevel;      ///< ST_ASPLVL
  std::string DatabaseName;   ///< The company id, as the connection string names it.

  std::string StoreCode;      ///< RCT_CODE
  std::string StoreName;      ///< RCT_NAME
  std::string StoreNo;        ///< RCT_NO, the business registration number.
  std::string StorePhone;     ///< RCTI_CPHONE
  std::string StoreBlank;     ///< A fifth text of the store load, always one blank.
  std::string StoreAddress1;  ///< RCT_SADDR1
  std::string StoreAddress2;  ///< RCT_SADDR2
  std::string StoreKind;      ///< RCT_GUBUN
  std::string DepotCode;      ///< HCT_CODE of the store's default depot.
  std::string DepotName;      ///< HCT_NAME of it.
};

inline SessionRecord Session;

/// The workstation's options, read once at start from the options file.
struct AppOptionsRecord {
  std::string DataServer;      ///< "데이터서버": SERVER of the connection string.
  std::string BusinessServer;  ///< "업무서버": host of the data service; empty for none between.
  std::string CompanyId;       ///< "회사아이디": DATABASE of the connection string.
  std::string DbUser;          ///< Always "kt".
  std::string BulkOrderPrice;  ///< "일괄발주단가": price policy, "0" to "5"; empty if never saved.
  std::int16_t OrderZeroPrice = 0;         ///< "단가[0]발주": 1 allows lines of price 0.
  std::int16_t OrderInfoPartnersOnly = 0;  ///< "발주정보거래처": 1 limits to the SAFEIV settings.
  std::int16_t SkipZeroReceipt = 0;  ///< "입고량0제외": 1 leaves lines of quantity 0 out.
  std::int16_t OrderType = 0;        ///< "발주타입": which order form, 0 to 3.
  std::int16_t ShowMidCategory = 0;  ///< "타입A중분류표기": 1 shows the middle category.
};

inline AppOptionsRecord AppOptions;

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

/// All three as at the start of a run.
void ResetRecords();

}  // namespace store
