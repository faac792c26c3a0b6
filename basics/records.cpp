#include "basics/records.h"

namespace store {

void ResetRecords() {
  Session = {};
  AppOptions = {};
  BaseSettings = {};
}

}  // namespace store
