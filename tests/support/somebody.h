#pragma once

#include <string>
#include <thread>

namespace store {

/// Another client of the private server, who has begun a transaction and is in the middle of it
/// while the test goes on.
class Somebody {
 public:
  /// Returns once the other has come as far as the "DO SLEEP(...)" among `statements`.
  explicit Somebody(const std::string& statements, const std::string& database = "small");
  ~Somebody() { Leave(); }
  Somebody(const Somebody&) = delete;
  Somebody& operator=(const Somebody&) = delete;

  /// Waits until the other has done all of it.
  void Leave();

 private:
  std::thread works_;
};

/// Statements that sleep until two wait for what the transaction holds. They sleep before each
/// look: the server's list of transactions is read anew only by who comes a tenth of a second after
/// anybody's last look, and until then shows those who waited for somebody else.
inline constexpr const char* kUntilTwoWait =
    "BEGIN NOT ATOMIC DECLARE N INT DEFAULT 0; REPEAT DO SLEEP(0.15); SET N = N + 1; "
    "UNTIL N >= 50 OR (SELECT COUNT(*) FROM information_schema.INNODB_TRX WHERE "
    "TRX_STATE='LOCK WAIT') >= 2 END REPEAT; END; ";

}  // namespace store
