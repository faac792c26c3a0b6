#include "slips/user_file.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "basics/deployment.h"
#include "basics/log.h"
#include "basics/records.h"
#include "forms/host.h"

namespace store {
namespace {

constexpr int kBusyWait = 2000;  // milliseconds for another process's work on the file
constexpr int kLockPause = 20;   // milliseconds between two tries

/// Keeps other processes out while the file is made, looked through or set aside.
class OpeningLock {
 public:
  explicit OpeningLock(const std::filesystem::path& path)
      : file_(open((path.string() + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    for (int waited = 0; file_ >= 0 && !(holds_ = TryLock()) && waited < kBusyWait;
         waited += kLockPause) {
      std::this_thread::sleep_for(std::chrono::milliseconds(kLockPause));
    }
  }
  ~OpeningLock() {
    if (file_ >= 0) close(file_);
  }
  OpeningLock(const OpeningLock&) = delete;
  OpeningLock& operator=(const OpeningLock&) = delete;
  /// False when another process keeps it longer than anybody would wait.
  bool Holds() const { return holds_; }

 private:
  bool TryLock() const { return flock(file_, LOCK_EX | LOCK_NB) == 0; }

  int file_;
  bool holds_ = false;
};

bool MakeFolder(const std::filesystem::path& folder) {
  std::error_code failed;
  std::filesystem::create_directories(folder, failed);
  return chmod(folder.c_str(), 0700) == 0;
}

/// The owner's alone, whether it is new or was copied here with other rights.
bool MakeOwnersAlone(const std::filesystem::path& path) {
  const int made = open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (made >= 0) close(made);
  return chmod(path.c_str(), 0600) == 0;
}

/// The first cell that a statement gives, and how that ended: SQLITE_ROW when there was one.
struct Cell {
  Cell(sqlite3* file, const char* text) {
    sqlite3_stmt* statement = nullptr;
    Code = sqlite3_prepare_v2(file, text, -1, &statement, nullptr);
    if (Code == SQLITE_OK) Code = sqlite3_step(statement);
    if (Code == SQLITE_ROW) {
      Text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    }
    sqlite3_finalize(statement);
  }
  bool Is(const std::string& text) const { return Code == SQLITE_ROW && Text == text; }
  bool Damaged() const { return Code == SQLITE_CORRUPT || Code == SQLITE_NOTADB; }

  int Code;
  std::string Text;
};

enum class State { Usable, New, Newer, Damaged, OutOfReach };

State StateOf(sqlite3* file, const UserFileKind& kind) {
  const Cell version(file, "PRAGMA user_version");
  const Cell check(file, "PRAGMA quick_check(1)");
  const Cell tables(file, "SELECT COUNT(*) FROM sqlite_master WHERE type='table'");
  for (const Cell& cell : {version, check, tables}) {
    if (cell.Damaged()) return State::Damaged;
  }
  // Busy, or without rights: no reason to throw anything out of the way.
  for (const Cell& cell : {version, check, tables}) {
    if (cell.Code != SQLITE_ROW) return State::OutOfReach;
  }
  if (!check.Is("ok")) return State::Damaged;
  if (version.Is("0")) return tables.Is("0") ? State::New : State::Damaged;
  if (!version.Is(std::to_string(kind.Version))) return State::Newer;
  return tables.Is(std::to_string(kind.Tables)) ? State::Usable : State::Damaged;
}

/// A connection, or nothing.
sqlite3* Connect(const char* path) {
  sqlite3* file = nullptr;
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
  if (sqlite3_open_v2(path, &file, flags, nullptr) == SQLITE_OK) {
    sqlite3_busy_timeout(file, kBusyWait);
    return file;
  }
  sqlite3_close(file);
  return nullptr;
}

bool MakeTables(sqlite3* file, const UserFileKind& kind) {
  return RunInFile(file, "BEGIN IMMEDIATE") && RunInFile(file, kind.Schema) &&
         RunInFile(file, "COMMIT");
}

/// Opened and made ready, or nothing; `state` says in which state the file was found.
sqlite3* OpenUsable(const std::filesystem::path& path, const UserFileKind& kind, State& state) {
  sqlite3* file = Connect(path.c_str());
  state = file == nullptr ? State::OutOfReach : StateOf(file, kind);
  const bool usable = state == State::Usable || (state == State::New && MakeTables(file, kind));
  // Every write reaches the disk before the next begins, and keeps no reader waiting.
  if (usable &&
      RunInFile(file, "PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON")) {
    return file;
  }
  sqlite3_close(file);
  return nullptr;
}

/// A free name beside the file that says why it was set aside.
std::filesystem::path AsideName(const std::filesystem::path& path, const std::string& why) {
  const std::string stem =
      path.string() + "." + why + "-" + FormatDateValue(Host.Now(), "YYYYMMDD-HHNNSS");
  std::string name = stem;
  std::error_code failed;
  for (int next = 2; std::filesystem::exists(name, failed); ++next) {
    name = stem + "-" + std::to_string(next);
  }
  return name;
}

bool SetAside(const std::filesystem::path& path, const std::filesystem::path& aside) {
  std::error_code failed;
  std::filesystem::rename(path, aside, failed);
  const bool done = !failed;
  // What belongs to the file goes with it: the new one must not take it for its own.
  for (const char* part : {"-wal", "-shm"}) {
    std::filesystem::rename(path.string() + part, aside.string() + part, failed);
  }
  return done;
}

std::string AsideNotice(State state, const char* holds, const std::filesystem::path& aside) {
  const std::string file = std::string(holds) + "를 담은 파일이 ";
  const std::string why = state == State::Newer ? "더 새로운 프로그램의 것이라 읽을 수 없습니다."
                                                : "손상되어 읽을 수 없습니다.";
  return file + why + "\r\r파일은 지우지 않고 다음 이름으로 옮겨 두었습니다.\r" + aside.string();
}

/// A text as part of a file's name; two texts never give the same.
std::string FileName(const std::string& text) {
  static constexpr const char* kDigits = "0123456789abcdef";
  std::string name;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    if ((byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
        (byte >= 'a' && byte <= 'z')) {
      name += letter;
    } else {
      name.append({'%', kDigits[byte >> 4], kDigits[byte & 15]});
    }
  }
  return name;
}

}  // namespace

std::filesystem::path UserFilePath(const char* folder) {
  const std::string data = DataFolder();
  if (data.empty() || Session.UserCode.empty() || Session.StoreCode.empty()) return {};
  return std::filesystem::path(data) / folder /
         (FileName(Session.DatabaseName) + "-" + FileName(Session.StoreCode) + "-" +
          FileName(Session.UserCode) + ".db");
}

bool RunInFile(sqlite3* file, const char* statements) {
  return sqlite3_exec(file, statements, nullptr, nullptr, nullptr) == SQLITE_OK;
}

sqlite3* OpenUserFile(const std::filesystem::path& path, const UserFileKind& kind,
                      std::string& notice) {
  if (!MakeFolder(path.parent_path())) return nullptr;
  const OpeningLock lock(path);
  if (!lock.Holds() || !MakeOwnersAlone(path)) return nullptr;
  State state = State::Damaged;
  sqlite3* file = OpenUsable(path, kind, state);
  if (file != nullptr || (state != State::Damaged && state != State::Newer)) return file;
  const auto aside = AsideName(path, state == State::Newer ? "newer" : "damaged");
  WriteLog(LogWeight::Warning, "user's file", "set aside as " + aside.filename().string());
  if (!SetAside(path, aside)) return nullptr;
  notice = AsideNotice(state, kind.Holds, aside);
  return MakeOwnersAlone(path) ? OpenUsable(path, kind, state) : nullptr;
}

sqlite3* OpenBeside(sqlite3* file) {
  sqlite3* beside = Connect(sqlite3_db_filename(file, nullptr));
  if (beside != nullptr) {
    RunInFile(beside, "PRAGMA synchronous=NORMAL; PRAGMA wal_autocheckpoint=0");
  }
  return beside;
}

FileUse::~FileUse() {
  sqlite3_reset(statement_);
  sqlite3_clear_bindings(statement_);
}

FileUse& FileUse::Put(const std::string& text) {
  sqlite3_bind_text(statement_, ++values_, text.data(), static_cast<int>(text.size()),
                    SQLITE_STATIC);
  return *this;
}

FileUse& FileUse::Put(int number) {
  sqlite3_bind_int(statement_, ++values_, number);
  return *this;
}

FileUse& FileUse::PutNull() {
  sqlite3_bind_null(statement_, ++values_);
  return *this;
}

bool FileUse::Done() { return sqlite3_step(statement_) == SQLITE_DONE; }

bool FileUse::Next() { return sqlite3_step(statement_) == SQLITE_ROW; }

std::string FileUse::TextAt(int column) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
  if (text == nullptr) return {};
  return {text, static_cast<size_t>(sqlite3_column_bytes(statement_, column))};
}

int FileUse::NumberAt(int column) const { return sqlite3_column_int(statement_, column); }

bool FileUse::IsNullAt(int column) const {
  return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

PreparedFile::PreparedFile(sqlite3* file, std::span<const char* const> texts) : file_(file) {
  for (const char* text : texts) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(file_, text, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK) {
      return;
    }
    statements_.push_back(statement);
  }
  ready_ = true;
}

PreparedFile::~PreparedFile() {
  for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
  sqlite3_close(file_);
}

}  // namespace store
