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
  for (const Store& store : franchise.Stores) {
    stores.Row(store.Code, store.Name, store.Owner, store.BusinessNo, store.Address, store.Address2,
               store.Kind, store.PriceLevel);
    details.Row(store.Code, store.Phone);
    for (const Depot& depot : store.Depots) {
      depots.Row(store.Code, depot.Code, depot.Name, &depot == &store.Depots.front() ? '1' : '0');
    }
    for (const Staff& user : store.Users) {
      staff.Row(user.Code, user.Password, user.Name, user.Phone, store.Code,
                std::to_string(user.Level));
      persons.Row(user.Code, user.Name, user.Phone);
    }
  }
}

void WritePartners(std::ostream& out, const Franchise& franchise) {
  TableWriter partners(out, "CT",
                       "CT_CODE,CT_NAME,CT_JUMIN,CT_PHONE,CT_FAX,CT_MAIL,CT_ZIP,CT_ADDR1,CT_ADDR2,"
                       "CT_DANCK,CT_DANLV,CT_GUBUN");
  TableWriter details(out, "CTCOM",
                      "CT_CODE,CT_CEO,CT_CEOPHONE,CT_TMAN,CT_TPHONE,CT_TMAIL,CT_LEVEL2,GP_CODE");
  for (const Partner& partner : franchise.Partners) {
    partners.Row(partner.Code, partner.Name, partner.BusinessNo, partner.Phone, partner.Fax,
                 partner.Mail, partner.Zip, partner.Address, partner.Address2, partner.PricePolicy,
                 partner.PriceLevel, partner.Kind);
    details.Row(partner.Code, partner.Owner, partner.OwnerPhone, partner.Contact,
                partner.ContactPhone, partner.ContactMail, partner.OrderLevel, partner.Group);
  }
}

std::int64_t MarginPercent(const Product& product) {
  if (product.Sell == 0) return 0;
  return (product.Sell - product.Buy) * 100 / product.Sell;
}

void WriteProducts(std::ostream& out, const Franchise& franchise) {
  {
    TableWriter kinds(out, "KIND", "KD_ID,KD_NAME,KD_LVL");
    for (const Kind& kind : franchise.Kinds) {
      kinds.Row(kind.Id, kind.Name, std::to_string(kind.Level));
    }
  }
  TableWriter products(
      out, "PR",
      "PR_CODE,PR_NAME,KD_ID,PR_GU,PR_PTNO,PR_DATE,PR_BCODE,PR_STD,PR_UNT,PR_MIN,PR_END,PR_TAX,"
      "PR_TAX2,PR_VM,PR_BCTCODE,PR_OP0,PR_OP1,PR_OP2,PR_MARGIN");
  for (const Product& product : franchise.Products) {
    products.Row(product.Code, product.Name, product.KindId, '0', product.PartNo, product.EntryDate,
                 product.Barcode, product.Standard, product.Unit, product.Minimum,
                 product.Ended ? '1' : '0', product.Tax, product.Tax, '0',
                 franchise.Partners[product.Partner].Code, product.Buy, product.Sell,
                 product.Consumer, MarginPercent(product));
  }
}

void WriteLevelPrices(std::ostream& out, const Franchise& franchise) {
  std::string columns = "RCT_CODE,PR_CODE,DP_GUBUN";
  for (std::size_t level = 1; level <= kPriceLevels; ++level) {
    columns += ",DP" + std::to_string(level);
  }
  TableWriter writer(out, "UP", columns);
  for (const LevelPrice& row : franchise.LevelPrices) {
    writer.BeginRow();
    writer.Add(franchise.Stores[row.Store].Code);
    writer.Add(franchise.Products[row.Product].Code);
    writer.Add(row.Side);
    for (const Won price : row.Prices) writer.Add(price);
    writer.EndRow();
  }
}

void WriteContracts(std::ostream& out, const Franchise& franchise) {
  TableWriter partners(out, "CTP", "CT_CODE,RCT_CODE,PR_CODE,CTP_GU,CTP_UP,CTP_FDATE,CTP_TDATE");
  for (const PartnerContract& row : franchise.Contracts) {
    partners.Row(franchise.Partners[row.Partner].Code, franchise.Stores[row.Store].Code,
                 franchise.Products[row.Product].Code, row.Term.Level, row.Term.Price,
                 row.Term.From, row.Term.To);
  }
  TableWriter stores(out, "RCTP", "RCT_CODE,PR_CODE,CTP_GU,CTP_UP,CTP_FDATE,CTP_TDATE");
  for (const StoreContract& row : franchise.StoreContracts) {
    stores.Row(franchise.Stores[row.Store].Code, franchise.Products[row.Product].Code,
               row.Term.Level, row.Term.Price, row.Term.From, row.Term.To);
  }
}

void WriteSettings(std::ostream& out, const Franchise& franchise) {
  TableWriter settings(out, "SAFEIV", "RCT_CODE,PR_CODE,CT_CODE,SAFE_QTY,ORD_QTY,ORD_UP");
  for (const OrderSetting& row : franchise.Settings) {
    const Product& product = franchise.Products[row.Product];
    settings.Row(franchise.Stores[row.Store].Code, product.Code,
                 row.WithPartner ? franchise.Partners[product.Partner].Code : std::string(),
                 row.Safety, row.Unit, row.Price);
  }
  TableWriter codes(out, "BAS", "BAS_CODE,BAS_NAME1,BAS_NAME2,BAS_OP1,BAS_OP2,BAS_OP3,BAS_OP4");
  for (const BaseCode& row : franchise.BaseCodes) {
    codes.Row(row.Code, row.Name1, row.Name2, row.Op1, row.Op2, row.Op3, row.Op4);
  }
}

// The tables know no store yet: opening a store adds its column to the notices.
std::string AddStoreColumns(std::ostream& out, const std::vector<Store>& stores) {
  std::string columns = "NID";
  for (const Store& store : stores) {
    columns += ",CID_" + store.Code;
    out << "ALTER TABLE SETCONFIGNOTICE ADD COLUMN CID_" << store.Code
        << " CHAR(1) NOT NULL DEFAULT 'F';\n";
  }
  return columns;
}

void WriteNotices(std::ostream& out, const Franchise& franchise) {
  TableWriter marks(out, "SETCONFIGNOTICE", AddStoreColumns(out, franchise.Stores));
  TableWriter notices(out, "NOTICE", "NID,SUBJECT,WDAY,content");
  std::size_t number = 0;
  for (const Notice& notice : franchise.Notices) {
    notices.Row(++number, notice.Subject, notice.Moment, notice.Body);
    marks.BeginRow();
    marks.Add(number);
    for (const bool isFor : notice.ForStore) marks.Add(isFor ? 'T' : 'F');
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
