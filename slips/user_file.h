#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace store {

/// Files in which one user of one store keeps what belongs to the workstation and not into the
/// business database. Each is a small database of its own, for its owner's eyes alone; several
/// processes may have it open, and what a transaction has written is there after a power cut.

/// What a kind of file is made of.
struct UserFileKind {
  const char* Schema;  ///< The statements that make a new one, the version among them.
  int Version;
  int Tables;         ///< How many the statements make, those that they bring along too.
  const char* Holds;  ///< What it holds, in the person's words.
};

/// The file of whoever is logged in, in a folder of `DataFolder`. Empty before the login, and where
/// there is no such folder.
std::filesystem::path UserFilePath(const char* folder);

/// Opens the file, which is made with its folder when it is not there. One that is damaged or of a
/// newer program is set aside under another name, and `notice` tells the person so. Nothing when
/// there can be no file in that place. The caller closes it.
sqlite3* OpenUserFile(const std::filesystem::path& path, const UserFileKind& kind,
                      std::string& notice);

/// The same file once more, for another thread, to read and for what may be undone by a power cut:
/// that waits neither for a write nor for the disk.
sqlite3* OpenBeside(sqlite3* file);

/// Runs statements that give no rows. False when one of them fails.
bool RunInFile(sqlite3* file, const char* statements);

/// One use of a prepared statement, from its values to its rows.
class FileUse {
 public:
  explicit FileUse(sqlite3_stmt* statement) : statement_(statement) {}
  ~FileUse();
  FileUse(const FileUse&) = delete;
  FileUse& operator=(const FileUse&) = delete;

  /// The next value. A text has to outlive the use.
  FileUse& Put(const std::string& text);
  FileUse& Put(int number);
  FileUse& PutNull();
  bool Done();  ///< Runs what gives no rows.
  bool Next();  ///< Goes to the next row; false behind the last one.
  std::string TextAt(int column) const;
  int NumberAt(int column) const;
  bool IsNullAt(int column) const;

 private:
  sqlite3_stmt* statement_;
  int values_ = 0;
};

/// An open file and the statements that are used on it.
class PreparedFile {
 public:
  PreparedFile(sqlite3* file, std::span<const char* const> texts);
  ~PreparedFile();
  PreparedFile(const PreparedFile&) = delete;
  PreparedFile& operator=(const PreparedFile&) = delete;

  bool Ready() const { return ready_; }
  sqlite3* File() const { return file_; }
  FileUse Use(int text) const { return FileUse(statements_[static_cast<size_t>(text)]); }

 private:
  sqlite3* file_;
  std::vector<sqlite3_stmt*> statements_;
  bool ready_ = false;
};

}  // namespace store
