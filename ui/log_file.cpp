#include "ui/log_file.h"

#include <cxxabi.h>
#include <spdlog/logger.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/version.h>
#include <sys/stat.h>

#include <cstdlib>
#include <exception>
#include <memory>
#include <system_error>
#include <typeinfo>

#include "basics/deployment.h"
#include "basics/log.h"

namespace store {
namespace {

constexpr const char* kFileName = "store-client.log";
constexpr std::size_t kFullAt = std::size_t{2} << 20;
constexpr std::size_t kOlderFiles = 4;
// Which process, because two of them may have been started from two program files.
constexpr const char* kPattern = "%Y-%m-%d %H:%M:%S.%e %P %l %v";

std::shared_ptr<spdlog::logger> File;

spdlog::level::level_enum LevelOf(LogWeight weight) {
  switch (weight) {
    case LogWeight::Warning:
      return spdlog::level::warn;
    case LogWeight::Failure:
      return spdlog::level::err;
    default:
      return spdlog::level::info;
  }
}

/// A folder for its owner's eyes, in which nothing but a file stands in the log's place: opening a
/// pipe would wait for its other end.
bool IsUsable(const std::filesystem::path& folder) {
  std::error_code failed;
  std::filesystem::create_directories(folder, failed);
  if (chmod(folder.c_str(), 0700) != 0) return false;
  const auto state = std::filesystem::status(folder / kFileName, failed);
  return !std::filesystem::exists(state) || std::filesystem::is_regular_file(state);
}

std::string NameOfCurrentException() {
  const std::type_info* type = abi::__cxa_current_exception_type();
  if (type == nullptr) return "no exception";
  int failed = 0;
  const std::unique_ptr<char, void (*)(void*)> name(
      abi::__cxa_demangle(type->name(), nullptr, nullptr, &failed), std::free);
  return failed == 0 ? name.get() : type->name();
}

std::string WordsOfCurrentException() {
  try {
    if (std::current_exception()) std::rethrow_exception(std::current_exception());
  } catch (const std::exception& fault) {
    return std::string(": ") + fault.what();
  } catch (...) {  // NOLINT(bugprone-empty-catch): one without words
  }
  return {};
}

[[noreturn]] void TellFaultAndEnd() {
  WriteLog(LogWeight::Failure, "program ends",
           "nobody took " + NameOfCurrentException() + WordsOfCurrentException());
  std::abort();
}

}  // namespace

std::filesystem::path LogFolder() {
  const std::string data = DataFolder();
  return data.empty() ? std::filesystem::path() : std::filesystem::path(data) / "log";
}

std::string WithoutHome(std::string text) {
  const char* home = std::getenv("HOME");
  const std::string folder = home == nullptr ? "" : home;
  if (folder.size() < 2) return text;
  for (std::size_t at = text.find(folder); at != std::string::npos;
       at = text.find(folder, at + 1)) {
    text.replace(at, folder.size(), "~");
  }
  return text;
}

void OpenLogFile() {
  const std::filesystem::path folder = LogFolder();
  if (folder.empty() || !IsUsable(folder)) return;
  try {
    File = std::make_shared<spdlog::logger>(
        "store", std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
                     (folder / kFileName).string(), kFullAt, kOlderFiles));
  } catch (const spdlog::spdlog_ex&) {
    return;
  }
  File->set_pattern(kPattern);
  File->flush_on(spdlog::level::trace);
  // By default it would write to the standard error, each time, that the disk is full.
  File->set_error_handler([](const std::string&) {});
  Log.Write = [](LogWeight weight, const std::string& record) {
    File->log(LevelOf(weight), WithoutHome(record));
  };
  std::set_terminate(TellFaultAndEnd);
}

void CloseLogFile() {
  Log.Write = nullptr;
  File.reset();
}

std::string LogLibraryVersion() {
  return std::to_string(SPDLOG_VER_MAJOR) + "." + std::to_string(SPDLOG_VER_MINOR) + "." +
         std::to_string(SPDLOG_VER_PATCH);
}

}  // namespace store
