#include "forms/options_file.h"

#include "basics/log.h"
#include "basics/numbers.h"
#include "basics/profile_file.h"
#include "forms/host.h"
#include "forms/program_places.h"

namespace store {

std::string OptionsFileFault() {
  const std::string path = OptionsFileInUse();
  const std::string fault = ProfileFault(path);
  return fault.empty() ? std::string() : path + ": " + fault;
}

std::string ReadOption(const std::string& section, const std::string& key) {
  return ReadProfileValue(OptionsFileInUse(), section, key);
}

void WriteOption(const std::string& section, const std::string& key, const std::string& value) {
  const std::string path = OptionsFileToWrite();
  if (!path.empty() && WriteProfileValue(path, section, key, value)) return;
  WriteLog(LogWeight::Failure, "options file", key + " could not be written");
  Host.MsgBox("옵션정보 기록실패", box::Plain, "");
}

std::int16_t OptionNumber(const std::string& value) {
  std::int16_t number = 0;
  ToInt16(ParseNumber(value), number);
  return number;
}

}  // namespace store
