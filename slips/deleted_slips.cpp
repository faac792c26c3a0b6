#include "slips/deleted_slips.h"

#include <sqlite3.h>

#include <array>
#include <memory>
#include <utility>

#include "forms/host.h"
#include "slips/user_file.h"

namespace store {
namespace {

/// A field is a value of the header, whose line is 0, or of a line, from 1.
constexpr UserFileKind kKind = {
    .Schema =
        "CREATE TABLE slip (number INTEGER PRIMARY KEY AUTOINCREMENT, deleted_at TEXT NOT"
        " NULL, sure INTEGER NOT NULL);"
        "CREATE TABLE field (slip INTEGER REFERENCES slip (number) ON DELETE CASCADE,"
        " line INTEGER, place INTEGER, name TEXT NOT NULL, value TEXT,"
        " PRIMARY KEY (slip, line, place)) WITHOUT ROWID;"
        "PRAGMA user_version = 1;",
    .Version = 1,
    .Tables = 3,
    .Holds = "삭제한 전표"};

/// The statements of a file, in the order of `kTexts`.
enum Text { kPutSlip, kPutField, kSure, kRemove, kRemoveOld, kCount, kReadSlips, kReadFields };
constexpr std::array<const char*, 8> kTexts = {
    "INSERT INTO slip (deleted_at,sure) VALUES (?1,0)",
    "INSERT INTO field (slip,line,place,name,value) VALUES (?1,?2,?3,?4,?5)",
    "UPDATE slip SET sure=1 WHERE number=?1",
    "DELETE FROM slip WHERE number=?1",
    "DELETE FROM slip WHERE deleted_at<?1",
    "SELECT COUNT(*) FROM slip WHERE deleted_at>=?1",
    "SELECT number,deleted_at,sure FROM slip WHERE deleted_at>=?1 ORDER BY number DESC",
    "SELECT line,name,value FROM field WHERE slip=?1 ORDER BY line,place"};

std::string Midnight() { return FormatDateValue(Today(), "YYYY-MM-DD"); }

/// The file of whoever is logged in.
class Keeper {
 public:
  explicit Keeper(const std::filesystem::path& path) {
    sqlite3* file = OpenUserFile(path, kKind, Notice);
    if (file == nullptr) return;
    file_ = std::make_unique<PreparedFile>(file, kTexts);
    works_ = file_->Ready() && file_->Use(kRemoveOld).Put(Midnight()).Done();
  }

  std::string Notice;

  bool Works() const { return works_; }
  bool Ready() const { return file_ && file_->Ready(); }

  int Keep(const DeletedSlip& slip) {
    works_ = Ready() && RunInFile(file_->File(), "BEGIN IMMEDIATE");
    if (!works_) return 0;
    int number = 0;
    works_ = Put(slip, number) && RunInFile(file_->File(), "COMMIT");
    if (works_) return number;
    RunInFile(file_->File(), "ROLLBACK");
    return 0;
  }
  void Change(Text text, int number) { works_ = Ready() && file_->Use(text).Put(number).Done(); }
  int Count() {
    if (!Ready()) return 0;
    const std::string midnight = Midnight();
    FileUse use = file_->Use(kCount);
    return use.Put(midnight).Next() ? use.NumberAt(0) : 0;
  }
  /// A program that runs through the night removes what it kept yesterday as well.
  std::vector<DeletedSlip> Read() {
    std::vector<DeletedSlip> slips;
    if (!Ready()) return slips;
    const std::string midnight = Midnight();
    file_->Use(kRemoveOld).Put(midnight).Done();
    {
      FileUse use = file_->Use(kReadSlips);
      use.Put(midnight);
      while (use.Next()) {
        DeletedSlip& slip = slips.emplace_back();
        slip.Number = use.NumberAt(0);
        slip.DeletedAt = use.TextAt(1);
        slip.Sure = use.NumberAt(2) != 0;
      }
    }
    for (DeletedSlip& slip : slips) ReadFields(slip);
    return slips;
  }

 private:
  bool Put(const DeletedSlip& slip, int& number) {
    if (!file_->Use(kPutSlip).Put(slip.DeletedAt).Done()) return false;
    number = static_cast<int>(sqlite3_last_insert_rowid(file_->File()));
    return PutRows(slip.Header, number, 0) && PutRows(slip.Lines, number, 1);
  }
  bool PutRows(const KeptRows& rows, int number, int line) {
    for (const KeptRows::Row& row : rows.Rows) {
      for (size_t i = 0; i < row.size(); ++i) {
        FileUse use = file_->Use(kPutField);
        use.Put(number).Put(line).Put(static_cast<int>(i)).Put(rows.Columns[i]);
        if (row[i]) {
          use.Put(*row[i]);
        } else {
          use.PutNull();
        }
        if (!use.Done()) return false;
      }
      ++line;
    }
    return true;
  }
  void ReadFields(DeletedSlip& slip) {
    FileUse use = file_->Use(kReadFields);
    use.Put(slip.Number);
    int last = -1;
    while (use.Next()) {
      const int line = use.NumberAt(0);
      KeptRows& rows = line == 0 ? slip.Header : slip.Lines;
      if (std::exchange(last, line) != line) rows.Rows.emplace_back();
      if (rows.Rows.size() == 1) rows.Columns.push_back(use.TextAt(1));
      rows.Rows.back().push_back(use.IsNullAt(2) ? std::nullopt : std::optional(use.TextAt(2)));
    }
  }

  std::unique_ptr<PreparedFile> file_;
  bool works_ = false;
};

std::unique_ptr<Keeper>& TheKeeper() {
  static std::unique_ptr<Keeper> keeper;
  return keeper;
}

Keeper* OpenKeeper() {
  std::unique_ptr<Keeper>& keeper = TheKeeper();
  if (keeper) return keeper.get();
  const std::filesystem::path path = UserFilePath("deleted");
  if (path.empty()) return nullptr;
  keeper = std::make_unique<Keeper>(path);
  return keeper.get();
}

bool SameSlip(const DeletedSlip& one, const DeletedSlip& other) {
  return one.Header == other.Header && one.Lines == other.Lines;
}

}  // namespace

int KeepDeleted(DeletedSlip slip) {
  Keeper* keeper = OpenKeeper();
  if (keeper == nullptr) return 0;
  // A deletion that is tried again is one deletion.
  for (const DeletedSlip& kept : keeper->Read()) {
    if (SameSlip(kept, slip)) keeper->Change(kRemove, kept.Number);
  }
  slip.DeletedAt = FormatDateValue(Host.Now(), "YYYY-MM-DD HH:NN:SS");
  return keeper->Keep(slip);
}

void SureOfDeleted(int number) {
  Keeper* keeper = OpenKeeper();
  if (keeper != nullptr && number != 0) keeper->Change(kSure, number);
}

void ForgetDeleted(int number) {
  Keeper* keeper = OpenKeeper();
  if (keeper != nullptr && number != 0) keeper->Change(kRemove, number);
}

int CountDeletedToday() {
  Keeper* keeper = OpenKeeper();
  return keeper == nullptr ? 0 : keeper->Count();
}

std::vector<DeletedSlip> DeletedToday() {
  Keeper* keeper = OpenKeeper();
  return keeper == nullptr ? std::vector<DeletedSlip>() : keeper->Read();
}

bool DeletedSlipsWork() {
  const Keeper* keeper = OpenKeeper();
  return keeper != nullptr && keeper->Works();
}

std::string TakeDeletedNotice() {
  OpenKeeper();
  return TheKeeper() ? std::exchange(TheKeeper()->Notice, {}) : std::string();
}

void ResetDeletedSlips() { TheKeeper().reset(); }

}  // namespace store
