#include <string>
#include <vector>

#include "demo/franchise_sql.h"
#include "demo/sql_writer.h"

namespace store::demo {
namespace {

void WriteStores(std::ostream& out, const Franchise& franchise) {
  TableWriter stores(out, "RCT",
                     "RCT_CODE,RCT_NAME,RCT_CEO,RCT_NO,RCT_SADDR1,RCT_SADDR2,RCT_GUBUN,RCT_DANLV");
  TableWriter details(out, "RCTI", "RCT_CODE,RCTI_CPHONE");
  TableWriter depots(out, "HCT", "RCT_CODE,HCT_CODE,HCT_NAME,HCT_BAS");
  TableWriter staff(out, "ST", "ST_CODE,ST_PWD,ST_NAME,ST_CP,RCT_CODE,ST_ASPLVL");
  TableWriter persons(out, "CTM", "ST_CODE,ST_NAME,ST_CP");
  for (const Store& store : franchise.stores) {
    stores.Row(store.code, store.name, store.owner, store.business_no, store.address,
               store.address2, store.kind, store.price_level);
    details.Row(store.code, store.phone);
    for (const Depot& depot : store.depots) {
      depots.Row(store.code, depot.code, depot.name, &depot == &store.depots.front() ? '1' : '0');
    }
    for (const Staff& user : store.staff) {
      staff.Row(user.code, user.password, user.name, user.phone, store.code,
                std::to_string(user.level));
      persons.Row(user.code, user.name, user.phone);
    }
  }
}

void WritePartners(std::ostream& out, const Franchise& franchise) {
  TableWriter partners(out, "CT",
                       "CT_CODE,CT_NAME,CT_JUMIN,CT_PHONE,CT_FAX,CT_MAIL,CT_ZIP,CT_ADDR1,CT_ADDR2,"
                       "CT_DANCK,CT_DANLV,CT_GUBUN");
  TableWriter details(out, "CTCOM",
                      "CT_CODE,CT_CEO,CT_CEOPHONE,CT_TMAN,CT_TPHONE,CT_TMAIL,CT_LEVEL2,GP_CODE");
  for (const Partner& partner : franchise.partners) {
    partners.Row(partner.code, partner.name, partner.business_no, partner.phone, partner.fax,
                 partner.mail, partner.zip, partner.address, partner.address2, partner.price_policy,
                 partner.price_level, partner.kind);
    details.Row(partner.code, partner.owner, partner.owner_phone, partner.contact,
                partner.contact_phone, partner.contact_mail, partner.order_level, partner.group);
  }
}

std::int64_t MarginPercent(const Product& product) {
  if (product.sell == 0) return 0;
  return (product.sell - product.buy) * 100 / product.sell;
}

void WriteProducts(std::ostream& out, const Franchise& franchise) {
  {
    TableWriter kinds(out, "KIND", "KD_ID,KD_NAME,KD_LVL");
    for (const Kind& kind : franchise.kinds) {
      kinds.Row(kind.id, kind.name, std::to_string(kind.level));
    }
  }
  TableWriter products(
      out, "PR",
      "PR_CODE,PR_NAME,KD_ID,PR_GU,PR_PTNO,PR_DATE,PR_BCODE,PR_STD,PR_UNT,PR_MIN,PR_END,PR_TAX,"
      "PR_TAX2,PR_VM,PR_BCTCODE,PR_OP0,PR_OP1,PR_OP2,PR_MARGIN");
  for (const Product& product : franchise.products) {
    products.Row(product.code, product.name, product.kind_id, '0', product.part_no,
                 product.entry_date, product.barcode, product.standard, product.unit,
                 product.minimum, product.ended ? '1' : '0', product.tax, product.tax, '0',
                 franchise.partners[product.partner].code, product.buy, product.sell,
                 product.consumer, MarginPercent(product));
  }
}

void WriteLevelPrices(std::ostream& out, const Franchise& franchise) {
  std::string columns = "RCT_CODE,PR_CODE,DP_GUBUN";
  for (std::size_t level = 1; level <= kPriceLevels; ++level) {
    columns += ",DP" + std::to_string(level);
  }
  TableWriter writer(out, "UP", columns);
  for (const LevelPrice& row : franchise.level_prices) {
    writer.BeginRow();
    writer.Add(franchise.stores[row.store].code);
    writer.Add(franchise.products[row.product].code);
    writer.Add(row.side);
    for (const Won price : row.prices) writer.Add(price);
    writer.EndRow();
  }
}

void WriteContracts(std::ostream& out, const Franchise& franchise) {
  TableWriter partners(out, "CTP", "CT_CODE,RCT_CODE,PR_CODE,CTP_GU,CTP_UP,CTP_FDATE,CTP_TDATE");
  for (const PartnerContract& row : franchise.contracts) {
    partners.Row(franchise.partners[row.partner].code, franchise.stores[row.store].code,
                 franchise.products[row.product].code, row.term.level, row.term.price,
                 row.term.from, row.term.to);
  }
  TableWriter stores(out, "RCTP", "RCT_CODE,PR_CODE,CTP_GU,CTP_UP,CTP_FDATE,CTP_TDATE");
  for (const StoreContract& row : franchise.store_contracts) {
    stores.Row(franchise.stores[row.store].code, franchise.products[row.product].code,
               row.term.level, row.term.price, row.term.from, row.term.to);
  }
}

void WriteSettings(std::ostream& out, const Franchise& franchise) {
  TableWriter settings(out, "SAFEIV", "RCT_CODE,PR_CODE,CT_CODE,SAFE_QTY,ORD_QTY,ORD_UP");
  for (const OrderSetting& row : franchise.settings) {
    const Product& product = franchise.products[row.product];
    settings.Row(franchise.stores[row.store].code, product.code,
                 row.with_partner ? franchise.partners[product.partner].code : std::string(),
                 row.safety, row.unit, row.price);
  }
  TableWriter codes(out, "BAS", "BAS_CODE,BAS_NAME1,BAS_NAME2,BAS_OP1,BAS_OP2,BAS_OP3,BAS_OP4");
  for (const BaseCode& row : franchise.base_codes) {
    codes.Row(row.code, row.name1, row.name2, row.op1, row.op2, row.op3, row.op4);
  }
}

// The tables know no store yet: opening a store adds its column to the notices.
std::string AddStoreColumns(std::ostream& out, const std::vector<Store>& stores) {
  std::string columns = "NID";
  for (const Store& store : stores) {
    columns += ",CID_" + store.code;
    out << "ALTER TABLE SETCONFIGNOTICE ADD COLUMN CID_" << store.code
        << " CHAR(1) NOT NULL DEFAULT 'F';\n";
  }
  return columns;
}

void WriteNotices(std::ostream& out, const Franchise& franchise) {
  TableWriter marks(out, "SETCONFIGNOTICE", AddStoreColumns(out, franchise.stores));
  TableWriter notices(out, "NOTICE", "NID,SUBJECT,WDAY,content");
  std::size_t number = 0;
  for (const Notice& notice : franchise.notices) {
    notices.Row(++number, notice.subject, notice.moment, notice.body);
    marks.BeginRow();
    marks.Add(number);
    for (const bool is_for : notice.for_store) marks.Add(is_for ? 'T' : 'F');
    marks.EndRow();
  }
}

}  // namespace

void WriteMasters(std::ostream& out, const Franchise& franchise) {
  WriteStores(out, franchise);
  WritePartners(out, franchise);
  WriteProducts(out, franchise);
  WriteLevelPrices(out, franchise);
  WriteContracts(out, franchise);
  WriteSettings(out, franchise);
  WriteNotices(out, franchise);
}

}  // namespace store::demo
