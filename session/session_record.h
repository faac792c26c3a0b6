#pragma once

#include <string>

namespace store {

/// Who is working, and for which store. The user fields are filled at login from a row of ST, the
/// store and depot fields behind the splash from RCT, RCTI and HCT. Nothing clears them in a run.
struct SessionRecord {
  std::string UserCode;       ///< ST_CODE; stamped on every slip and part of its key.
  std::string UserPassword;   ///< ST_PWD, as stored.
  std::string UserName;       ///< ST_NAME
  std::string UserStoreCode;  ///< RCT_CODE of the user's row; key of the store load.
  std::string UserLevel;      ///< ST_ASPLVL
  std::string DatabaseName;   ///< The company id, as the connection string names it.

  std::string StoreCode;      ///< RCT_CODE
  std::string StoreName;      ///< RCT_NAME
  std::string StoreNo;        ///< RCT_NO, the business registration number.
  std::string StorePhone;     ///< RCTI_CPHONE
  std::string StoreBlank;     ///< A fifth text of the store load, always one blank.
  std::string StoreAddress1;  ///< RCT_SADDR1
  std::string StoreAddress2;  ///< RCT_SADDR2
  std::string StoreKind;      ///< RCT_GUBUN
  std::string DepotCode;      ///< HCT_CODE of the store's default depot.
  std::string DepotName;      ///< HCT_NAME of it.
};

inline SessionRecord Session;

}  // namespace store
