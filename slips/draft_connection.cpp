#include "slips/draft_connection.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "forms/host.h"

namespace store {
namespace {

constexpr int kVersion = 1;
constexpr int kBusyWait = 2000;  // milliseconds for another process's work on the file
constexpr int kLockPause = 20;   // milliseconds between two tries

constexpr const char* kSchema =
    "CREATE TABLE draft (id TEXT PRIMARY KEY, owner TEXT NOT NULL, form TEXT, slip_id TEXT,"
    " slip_table TEXT, no_price INTEGER, stamp TEXT, tried_id TEXT, partner_code TEXT,"
    " partner_name TEXT, date TEXT, depot TEXT, changed_at TEXT);"
    "CREATE TABLE line (draft TEXT REFERENCES draft (id) ON DELETE CASCADE, number INTEGER,"
    " code TEXT, name TEXT, quantity TEXT, from_slip INTEGER, PRIMARY KEY (draft, number))"
    " WITHOUT ROWID;"
    "PRAGMA user_version = 1;";

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

bool Run(sqlite3* file, const char* text) {
  return sqlite3_exec(file, text, nullptr, nullptr, nullptr) == SQLITE_OK;
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

State StateOf(sqlite3* file) {
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
  if (!version.Is(std::to_string(kVersion))) return State::Newer;
  return tables.Is("2") ? State::Usable : State::Damaged;
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

bool MakeTables(sqlite3* file) {
  return Run(file, "BEGIN IMMEDIATE") && Run(file, kSchema) && Run(file, "COMMIT");
}

/// Opened and made ready, or nothing; `state` says in which state the file was found.
sqlite3* OpenUsable(const std::filesystem::path& path, State& state) {
  sqlite3* file = Connect(path.c_str());
  state = file == nullptr ? State::OutOfReach : StateOf(file);
  const bool usable = state == State::Usable || (state == State::New && MakeTables(file));
  // Every write reaches the disk before the next begins, and keeps no reader waiting.
  if (usable &&
      Run(file, "PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON")) {
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

std::string AsideNotice(State state, const std::filesystem::path& aside) {
  const std::string why =
      state == State::Newer
          ? "쓰던 전표를 담은 파일이 더 새로운 프로그램의 것이라 읽을 수 없습니다."
          : "쓰던 전표를 담은 파일이 손상되어 읽을 수 없습니다.";
  return why + "\r\r파일은 지우지 않고 다음 이름으로 옮겨 두었습니다.\r" + aside.string();
}

}  // namespace

sqlite3* OpenDraftFile(const std::filesystem::path& path, std::string& notice) {
  if (!MakeFolder(path.parent_path())) return nullptr;
  const OpeningLock lock(path);
  if (!lock.Holds() || !MakeOwnersAlone(path)) return nullptr;
  State state = State::Damaged;
  sqlite3* file = OpenUsable(path, state);
  if (file != nullptr || (state != State::Damaged && state != State::Newer)) return file;
  const auto aside = AsideName(path, state == State::Newer ? "newer" : "damaged");
  if (!SetAside(path, aside)) return nullptr;
  notice = AsideNotice(state, aside);
  return MakeOwnersAlone(path) ? OpenUsable(path, state) : nullptr;
}

sqlite3* OpenBeside(sqlite3* file) {
  sqlite3* beside = Connect(sqlite3_db_filename(file, nullptr));
  if (beside != nullptr) Run(beside, "PRAGMA synchronous=NORMAL; PRAGMA wal_autocheckpoint=0");
  return beside;
}

}  // namespace store
