#pragma once

#include "gateway/data_space.h"

namespace store {

/// The data object in this process, by ODBC.
class DirectTier : public DataTier {
 public:
  std::unique_ptr<Recordset> GETSQL(const std::string& statement, std::string& errorText,
                                    const std::string& connectString) override;
  bool PUTSQL(const std::vector<std::string>& statements, std::string& errorText,
              const std::string& connectString) override;
};

}  // namespace store
