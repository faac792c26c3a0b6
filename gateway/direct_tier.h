#pragma once

#include "gateway/data_space.h"
#include "gateway/kept_connection.h"

namespace store {

/// The data object in this process, by ODBC. It keeps one connection, for as long as calls name the
/// same data source.
class DirectTier : public DataTier {
 public:
  std::unique_ptr<Recordset> GETSQL(const std::string& statement, std::string& errorText,
                                    const std::string& connectString) override;
  bool PUTSQL(const std::vector<std::string>& statements, std::string& errorText,
              const std::string& connectString) override;
  bool InDoubt() const override { return inDoubt_; }
  bool Reached() const override { return reached_; }
  bool Stopped() const override { return stopped_; }

 private:
  bool Reach(const std::string& connectString, std::string& errorText, bool mayBeStopped);
  /// Lets go of a connection whose job is not done, and says why.
  std::string GaveUp(KeptConnection::End ended, std::chrono::seconds limit);

  std::unique_ptr<KeptConnection> kept_;  // nothing when the last one is no longer fit
  std::string keptString_;
  bool inDoubt_ = false;
  bool reached_ = false;
  bool stopped_ = false;
};

}  // namespace store
