#include "bench/asked_selects.h"

#include "bench/client_library.h"

namespace store {

std::vector<std::string> SelectsOf(int port, const std::function<void()>& work) {
  ClientLibrary log(port);
  log.Run("SET GLOBAL log_output='TABLE'");
  log.Run("TRUNCATE TABLE mysql.general_log");
  log.Run("SET GLOBAL general_log=ON");
  work();
  log.Run("SET GLOBAL general_log=OFF");
  return log.Texts(
      "SELECT argument FROM mysql.general_log WHERE command_type IN ('Query','Execute') AND "
      "UPPER(TRIM(argument)) LIKE 'SELECT%' AND thread_id<>CONNECTION_ID() ORDER BY event_time");
}

}  // namespace store
