#include "ui/support_archive.h"

#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <memory>

namespace store {
namespace {

using Archive = std::unique_ptr<archive, decltype(&archive_write_free)>;

bool Add(archive* to, const ArchivedFile& file) {
  const std::unique_ptr<archive_entry, decltype(&archive_entry_free)> entry(archive_entry_new(),
                                                                            archive_entry_free);
  archive_entry_set_pathname(entry.get(), file.Name.c_str());
  archive_entry_set_size(entry.get(), static_cast<la_int64_t>(file.Bytes.size()));
  archive_entry_set_filetype(entry.get(), AE_IFREG);
  archive_entry_set_perm(entry.get(), 0600);
  archive_entry_set_mtime(entry.get(), std::time(nullptr), 0);
  return archive_write_header(to, entry.get()) == ARCHIVE_OK &&
         archive_write_data(to, file.Bytes.data(), file.Bytes.size()) ==
             static_cast<la_ssize_t>(file.Bytes.size());
}

bool AddAll(archive* to, const std::vector<ArchivedFile>& files, int handle) {
  if (archive_write_set_format_zip(to) != ARCHIVE_OK) return false;
  if (archive_write_open_fd(to, handle) != ARCHIVE_OK) return false;
  for (const ArchivedFile& file : files) {
    if (!Add(to, file)) return false;
  }
  return archive_write_close(to) == ARCHIVE_OK;
}

}  // namespace

std::string WriteArchive(const std::string& path, const std::vector<ArchivedFile>& files) {
  const int handle = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (handle < 0) return std::strerror(errno);
  const Archive zip(archive_write_new(), archive_write_free);
  std::string refusal;
  if (!AddAll(zip.get(), files, handle)) {
    const char* words = archive_error_string(zip.get());
    refusal = words == nullptr ? std::strerror(EIO) : words;
  }
  if (close(handle) != 0 && refusal.empty()) refusal = std::strerror(errno);
  if (!refusal.empty()) unlink(path.c_str());
  return refusal;
}

std::string ArchiveLibraryVersion() {
  const std::string named = archive_version_string();  // "libarchive 3.6.2"
  return named.substr(named.find(' ') + 1);
}

}  // namespace store
