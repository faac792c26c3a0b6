#include "tests/soak/soak_database.h"

#include <cstdio>
#include <cstdlib>

#include "gateway/splice.h"
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

std::string Triggers() {
  // The moment within the transaction, in microseconds.
  const std::string insert =
      "INSERT INTO SOAK_STEP (AT,WHAT,PE_ID,OLD_CK,NEW_CK,OLD_LINK,NEW_LINK,TOKEN) VALUES "
      "(CAST(UNIX_TIMESTAMP(SYSDATE(6)) * 1000000 AS SIGNED)";
  return Splice(
      "CREATE TRIGGER SOAK_I AFTER INSERT ON PEM22 FOR EACH ROW "
      "{insert},'I',NEW.PE_ID,'',NEW.PE_CK,"
      "'',NEW.PE_LINK,'');"
      "CREATE TRIGGER SOAK_D AFTER DELETE ON PEM22 FOR EACH ROW "
      "{insert},'D',OLD.PE_ID,OLD.PE_CK,'',"
      "OLD.PE_LINK,'','');"
      "CREATE TRIGGER SOAK_U AFTER UPDATE ON PEM22 FOR EACH ROW {insert},'U',NEW.PE_ID,OLD.PE_CK,"
      "NEW.PE_CK,OLD.PE_LINK,NEW.PE_LINK,'');"
      "CREATE TRIGGER SOAK_L AFTER INSERT ON PSM22 FOR EACH ROW BEGIN IF NEW.PS_NO = 1 THEN "
      "{insert},'L',NEW.PE_ID,'','','','',CONCAT(NEW.PR_CODE,':',NEW.PS_SQTY+0e0)); END IF; END",
      "insert"_a = insert);
}

std::string Product(int product) {
  return Splice(
      "INSERT INTO PR "
      "(PR_CODE,PR_NAME,KD_ID,PR_BCODE,PR_STD,PR_UNT,PR_TAX,PR_TAX2,PR_BCTCODE,PR_OP0,"
      "PR_OP1,PR_OP2) VALUES ('{code}','상품 {code}','100000000000000','{barcode}','규격','박스',"
      "'{tax}','{tax}','{partner}',{price},{price},{price});"
      "INSERT INTO CTP (CT_CODE,RCT_CODE,PR_CODE,CTP_UP) VALUES "
      "('{partner}','1000','{code}',{price})",
      "code"_a = ProductCodeOf(product), "barcode"_a = BarcodeOf(product),
      "tax"_a = std::to_string(product % 3), "partner"_a = PartnerCodeOf(product),
      "price"_a = std::to_string(300 + 70 * product));
}

std::string Partner(int partner) {
  return Splice(
      "INSERT INTO CT (CT_CODE,CT_NAME,CT_DANCK,CT_DANLV,CT_GUBUN) VALUES ('{code}','공급처 "
      "{code}',"
      "'1','1','0');INSERT INTO CTCOM (CT_CODE,CT_LEVEL2) VALUES ('{code}','0')",
      "code"_a = PartnerCodeOf(partner));
}

std::string Store(int store) {
  return Splice(
      "INSERT INTO RCT (RCT_CODE,RCT_NAME) VALUES ('{code}','{code}호점');"
      "INSERT INTO HCT (RCT_CODE,HCT_CODE,HCT_NAME,HCT_BAS) VALUES "
      "('{code}','H{code}1','매장','1'),"
      "('{code}','H{code}2','창고','0');"
      "ALTER TABLE SETCONFIGNOTICE ADD COLUMN CID_{code} CHAR(1) NOT NULL DEFAULT 'F'",
      "code"_a = StoreCodeOf(store));
}

std::string User(int store, int terminal) {
  return Splice(
      "INSERT INTO ST (ST_CODE,ST_PWD,ST_NAME,RCT_CODE,ST_ASPLVL) VALUES "
      "('{user}','{password}','직원',"
      "'{store}','1')",
      "user"_a = UserCodeOf(store, terminal), "password"_a = kPassword,
      "store"_a = StoreCodeOf(store));
}

std::string OrderSetting(int store, int product) {
  return Splice(
      "INSERT INTO SAFEIV (RCT_CODE,PR_CODE,CT_CODE,SAFE_QTY,ORD_QTY,ORD_UP) VALUES ('{store}',"
      "'{product}','{partner}',10,1,{price})",
      "store"_a = StoreCodeOf(store), "product"_a = ProductCodeOf(product),
      "partner"_a = PartnerCodeOf(product), "price"_a = std::to_string(310 + 70 * product));
}

/// A busy day: the store's next orders and receipts pass the four digits of a number.
std::string BusyStore(int store, const std::string& header, const std::string& lines) {
  return Splice(
      "SET @busy = CONCAT(DATE_FORMAT(NOW(),'%Y%m%d'),'{store}zzz',RIGHT('{header}',2),'9985');"
      "INSERT INTO {header} (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE) VALUES "
      "(@busy,'8','2026-01-01',NOW(),'{store}','');"
      "INSERT INTO {lines} (PE_ID,PS_NO,PS_DATE,PR_CODE) VALUES (@busy,1,'2026-01-01','')",
      "header"_a = header, "lines"_a = lines, "store"_a = StoreCodeOf(store));
}

}  // namespace

void FillFranchise(DbClient& db, int stores) {
  Must(db, kSettings);
  for (const int store : kBusyStores) {
    Must(db, BusyStore(store, "PEM22", "PSM22"));
    Must(db, BusyStore(store, "PEM23", "PSM23"));
  }
  Must(db, Triggers());
  for (int i = 0; i < kPartners; ++i) Must(db, Partner(i));
  for (int i = 0; i < kProducts; ++i) Must(db, Product(i));
  for (int store = 0; store < stores; ++store) {
    Must(db, Store(store));
    for (const int terminal : {0, kTerminals - 1}) Must(db, User(store, terminal));
    for (int i = 0; i < kProducts; ++i) Must(db, OrderSetting(store, i));
  }
}

void MoveOrders(DbClient& db, const std::string& store, int count) {
  const std::string limit = std::to_string(count);
  // Where a clerk holds the rows they come back later.
  db.Run(Splice("UPDATE PEM22 SET PE_CK='2' WHERE PE_FCTCODE='{store}' AND PE_CK='1' LIMIT {limit}",
                "store"_a = store, "limit"_a = limit));
  db.Run(Splice(
      "UPDATE PEM22 h JOIN (SELECT PE_ID FROM PEM22 WHERE PE_FCTCODE='{store}' AND PE_CK='2' LIMIT "
      "{limit}) s ON s.PE_ID=h.PE_ID JOIN PSM22 l ON l.PE_ID=h.PE_ID SET h.PE_CK='3',"
      "l.PS_EQTY=l.PS_SQTY",
      "store"_a = store, "limit"_a = limit));
}

}  // namespace store
