#pragma once

#include <memory>
#include <string>
#include <vector>

#include "gateway/recordset.h"

namespace store {

/// The server-side data object: reads and writes, each a complete round trip of its own. Nothing
/// that a caller could see is kept between calls.
class DataTier {
 public:
  virtual ~DataTier() = default;

  /// Runs one SELECT against the data source that `connectString` names and gives all its rows.
  /// Nothing on failure, with the server's own words in `errorText`. Anything but a SELECT is
  /// refused in the same way.
  virtual std::unique_ptr<Recordset> GETSQL(const std::string& statement, std::string& errorText,
                                            const std::string& connectString) = 0;

  /// Runs the statements in order as one transaction, passing over empty elements. A SELECT must
  /// give a row there. True when all of them ran; on false none of them took effect, unless
  /// `InDoubt` says so, and `errorText` holds the server's own words, or the guard's.
  virtual bool PUTSQL(const std::vector<std::string>& statements, std::string& errorText,
                      const std::string& connectString) = 0;

  /// Whether nobody can say if the last `PUTSQL` took effect: its answer was lost, or has not come
  /// within the limit.
  virtual bool InDoubt() const { return false; }

  /// Whether the server has answered the last call, be it with a refusal.
  virtual bool Reached() const { return true; }

  /// Whether the last `GETSQL` was stopped by the person (gateway/stoppable_reads.h).
  virtual bool Stopped() const { return false; }
};

/// Makes data objects by name and address. A program that puts another maker into the gateway's
/// `DataSpace` has its reads answered by its own data objects.
class DataSpaceObject {
 public:
  virtual ~DataSpaceObject() = default;

  /// `address` is "http://" and the business server's host. With an empty host no service stands
  /// between, and the object works in this process through ODBC; it answers to the name
  /// "TWMGR.DEMON" only. Nothing when no such object can be reached. The object of this process is
  /// one, with the one connection that it keeps, and goes with this maker.
  virtual std::shared_ptr<DataTier> CreateObject(const std::string& progId,
                                                 const std::string& address);

 private:
  std::shared_ptr<DataTier> direct_;
};

}  // namespace store
