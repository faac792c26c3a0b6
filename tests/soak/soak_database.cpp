#include "tests/soak/soak_database.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include "tests/soak/day_log.h"
#include "tests/soak/franchise.h"

namespace store {
namespace {

/// Of the first order type, whose numbers are counted in memory, and of another one.
constexpr int kBusyStores[] = {0, 3};

void Must(DbClient& db, const std::string& statements) {
  if (db.Run(statements)) return;
  std::fprintf(stderr, "soak_days: %s\n%s\n", db.Error.c_str(), statements.c_str());
  std::exit(2);
}

std::string Quoted(const std::string& text) { return "'" + text + "'"; }

constexpr const char* kSettings = R"sql(
INSERT INTO BAS (BAS_CODE, BAS_NAME1, BAS_OP1, BAS_OP2, BAS_OP3, BAS_OP4) VALUES
  ('Z401', '수량', '', '', '0', '3'), ('Z402', '단가', '', '', '0', '3'),
  ('Z403', '금액', '', '', '0', '3'), ('Z404', '율', '', '', '2', '3'),
  ('ZA05', '전표최대행수', '100', '', '', ''), ('Z103', '부가세', '', '10', '', '0');
INSERT INTO RCT (RCT_CODE, RCT_NAME) VALUES ('1000', '본사');
INSERT INTO KIND (KD_ID, KD_NAME, KD_LVL) VALUES
  ('000000000000000', '전체', '0'), ('100000000000000', '식품', '1');
ALTER TABLE PEM23 ADD KEY SOAK_MEMO (PE_MEMO);
ALTER TABLE PES13 ADD KEY SOAK_MEMO (PE_MEMO);
ALTER TABLE PEM13 ADD KEY SOAK_MEMO (PE_MEMO);
ALTER TABLE ME ADD KEY SOAK_MEMO (ME_MEMO);
CREATE TABLE SOAK_STEP (
  SEQ BIGINT NOT NULL AUTO_INCREMENT PRIMARY KEY, AT BIGINT NOT NULL, WHAT CHAR(1) NOT NULL,
  PE_ID VARCHAR(50) NOT NULL, OLD_CK CHAR(1) NOT NULL DEFAULT '', NEW_CK CHAR(1) NOT NULL DEFAULT '',
  OLD_LINK VARCHAR(50) NOT NULL DEFAULT '', NEW_LINK VARCHAR(50) NOT NULL DEFAULT '',
  TOKEN VARCHAR(40) NOT NULL DEFAULT '')
  ENGINE = InnoDB DEFAULT CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci
)sql";

/// The moment within the transaction, in microseconds.
constexpr const char* kMoment = "CAST(UNIX_TIMESTAMP(SYSDATE(6)) * 1000000 AS SIGNED)";

std::string Triggers() {
  const std::string insert =
      "INSERT INTO SOAK_STEP (AT,WHAT,PE_ID,OLD_CK,NEW_CK,OLD_LINK,NEW_LINK,TOKEN) VALUES (" +
      std::string(kMoment);
  return "CREATE TRIGGER SOAK_I AFTER INSERT ON PEM22 FOR EACH ROW " + insert +
         ",'I',NEW.PE_ID,'',NEW.PE_CK,'',NEW.PE_LINK,'');"
         "CREATE TRIGGER SOAK_D AFTER DELETE ON PEM22 FOR EACH ROW " +
         insert +
         ",'D',OLD.PE_ID,OLD.PE_CK,'',OLD.PE_LINK,'','');"
         "CREATE TRIGGER SOAK_U AFTER UPDATE ON PEM22 FOR EACH ROW " +
         insert +
         ",'U',NEW.PE_ID,OLD.PE_CK,NEW.PE_CK,OLD.PE_LINK,NEW.PE_LINK,'');"
         "CREATE TRIGGER SOAK_L AFTER INSERT ON PSM22 FOR EACH ROW BEGIN IF NEW.PS_NO = 1 THEN " +
         insert +
         ",'L',NEW.PE_ID,'','','','',CONCAT(NEW.PR_CODE,':',NEW.PS_SQTY+0e0)); END IF; END";
}

std::string Products() {
  std::string statements;
  for (int i = 0; i < kProducts; ++i) {
    const std::string price = std::to_string(300 + 70 * i);
    statements +=
        "INSERT INTO PR (PR_CODE,PR_NAME,KD_ID,PR_BCODE,PR_STD,PR_UNT,PR_TAX,PR_TAX2,"
        "PR_BCTCODE,PR_OP0,PR_OP1,PR_OP2) VALUES (" +
        Quoted(ProductCodeOf(i)) + ",'상품 " + std::to_string(i) + "','100000000000000'," +
        Quoted(BarcodeOf(i)) + ",'규격','박스','" + std::to_string(i % 3) + "','" +
        std::to_string(i % 3) + "'," + Quoted(PartnerCodeOf(i)) + "," + price + "," + price + "," +
        price +
        ");"
        "INSERT INTO CTP (CT_CODE,RCT_CODE,PR_CODE,CTP_UP) VALUES (" +
        Quoted(PartnerCodeOf(i)) + ",'1000'," + Quoted(ProductCodeOf(i)) + "," + price + ");";
  }
  for (int i = 0; i < kPartners; ++i) {
    statements += "INSERT INTO CT (CT_CODE,CT_NAME,CT_DANCK,CT_DANLV,CT_GUBUN) VALUES (" +
                  Quoted(PartnerCodeOf(i)) + ",'공급처 " + std::to_string(i) +
                  "','1','1','0');"
                  "INSERT INTO CTCOM (CT_CODE,CT_LEVEL2) VALUES (" +
                  Quoted(PartnerCodeOf(i)) + ",'0');";
  }
  return statements;
}

std::string Store(int store) {
  const std::string code = Quoted(StoreCodeOf(store));
  std::string statements = "INSERT INTO RCT (RCT_CODE,RCT_NAME) VALUES (" + code + ",'" +
                           std::to_string(store) +
                           "호점');"
                           "INSERT INTO HCT (RCT_CODE,HCT_CODE,HCT_NAME,HCT_BAS) VALUES (" +
                           code + "," + Quoted("H" + StoreCodeOf(store) + "1") + ",'매장','1'),(" +
                           code + "," + Quoted("H" + StoreCodeOf(store) + "2") +
                           ",'창고','0');"
                           "ALTER TABLE SETCONFIGNOTICE ADD COLUMN CID_" +
                           StoreCodeOf(store) + " CHAR(1) NOT NULL DEFAULT 'F';";
  for (const int terminal : {0, kTerminals - 1}) {
    statements += "INSERT INTO ST (ST_CODE,ST_PWD,ST_NAME,RCT_CODE,ST_ASPLVL) VALUES (" +
                  Quoted(UserCodeOf(store, terminal)) + "," + Quoted(kPassword) + ",'직원'," +
                  code + ",'1');";
  }
  for (int i = 0; i < kProducts; ++i) {
    statements += "INSERT INTO SAFEIV (RCT_CODE,PR_CODE,CT_CODE,SAFE_QTY,ORD_QTY,ORD_UP) VALUES (" +
                  code + "," + Quoted(ProductCodeOf(i)) + "," + Quoted(PartnerCodeOf(i)) +
                  ",10,1," + std::to_string(310 + 70 * i) + ");";
  }
  return statements;
}

/// A busy day: the store's next orders and receipts pass the four digits of a number.
std::string BusyStore(int store) {
  std::string statements;
  for (const auto& [header, lines, kind] :
       {std::array{"PEM22", "PSM22", "22"}, std::array{"PEM23", "PSM23", "23"}}) {
    const std::string key = "CONCAT(DATE_FORMAT(NOW(),'%Y%m%d')," + Quoted(StoreCodeOf(store)) +
                            ",'zzz'," + Quoted(kind) + ",'9985')";
    statements += std::string("INSERT INTO ") + header +
                  " (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE) VALUES (" + key +
                  ",'8','2026-01-01',NOW()," + Quoted(StoreCodeOf(store)) + ",'');INSERT INTO " +
                  lines + " (PE_ID,PS_NO,PS_DATE,PR_CODE) VALUES (" + key + ",1,'2026-01-01','');";
  }
  return statements;
}

}  // namespace

void FillFranchise(DbClient& db, int stores) {
  Must(db, kSettings);
  for (const int store : kBusyStores) Must(db, BusyStore(store));
  Must(db, Triggers());
  Must(db, Products());
  for (int i = 0; i < stores; ++i) Must(db, Store(i));
}

void MoveOrders(DbClient& db, const std::string& store, int count) {
  const std::string limit = " LIMIT " + std::to_string(count);
  // Where a clerk holds the rows head office comes back later.
  db.Run("UPDATE PEM22 SET PE_CK='2' WHERE PE_FCTCODE='" + store + "' AND PE_CK='1'" + limit);
  db.Run("UPDATE PEM22 h JOIN (SELECT PE_ID FROM PEM22 WHERE PE_FCTCODE='" + store +
         "' AND PE_CK='2'" + limit +
         ") s ON s.PE_ID=h.PE_ID JOIN PSM22 l ON l.PE_ID=h.PE_ID "
         "SET h.PE_CK='3', l.PS_EQTY=l.PS_SQTY");
}

}  // namespace store
