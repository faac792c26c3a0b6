#include "tests/start/small_chain.h"

#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "slips/process_state.h"
#include "slips/slip_form.h"
#include "start/Main_Start.h"
#include "start/options.h"

namespace store {
namespace {

PrivateServer& ServerWithChain() {
  static PrivateServer& server = [&]() -> PrivateServer& {
    TestServer().MakeSchema("chain1");
    return TestServer();
  }();
  return server;
}

constexpr const char* kContent =
    "DELETE FROM ST; DELETE FROM RCT; DELETE FROM RCTI; DELETE FROM HCT; DELETE FROM BAS;"
    "DELETE FROM PR; DELETE FROM CT;"
    "INSERT INTO ST (ST_CODE,ST_PWD,ST_NAME,RCT_CODE,ST_ASPLVL) VALUES"
    " ('e01','pw1','김하나','1001','2'),('e02','','이두리','1002','9');"
    "INSERT INTO RCT (RCT_CODE,RCT_NAME,RCT_NO,RCT_SADDR1,RCT_SADDR2,RCT_GUBUN) VALUES"
    " ('1001','강남점','123-45-67890','서울','역삼동','1');"
    "INSERT INTO RCTI (RCT_CODE,RCTI_CPHONE) VALUES ('1001','02-555-0101');"
    "INSERT INTO HCT (RCT_CODE,HCT_CODE,HCT_NAME,HCT_BAS) VALUES"
    " ('1001','000001','본창고','0'),('1001','000002','매장','1');"
    "INSERT INTO CT (CT_CODE,CT_NAME) VALUES ('C0001','한빛상사');"
    "INSERT INTO PR (PR_CODE,PR_NAME,PR_END) VALUES"
    " ('P1','하늘','0'),('P2','가람','0'),('P3','나루','1');"
    "DELETE FROM master.COMPANY;"
    "INSERT INTO master.COMPANY (COM_ID,DB_HostnameIP,DB_Database,DB_User) VALUES"
    " ('chain1','elsewhere','other','someone')";

}  // namespace

SmallChain::SmallChain() {
  PrivateServer& server = ServerWithChain();
  server.Start();
  server.Sql("chain1", kContent);
  setenv("STORE_DIRECTORY_SERVER", server.ServerOption().c_str(), 1);
  RegisterStartForms();
  RegisterForm("frm_Start", [] { return std::make_unique<MainWindow>("frm_Start"); });
  WriteOption(kOptionSection, "데이터서버", server.ServerOption());
  WriteOption(kOptionSection, "회사아이디", "chain1");
  WriteOption(kOptionSection, "업무개체", "TWMGR.DEMON");
  StartAgain();
}

SmallChain::~SmallChain() { unsetenv("STORE_DIRECTORY_SERVER"); }

void SmallChain::StartAgain() {
  DropAllForms();
  ResetGateway();
  ResetProcessState();
  host.Ended = false;
  host.FormsShown.clear();
  LoadOptions();
}

}  // namespace store
