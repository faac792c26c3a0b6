#include "bench/client_library.h"

#include <cstdio>
#include <cstdlib>

namespace store {

ClientLibrary::ClientLibrary(int port, const std::string& database) : client_(mysql_init(nullptr)) {
  mysql_options(client_, MYSQL_SET_CHARSET_NAME, "utf8mb4");
  if (mysql_real_connect(client_, "127.0.0.1", "kt", "qz4471", database.c_str(),
                         static_cast<unsigned>(port), nullptr, 0) == nullptr) {
    std::fprintf(stderr, "store_bench: %s\n", mysql_error(client_));
    std::exit(2);
  }
  Run("SET max_length_for_sort_data=8192");  // the server sorts for it as it does for ours
}

ClientLibrary::~ClientLibrary() { mysql_close(client_); }

void ClientLibrary::Run(const std::string& statement) {
  if (mysql_real_query(client_, statement.c_str(), statement.size()) == 0) return;
  std::fprintf(stderr, "store_bench: %s\n", mysql_error(client_));
  std::exit(2);
}

size_t ClientLibrary::ReadAll(const std::string& select) {
  Run(select);
  MYSQL_RES* result = mysql_store_result(client_);
  size_t bytes = 0;
  const unsigned fields = mysql_num_fields(result);
  while (MYSQL_ROW row = mysql_fetch_row(result)) {
    const unsigned long* lengths = mysql_fetch_lengths(result);
    for (unsigned i = 0; i < fields; ++i) {
      // Each cell is taken as a text, as ours keeps it.
      if (row[i] != nullptr) bytes += std::string(row[i], lengths[i]).size();
    }
  }
  mysql_free_result(result);
  return bytes;
}

std::vector<std::string> ClientLibrary::Texts(const std::string& select) {
  Run(select);
  MYSQL_RES* result = mysql_store_result(client_);
  std::vector<std::string> texts;
  while (MYSQL_ROW row = mysql_fetch_row(result)) texts.emplace_back(row[0]);
  mysql_free_result(result);
  return texts;
}

}  // namespace store
