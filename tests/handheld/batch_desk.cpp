#include "tests/handheld/batch_desk.h"

#include "gateway/splice.h"
#include "handheld/handheld_forms.h"

namespace store {

void BatchDesk::Stage(const Staged& row, const std::string& module, const std::string& mark) {
  Sql(
      Splice("INSERT INTO DT900 VALUES ('{id}','{id}',1,'2024-05-17','','{tax}','{product}',"
             "'품명 {product}','규격','박스',{quantity},0,{price},'0',0,'','','{mark}','u01','',"
             "'{partner}','{name}','김검품','{module}','')",
             "id"_a = row.Id, "tax"_a = row.Mark, "product"_a = row.Product,
             "quantity"_a = row.Quantity, "price"_a = row.Price, "mark"_a = mark,
             "partner"_a = row.Partner, "name"_a = row.PartnerName, "module"_a = module));
}

FRM_DT900_01& BatchDesk::Open(const std::string& module, const std::string& mark) {
  RegisterHandheldForms();
  auto* form = dynamic_cast<FRM_DT900_01*>(TheForm("FRM_DT900_01"));
  form->ModuleCode = module;
  form->ReturnMark = mark;
  Host.Show(*form);
  return *form;
}

void BatchDesk::Tick(int row, bool ticked) {
  // As the window puts it in.
  Batch().FLEX.SetTextMatrix(row, staged::Tick, ticked ? "-1" : "0");
  Batch().FLEX_AfterEdit(row, staged::Tick);
}

std::string BatchDesk::Left() {
  return Value("SELECT IFNULL(GROUP_CONCAT(PE_ID ORDER BY PE_ID),'') FROM DT900");
}

std::string BatchDesk::Stock(const std::string& product) {
  return Value(
      "SELECT IFNULL(GROUP_CONCAT(CONCAT_WS('/',BSQTY+0e0,INQTY+0e0,OTQTY+0e0) ORDER BY "
      "INQTY,OTQTY),'') FROM IV WHERE RCT_CODE='1001' AND HCT_CODE='100101' AND PR_CODE='" +
      product + "'");
}

}  // namespace store
