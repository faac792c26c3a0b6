#include "forms/options_file.h"

#include "basics/numbers.h"
#include "basics/profile_file.h"
#include "forms/host.h"

namespace store {
namespace {

std::string OptionsPath() { return Host.ProgramFolder + "/OPT.ini"; }

}  // namespace

std::string OptionsFileFault() {
  const std::string fault = ProfileFault(OptionsPath());
  return fault.empty() ? std::string() : OptionsPath() + ": " + fault;
}

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

}  // namespace store
