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

std::int16_t OptionNumber(const std::string& value) {
  std::int16_t number = 0;
  ToInt16(ParseNumber(value), number);
  return number;
}

void LoadOptions() {
  for (const Option& option : kOptions) {
    const std::string value = ReadOption(kOptionSection, option.Key);
    if (option.Text != nullptr) AppOptions.*option.Text = value;
    if (option.Number != nullptr) AppOptions.*option.Number = OptionNumber(value);
  }
  AppOptions.DbUser = "kt";
  BuildConnectString(AppOptions.DataServer, AppOptions.DbUser, AppOptions.CompanyId);
  Host.SetPointer(PointerNormal);
}

}  // namespace store
