#pragma once

#include <array>
#include <string>

#include "basics/records.h"
#include "forms/options_file.h"

namespace store {

/// A key of the options file and the field of `AppOptions` that its value goes to at the start.
struct Option {
  const char* Key;
  std::string AppOptionsRecord::*Text = nullptr;
  std::int16_t AppOptionsRecord::*Number = nullptr;
};

/// Every option, in the order in which the settings window writes them. The object's name goes
/// nowhere: only that window uses it.
inline constexpr std::array kOptions = {
    Option{.Key = "데이터서버", .Text = &AppOptionsRecord::DataServer},
    Option{.Key = "업무서버", .Text = &AppOptionsRecord::BusinessServer},
    Option{.Key = "업무개체"},
    Option{.Key = "회사아이디", .Text = &AppOptionsRecord::CompanyId},
    Option{.Key = "일괄발주단가", .Text = &AppOptionsRecord::BulkOrderPrice},
    Option{.Key = "단가[0]발주", .Number = &AppOptionsRecord::OrderZeroPrice},
    Option{.Key = "발주정보거래처", .Number = &AppOptionsRecord::OrderInfoPartnersOnly},
    Option{.Key = "입고량0제외", .Number = &AppOptionsRecord::SkipZeroReceipt},
    Option{.Key = "타입A중분류표기", .Number = &AppOptionsRecord::ShowMidCategory},
    Option{.Key = kOrderTypeKey, .Number = &AppOptionsRecord::OrderType},
};

/// Fills `AppOptions` from the file and composes `ConnectString` from it. Once a run, before
/// anything else goes to the network.
void LoadOptions();

}  // namespace store
