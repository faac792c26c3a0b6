#pragma once

#include <filesystem>
#include <string>

namespace store {

/// The log's folder, "log" of the user's data folder (basics/deployment.h); empty where there is
/// none.
std::filesystem::path LogFolder();

/// Sends the records of `Log` to "store-client.log" in that folder, and from then on the end by an
/// exception that nobody took as well. Each record reaches the system at once, so that a crash
/// leaves it there. Full at 2 MiB, the file is put behind four older ones. Where no file can be
/// written, all goes on without.
void OpenLogFile();

/// Ends that. Records then go nowhere.
void CloseLogFile();

/// The text without the name of the person's home folder, which often is the person's: a path in it
/// begins with "~".
std::string WithoutHome(std::string text);

/// The version of the library that writes the file.
std::string LogLibraryVersion();

}  // namespace store
