#include "forms/program_places.h"

#include <filesystem>

#include "forms/host.h"

namespace store {
namespace {

std::string BesideProgram() { return Host.ProgramFolder + "/OPT.ini"; }

/// Also what is there and cannot be read, which is then named to whoever looks for it.
bool IsThere(const std::string& path) {
  std::error_code failed;
  return !path.empty() && std::filesystem::exists(std::filesystem::symlink_status(path, failed));
}

}  // namespace

std::string OptionsFileInUse() {
  for (const std::string& path : {Places.OwnOptions, Places.MachineOptions}) {
    if (IsThere(path)) return path;
  }
  return BesideProgram();
}

std::string OptionsFileToWrite() {
  if (Places.OwnOptions.empty()) return BesideProgram();
  if (IsThere(Places.OwnOptions)) return Places.OwnOptions;
  std::error_code failed;
  std::filesystem::create_directories(std::filesystem::path(Places.OwnOptions).parent_path(),
                                      failed);
  if (!failed && IsThere(Places.MachineOptions)) {
    std::filesystem::copy_file(Places.MachineOptions, Places.OwnOptions, failed);
  }
  return failed ? std::string() : Places.OwnOptions;
}

std::string WorkFolder() {
  return Places.WorkFolder.empty() ? Host.ProgramFolder : Places.WorkFolder;
}

}  // namespace store
