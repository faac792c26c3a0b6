#include "start/options.h"

#include <iostream>

#include "basics/log.h"
#include "forms/host.h"
#include "gateway/gateway.h"

namespace store {

void LoadOptions() {
  const std::string fault = OptionsFileFault();
  if (!fault.empty()) {
    std::clog << fault << "\n";
    WriteLog(LogWeight::Warning, "options file", fault);
  }
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
