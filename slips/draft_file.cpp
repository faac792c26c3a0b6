#include "slips/draft_file.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <utility>

#include "forms/host.h"

namespace store {
namespace {

constexpr int kVersion = 1;
constexpr int kBusyWait = 2000;  // milliseconds for another process's write

constexpr const char* kSchema =
    "CREATE TABLE draft (id TEXT PRIMARY KEY, owner TEXT NOT NULL, form TEXT, slip_id TEXT,"
    " slip_table TEXT, no_price INTEGER, stamp TEXT, tried_id TEXT, partner_code TEXT,"
    " partner_name TEXT, date TEXT, depot TEXT, changed_at TEXT);"
    "CREATE TABLE line (draft TEXT REFERENCES draft (id) ON DELETE CASCADE, number INTEGER,"
    " code TEXT, name TEXT, quantity TEXT, from_slip INTEGER, PRIMARY KEY (draft, number))"
    " WITHOUT ROWID;"
    "PRAGMA user_version = 1;";

/// The statements of a file, in the order of `kTexts`.
enum Text { kPutDraft, kPutLine, kCutLines, kPutAside, kRemove, kReadDrafts, kReadLines, kTake };
constexpr std::array<const char*, 8> kTexts = {
    "INSERT INTO draft (id,owner,form,slip_id,slip_table,no_price,stamp,tried_id,partner_code,"
    "partner_name,date,depot,changed_at) VALUES (?1,?2,?3,?4,?5,?6,?7,?8,?9,?10,?11,?12,?13)"
    " ON CONFLICT (id) DO UPDATE SET owner=?2,tried_id=?8,partner_code=?9,partner_name=?10,"
    "date=?11,depot=?12,changed_at=?13,slip_id=?4,stamp=?7",
    "INSERT OR REPLACE INTO line (draft,number,code,name,quantity,from_slip)"
    " VALUES (?1,?2,?3,?4,?5,?6)",
    "DELETE FROM line WHERE draft=?1 AND number>?2",
    "UPDATE draft SET owner='' WHERE id=?1",
    "DELETE FROM draft WHERE id=?1",
    "SELECT id,owner,form,slip_id,slip_table,no_price,stamp,tried_id,partner_code,partner_name,"
    "date,depot,changed_at FROM draft ORDER BY changed_at DESC, rowid DESC",
    "SELECT code,name,quantity,from_slip FROM line WHERE draft=?1 ORDER BY number",
    "UPDATE draft SET owner=?3 WHERE id=?1 AND owner=?2"};

/// Keeps other processes out while the file is made, looked through or set aside.
class OpeningLock {
 public:
  explicit OpeningLock(const std::filesystem::path& path)
      : file_(open((path.string() + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    if (file_ >= 0) flock(file_, LOCK_EX);
  }
  ~OpeningLock() {
    if (file_ >= 0) close(file_);
  }
  OpeningLock(const OpeningLock&) = delete;
  OpeningLock& operator=(const OpeningLock&) = delete;
  bool Holds() const { return file_ >= 0; }

 private:
  int file_;
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
  if (version.Damaged() || check.Damaged()) return State::Damaged;
  // Busy, or without rights: no reason to throw anything out of the way.
  if (version.Code != SQLITE_ROW || check.Code != SQLITE_ROW) return State::OutOfReach;
  if (!check.Is("ok")) return State::Damaged;
  if (version.Is(std::to_string(kVersion))) return State::Usable;
  if (!version.Is("0")) return State::Newer;
  return Cell(file, "SELECT COUNT(*) FROM sqlite_master").Is("0") ? State::New : State::Damaged;
}

/// Opened and made ready, or nothing; `state` says in which state the file was found.
sqlite3* OpenUsable(const std::filesystem::path& path, State& state) {
  sqlite3* file = nullptr;
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
  bool ready = sqlite3_open_v2(path.c_str(), &file, flags, nullptr) == SQLITE_OK;
  if (ready) sqlite3_busy_timeout(file, kBusyWait);
  state = ready ? StateOf(file) : State::OutOfReach;
  if (state == State::New) ready = Run(file, "BEGIN IMMEDIATE") && Run(file, kSchema);
  if (state == State::New) ready = ready && Run(file, "COMMIT");
  // Every write reaches the disk before the next begins: it is a thread of its own that waits.
  ready = ready && (state == State::Usable || state == State::New) &&
          Run(file, "PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON");
  if (ready) return file;
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

/// One use of a prepared statement, from its values to its rows.
class DraftFile::Use {
 public:
  Use(const DraftFile& file, Text text) : statement_(file.statements_[text]) {}
  ~Use() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
  }
  Use(const Use&) = delete;
  Use& operator=(const Use&) = delete;

  /// The next value. A text has to outlive the use.
  Use& Put(const std::string& text) {
    sqlite3_bind_text(statement_, ++values_, text.data(), static_cast<int>(text.size()),
                      SQLITE_STATIC);
    return *this;
  }
  Use& Put(int number) {
    sqlite3_bind_int(statement_, ++values_, number);
    return *this;
  }
  bool Done() { return sqlite3_step(statement_) == SQLITE_DONE; }
  bool Next() { return sqlite3_step(statement_) == SQLITE_ROW; }
  std::string TextAt(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return text == nullptr ? std::string() : text;
  }
  int NumberAt(int column) const { return sqlite3_column_int(statement_, column); }

 private:
  sqlite3_stmt* statement_;
  int values_ = 0;
};

std::unique_ptr<DraftFile> DraftFile::Open(const std::filesystem::path& path, std::string& notice) {
  if (!MakeFolder(path.parent_path())) return nullptr;
  const OpeningLock lock(path);
  if (!lock.Holds() || !MakeOwnersAlone(path)) return nullptr;
  State state = State::Damaged;
  sqlite3* file = OpenUsable(path, state);
  if (file == nullptr && (state == State::Damaged || state == State::Newer)) {
    const auto aside = AsideName(path, state == State::Newer ? "newer" : "damaged");
    if (!SetAside(path, aside)) return nullptr;
    notice = AsideNotice(state, aside);
    if (MakeOwnersAlone(path)) file = OpenUsable(path, state);
  }
  if (file == nullptr) return nullptr;
  std::unique_ptr<DraftFile> drafts(new DraftFile(file));
  return drafts->Prepare() ? std::move(drafts) : nullptr;
}

DraftFile::~DraftFile() {
  for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
  sqlite3_close(file_);
}

bool DraftFile::Prepare() {
  for (const char* text : kTexts) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(file_, text, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK) {
      return false;
    }
    statements_.push_back(statement);
  }
  return true;
}

bool DraftFile::Write(const std::map<std::string, DraftChange>& changes, const std::string& owner) {
  bool done = Run(file_, "BEGIN IMMEDIATE");
  for (const auto& [id, change] : changes) done = done && WriteOne(id, change, owner);
  if (done && Run(file_, "COMMIT")) {
    for (const auto& [id, change] : changes) {
      if (change.Written) written_[id] = change.Content;
      if (change.Removed || change.PutAside) written_.erase(id);
    }
    return true;
  }
  Run(file_, "ROLLBACK");
  written_.clear();
  return false;
}

bool DraftFile::WriteOne(const std::string& id, const DraftChange& change,
                         const std::string& owner) {
  if (change.Removed) return Remove(id);
  if (change.Written && !WriteContent(change.Content, owner)) return false;
  return !change.PutAside || Use(*this, kPutAside).Put(id).Done();
}

bool DraftFile::WriteContent(const Draft& draft, const std::string& owner) {
  Use use(*this, kPutDraft);
  use.Put(draft.Id).Put(owner).Put(draft.FormName).Put(draft.SlipId).Put(draft.SlipTable);
  use.Put(draft.NoPriceMode).Put(draft.Stamp).Put(draft.TriedId).Put(draft.PartnerCode);
  use.Put(draft.PartnerName).Put(draft.Date).Put(draft.Depot).Put(draft.ChangedAt);
  return use.Done() && WriteLines(draft);
}

// Of a long order only what a scan has changed goes to the disk.
bool DraftFile::WriteLines(const Draft& draft) {
  const auto before = written_.find(draft.Id);
  const bool known = before != written_.end();
  int number = 0;
  for (const DraftLine& line : draft.Lines) {
    const auto index = static_cast<size_t>(number++);
    const bool stands =
        known && index < before->second.Lines.size() && before->second.Lines[index] == line;
    if (stands) continue;
    Use use(*this, kPutLine);
    use.Put(draft.Id).Put(number).Put(line.Code).Put(line.Name).Put(line.Quantity);
    if (!use.Put(line.FromSlip ? 1 : 0).Done()) return false;
  }
  if (known && before->second.Lines.size() <= draft.Lines.size()) return true;
  return Use(*this, kCutLines).Put(draft.Id).Put(number).Done();
}

bool DraftFile::Remove(const std::string& id) { return Use(*this, kRemove).Put(id).Done(); }

std::vector<OwnedDraft> DraftFile::Read() {
  std::vector<OwnedDraft> drafts;
  {
    Use use(*this, kReadDrafts);
    while (use.Next()) {
      drafts.push_back({{.Id = use.TextAt(0),
                         .FormName = use.TextAt(2),
                         .SlipId = use.TextAt(3),
                         .SlipTable = use.TextAt(4),
                         .NoPriceMode = static_cast<std::int16_t>(use.NumberAt(5)),
                         .Stamp = use.TextAt(6),
                         .TriedId = use.TextAt(7),
                         .PartnerCode = use.TextAt(8),
                         .PartnerName = use.TextAt(9),
                         .Date = use.TextAt(10),
                         .Depot = use.TextAt(11),
                         .ChangedAt = use.TextAt(12)},
                        use.TextAt(1)});
    }
  }
  for (OwnedDraft& draft : drafts) ReadLines(draft.Content);
  return drafts;
}

void DraftFile::ReadLines(Draft& draft) {
  Use use(*this, kReadLines);
  use.Put(draft.Id);
  while (use.Next()) {
    draft.Lines.push_back({use.TextAt(0), use.TextAt(1), use.TextAt(2), use.NumberAt(3) != 0});
  }
}

bool DraftFile::Take(const std::string& id, const std::string& from, const std::string& owner) {
  return Use(*this, kTake).Put(id).Put(from).Put(owner).Done() && sqlite3_changes(file_) == 1;
}

}  // namespace store
