#pragma once

#include <cstdint>
#include <string>

namespace store {

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

}  // namespace store
