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
  AppOptions.DataServer = ReadOption(kOptionSection, option::DataServer);
  AppOptions.BusinessServer = ReadOption(kOptionSection, option::BusinessServer);
  AppOptions.CompanyId = ReadOption(kOptionSection, option::CompanyId);
  AppOptions.BulkOrderPrice = ReadOption(kOptionSection, option::BulkOrderPrice);
  AppOptions.OrderZeroPrice = ReadNumberOption(kOptionSection, option::OrderZeroPrice);
  AppOptions.OrderInfoPartnersOnly =
      ReadNumberOption(kOptionSection, option::OrderInfoPartnersOnly);
  AppOptions.SkipZeroReceipt = ReadNumberOption(kOptionSection, option::SkipZeroReceipt);
  AppOptions.OrderType = ReadNumberOption(kOptionSection, option::OrderType);
  AppOptions.ShowMidCategory = ReadNumberOption(kOptionSection, option::ShowMidCategory);
  AppOptions.DbUser = "kt";
  BuildConnectString(AppOptions.DataServer, AppOptions.DbUser, AppOptions.CompanyId);
  Host.SetPointer(PointerNormal);
}

}  // namespace store
