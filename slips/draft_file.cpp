#include "slips/draft_file.h"

#include <sqlite3.h>

#include <array>
#include <utility>

namespace store {
namespace {

constexpr UserFileKind kKind = {
    .Schema =
        "CREATE TABLE draft (id TEXT PRIMARY KEY, owner TEXT NOT NULL, form TEXT, slip_id TEXT,"
        " slip_table TEXT, no_price INTEGER, stamp TEXT, tried_id TEXT, partner_code TEXT,"
        " partner_name TEXT, date TEXT, depot TEXT, changed_at TEXT);"
        "CREATE TABLE line (draft TEXT REFERENCES draft (id) ON DELETE CASCADE, number INTEGER,"
        " code TEXT, name TEXT, quantity TEXT, from_slip INTEGER, PRIMARY KEY (draft, number))"
        " WITHOUT ROWID;"
        "PRAGMA user_version = 1;",
    .Version = 1,
    .Tables = 2,
    .Holds = "쓰던 전표"};

/// The statements of a file, in the order of `kTexts`.
enum Text {
  kPutDraft,
  kPutLine,
  kCutLine,
  kCutLines,
  kPutAside,
  kRemove,
  kReadDrafts,
  kReadLines,
  kTake
};
constexpr std::array<const char*, 9> kTexts = {
    "INSERT INTO draft (id,owner,form,slip_id,slip_table,no_price,stamp,tried_id,partner_code,"
    "partner_name,date,depot,changed_at) VALUES (?1,?2,?3,?4,?5,?6,?7,?8,?9,?10,?11,?12,?13)"
    " ON CONFLICT (id) DO UPDATE SET owner=?2,tried_id=?8,partner_code=?9,partner_name=?10,"
    "date=?11,depot=?12,changed_at=?13,slip_id=?4,stamp=?7",
    "INSERT OR REPLACE INTO line (draft,number,code,name,quantity,from_slip)"
    " VALUES (?1,?2,?3,?4,?5,?6)",
    "DELETE FROM line WHERE draft=?1 AND number=?2",
    "DELETE FROM line WHERE draft=?1",
    "UPDATE draft SET owner='' WHERE id=?1",
    "DELETE FROM draft WHERE id=?1",
    "SELECT id,owner,form,slip_id,slip_table,no_price,stamp,tried_id,partner_code,partner_name,"
    "date,depot,changed_at FROM draft ORDER BY changed_at DESC, rowid DESC",
    "SELECT code,name,quantity,from_slip FROM line WHERE draft=?1 ORDER BY number",
    "UPDATE draft SET owner=?3 WHERE id=?1 AND owner=?2"};

}  // namespace

std::unique_ptr<DraftFile> DraftFile::Open(const std::filesystem::path& path, std::string& notice) {
  return Ready(OpenUserFile(path, kKind, notice));
}

std::unique_ptr<DraftFile> DraftFile::Beside() const { return Ready(OpenBeside(file_.File())); }

std::unique_ptr<DraftFile> DraftFile::Ready(sqlite3* file) {
  if (file == nullptr) return nullptr;
  std::unique_ptr<DraftFile> drafts(new DraftFile(file));
  return drafts->file_.Ready() ? std::move(drafts) : nullptr;
}

DraftFile::DraftFile(sqlite3* file) : file_(file, kTexts) {}

bool DraftFile::Write(const std::map<std::string, DraftChange>& changes, const std::string& owner) {
  bool done = RunInFile(file_.File(), "BEGIN IMMEDIATE");
  for (const auto& [id, change] : changes) done = done && WriteOne(id, change, owner);
  if (done && RunInFile(file_.File(), "COMMIT")) {
    for (const auto& [id, change] : changes) {
      if (change.Removed || change.PutAside) written_.erase(id);
    }
    return true;
  }
  RunInFile(file_.File(), "ROLLBACK");
  written_.clear();
  return false;
}

bool DraftFile::WriteOne(const std::string& id, const DraftChange& change,
                         const std::string& owner) {
  if (change.Removed) return Remove(id);
  if (change.Written && !WriteContent(change.Content, owner)) return false;
  return !change.PutAside || file_.Use(kPutAside).Put(id).Done();
}

bool DraftFile::WriteContent(const Draft& draft, const std::string& owner) {
  FileUse use = file_.Use(kPutDraft);
  use.Put(draft.Id).Put(owner).Put(draft.FormName).Put(draft.SlipId).Put(draft.SlipTable);
  use.Put(draft.NoPriceMode).Put(draft.Stamp).Put(draft.TriedId).Put(draft.PartnerCode);
  use.Put(draft.PartnerName).Put(draft.Date).Put(draft.Depot).Put(draft.ChangedAt);
  return use.Done() && WriteLines(draft);
}

// Of a long order only what a scan has changed goes to the disk. A line keeps its number for as
// long as those before it stay where they are; one that comes behind the last has the next.
bool DraftFile::WriteLines(const Draft& draft) {
  const auto found = written_.find(draft.Id);
  if (found == written_.end() && !file_.Use(kCutLines).Put(draft.Id).Done()) return false;
  const NumberedLines before =
      found == written_.end() ? NumberedLines() : std::exchange(found->second, {});
  NumberedLines& now = written_[draft.Id];
  now.reserve(draft.Lines.size());
  auto old = before.begin();
  int next = before.empty() ? 1 : before.back().first + 1;
  bool done = true;
  for (const DraftLine& line : draft.Lines) {
    for (; old != before.end() && old->second.Code != line.Code; ++old) {
      done = done && file_.Use(kCutLine).Put(draft.Id).Put(old->first).Done();
    }
    const bool stands = old != before.end() && old->second == line;
    now.emplace_back(old == before.end() ? next++ : (old++)->first, line);
    done = done && (stands || WriteLine(draft.Id, now.back()));
  }
  for (; old != before.end(); ++old) {
    done = done && file_.Use(kCutLine).Put(draft.Id).Put(old->first).Done();
  }
  return done;
}

bool DraftFile::WriteLine(const std::string& id, const NumberedLine& line) {
  FileUse use = file_.Use(kPutLine);
  use.Put(id).Put(line.first).Put(line.second.Code).Put(line.second.Name);
  return use.Put(line.second.Quantity).Put(line.second.FromSlip ? 1 : 0).Done();
}

bool DraftFile::Remove(const std::string& id) { return file_.Use(kRemove).Put(id).Done(); }

std::vector<OwnedDraft> DraftFile::Read() {
  std::vector<OwnedDraft> drafts;
  {
    FileUse use = file_.Use(kReadDrafts);
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
  FileUse use = file_.Use(kReadLines);
  use.Put(draft.Id);
  while (use.Next()) {
    draft.Lines.push_back({use.TextAt(0), use.TextAt(1), use.TextAt(2), use.NumberAt(3) != 0});
  }
}

bool DraftFile::Take(const std::string& id, const std::string& from, const std::string& owner) {
  return file_.Use(kTake).Put(id).Put(from).Put(owner).Done() && sqlite3_changes(file_.File()) == 1;
}

}  // namespace store
