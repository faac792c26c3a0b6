#pragma once

#include <cstdlib>

#include "forms/host.h"
#include "forms/open_forms.h"
#include "slips/process_state.h"
#include "slips/slip_form.h"
#include "start/Main_Start.h"
#include "start/options.h"
#include "tests/support/small_store_test.h"

namespace store {

/// A workstation of the small store where nobody has logged in yet. Its options file names the
/// private server and the company "small", which the directory knows; besides u01 (password "1111")
/// there is a user u03 without a password.
class WayInTest : public SmallStoreTest {
 protected:
  WayInTest() {
    Sql("INSERT INTO ST (ST_CODE,ST_PWD,ST_NAME,RCT_CODE,ST_ASPLVL) VALUES"
        " ('u03','','이세리','1001','9');"
        "DELETE FROM master.COMPANY;"
        "INSERT INTO master.COMPANY (COM_ID,DB_HostnameIP,DB_Database,DB_User) VALUES"
        " ('small','elsewhere','other','someone')");
    setenv("STORE_DIRECTORY_SERVER", TestServer().ServerOption().c_str(), 1);
    RegisterStartForms();
    RegisterForm("frm_Start", [] { return std::make_unique<MainWindow>("frm_Start"); });
    Store("데이터서버", TestServer().ServerOption());
    Store("회사아이디", "small");
    Store("업무개체", "TWMGR.DEMON");
    StartAgain();
  }
  ~WayInTest() override { unsetenv("STORE_DIRECTORY_SERVER"); }

  /// A fresh run of the program on the same workstation.
  void StartAgain() {
    ResetProcessState();
    host.Ended = false;
    host.FormsShown.clear();
    LoadOptions();
  }
  static std::string Stored(const std::string& key) { return ReadOption(kOptionSection, key); }
  static void Store(const std::string& key, const std::string& value) {
    WriteOption(kOptionSection, key, value);
  }
};

}  // namespace store
