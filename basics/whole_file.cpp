#include "basics/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <utility>

namespace store {
namespace {

// An open file that closes itself.
class File {
 public:
  File(const std::string& path, int flags)
      : handle_(::open(path.c_str(), flags | O_CLOEXEC, 0644)) {}
  ~File() { Close(); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  bool IsOpen() const { return handle_ >= 0; }
  int Handle() const { return handle_; }

  /// One byte more than `most` shows that there are too many.
  bool ReadUpTo(size_t most, std::string& bytes) const {
    char buffer[4096];
    ssize_t got = 0;
    while (bytes.size() <= most && (got = ::read(handle_, buffer, sizeof buffer)) > 0)
      bytes.append(buffer, static_cast<size_t>(got));
    return got >= 0;
  }

  bool IsRegular() const {
    struct stat state {};
    return ::fstat(handle_, &state) == 0 && S_ISREG(state.st_mode);
  }

  bool WriteAll(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t put = ::write(handle_, bytes.data(), bytes.size());
      if (put < 0) return false;
      bytes.remove_prefix(static_cast<size_t>(put));
    }
    return ::fsync(handle_) == 0;
  }

  bool Close() {
    const int handle = std::exchange(handle_, -1);
    return handle < 0 || ::close(handle) == 0;
  }

 private:
  int handle_;
};

void SyncFolderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  const File handle(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
  if (handle.IsOpen()) ::fsync(handle.Handle());
}

bool WriteFresh(const std::string& fresh, const std::string& path, const std::string& bytes) {
  ::unlink(fresh.c_str());
  File file(fresh, O_WRONLY | O_CREAT | O_EXCL);
  if (!file.IsOpen()) return false;
  struct stat old {};
  const bool sameRights =
      ::stat(path.c_str(), &old) != 0 || ::fchmod(file.Handle(), old.st_mode) == 0;
  return sameRights && file.WriteAll(bytes) && file.Close();
}

}  // namespace

std::string ReadWholeFile(const std::string& path, std::size_t most, std::string& bytes) {
  const File file(path, O_RDONLY | O_NONBLOCK);
  if (!file.IsOpen()) return errno == ENOENT ? std::string() : std::strerror(errno);
  if (!file.IsRegular()) return "보통 파일이 아닙니다.";
  if (!file.ReadUpTo(most, bytes)) return std::strerror(errno);
  return bytes.size() > most ? "파일이 너무 큽니다." : std::string();
}

std::string ReplaceFile(const std::string& path, const std::string& bytes) {
  const std::string fresh = path + ".new";
  if (!WriteFresh(fresh, path, bytes) || std::rename(fresh.c_str(), path.c_str()) != 0) {
    std::string refusal = std::strerror(errno);
    ::unlink(fresh.c_str());
    return refusal;
  }
  SyncFolderOf(path);
  return {};
}

}  // namespace store
