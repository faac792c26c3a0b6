#pragma once

#include <string>

#include "basics/records.h"

namespace store {

/// The workstation's options: file "OPT.ini" in `Host.ProgramFolder`, a private profile in code
/// page 949 (see session/profile_file.h).

/// The one section of the options file.
inline constexpr const char* kOptionSection = "TARNWICK";

/// The keys of the options, each named here only.
namespace option {
inline constexpr const char* DataServer = "데이터서버";
inline constexpr const char* BusinessServer = "업무서버";
inline constexpr const char* BusinessObject = "업무개체";
inline constexpr const char* CompanyId = "회사아이디";
inline constexpr const char* BulkOrderPrice = "일괄발주단가";
inline constexpr const char* OrderZeroPrice = "단가[0]발주";
inline constexpr const char* OrderInfoPartnersOnly = "발주정보거래처";
inline constexpr const char* SkipZeroReceipt = "입고량0제외";
inline constexpr const char* ShowMidCategory = "타입A중분류표기";
inline constexpr const char* OrderType = "발주타입";
}  // namespace option

/// The value of a key, at most 254 bytes of code page 949; empty when the key is absent.
std::string ReadOption(const std::string& section, const std::string& key);

/// Writes one key. A failure is told to the user in a box; the caller goes on with the next key.
void WriteOption(const std::string& section, const std::string& key, const std::string& value);

/// A number option: the leading numeric part, rounded half to even; 0 when absent or not a number.
std::int16_t ReadNumberOption(const std::string& section, const std::string& key);

/// Fills `AppOptions` from the file and composes `ConnectString` from it. Once a run, before
/// anything else goes to the network.
void LoadOptions();

}  // namespace store
