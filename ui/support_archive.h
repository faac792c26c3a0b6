#pragma once

#include <string>
#include <vector>

namespace store {

/// A file for an archive: its name there, ASCII, and what it holds.
struct ArchivedFile {
  std::string Name;
  std::string Bytes;
};

/// Writes the files into one ZIP file, which only its owner may read. Empty when it stands, else
/// what the library or the platform says; then nothing is left in its place.
std::string WriteArchive(const std::string& path, const std::vector<ArchivedFile>& files);

/// The version of the library that does.
std::string ArchiveLibraryVersion();

}  // namespace store
