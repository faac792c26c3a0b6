#pragma once

#include <functional>
#include <string>

namespace store {

/// A MariaDB of a program's own: in a fresh folder for temporary files, on a free port of the
/// loopback, worked by the script "private_db". It is gone with this object. What fails is told to
/// `failed`, and the call returns.
class PrivateDbServer {
 public:
  /// `name` begins the folder's name; `demoData` is the program that writes the demo franchise;
  /// `options` are further ones of the server program, parted by blanks.
  PrivateDbServer(const std::string& name, const std::string& demoData,
                  std::function<void(const std::string& what)> failed, std::string options = "");
  ~PrivateDbServer();
  PrivateDbServer(const PrivateDbServer&) = delete;
  PrivateDbServer& operator=(const PrivateDbServer&) = delete;

  /// Also again after `Stop` or `Kill`; the data stays. `more` are options of this start alone.
  void Start(const std::string& more = "");
  void Stop();    ///< Ends it cleanly.
  void Kill();    ///< Ends it as when the machine loses its power.
  void Freeze();  ///< It stands still, as a machine that is out of memory, until `Thaw`.
  void Thaw();
  void TakeAway();  ///< Ends it for good, the folder with it.

  /// An empty database of that name with every table, and the directory database "master".
  void MakeSchema(const std::string& database);
  /// The same, filled with the demo franchise; `options` are those of demo_data.
  void Load(const std::string& database, const std::string& options);

  int Port() const { return port_; }
  const std::string& Folder() const { return folder_; }
  /// What a data server option names: "127.0.0.1;PORT=...".
  std::string ServerOption() const { return ServerOption(port_); }
  static std::string ServerOption(int port);

 private:
  void Script(const std::string& arguments, const std::string& more = "") const;
  void Signal(int number) const;
  std::string Pid() const;
  bool StandsStill() const;

  std::string options_;
  std::function<void(const std::string& what)> failed_;
  std::string folder_;
  int port_ = 0;
};

}  // namespace store
