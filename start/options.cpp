#include "start/options.h"

#include "basics/numbers.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "start/profile_file.h"

namespace store {
namespace {

std::string OptionsPath() { return Host.ProgramFolder + "/OPT.ini"; }

}  // namespace

std::string ReadOption(const std::string& section, const std::string& key) {
  return ReadProfileValue(OptionsPath(), section, key);
}

void WriteOption(const std::string& section, const std::string& key, const std::string& value) {
  if (!WriteProfileValue(OptionsPath(), section, key, value))
    Host.MsgBox("옵션정보 기록실패", box::Plain, "");
}

std::int16_t ReadNumberOption(const std::string& section, const std::string& key) {
  std::int16_t number = 0;
  ToInt16(ParseNumber(ReadOption(section, key)), number);
  return number;
}

void LoadOptions() {
  AppOptions.DataServer = ReadOption(kOptionSection, "데이터서버");
  AppOptions.BusinessServer = ReadOption(kOptionSection, "업무서버");
  AppOptions.CompanyId = ReadOption(kOptionSection, "회사아이디");
  AppOptions.BulkOrderPrice = ReadOption(kOptionSection, "일괄발주단가");
  AppOptions.OrderZeroPrice = ReadNumberOption(kOptionSection, "단가[0]발주");
  AppOptions.OrderInfoPartnersOnly = ReadNumberOption(kOptionSection, "발주정보거래처");
  AppOptions.SkipZeroReceipt = ReadNumberOption(kOptionSection, "입고량0제외");
  AppOptions.OrderType = ReadNumberOption(kOptionSection, "발주타입");
  AppOptions.ShowMidCategory = ReadNumberOption(kOptionSection, "타입A중분류표기");
  AppOptions.DbUser = "kt";
  BuildConnectString(AppOptions.DataServer, AppOptions.DbUser, AppOptions.CompanyId);
  Host.SetPointer(PointerNormal);
}

}  // namespace store
