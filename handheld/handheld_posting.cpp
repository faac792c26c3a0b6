#include "handheld/handheld_posting.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

#include "basics/numbers.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/posted_lines.h"
#include "slips/slip_keys.h"
#include "slips/slip_statements.h"
#include "slips/stock_balance.h"

namespace store {
namespace {

constexpr int kTerminalColumn = 20;  // of the lines, to PS_TMID
constexpr int kMirrorTerminalColumn = 21;

HeadFields FieldsOf(const HandheldSlip& slip) {
  return {slip.HandheldHeader, head::Supply, head::Discount};
}

std::string HeaderStatement(const HeadFields& fields, const std::string& table) {
  return Splice(
      " INSERT INTO {table} ( PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,"
      "PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_MISU,PE_EC,PE_DC,PE_PAYGU,PE_ACCK,PE_TMAN,PE_MEMO,"
      "ST_CODE,PE_PRJ,PE_LINK) VALUES  ('{H0}','{H1}','{H2}','{H3}',  '{H4}','{H5}','{H6}',"
      "'{H7}',    {H8} ,{H9} ,{H10} ,{H11} ,{H12} ,{H13} ,  '{H14}' ,'{H15}' ,'{H16}' ,  "
      "'{H17}','{H18}','{H19}','{H20}')",
      fields, "table"_a = table);
}

/// The receiving store's side of a shipment. The columns of the two parties are swapped, their
/// values are not; the state "0" waits for that store.
std::string MirrorHeaderStatement(const HeadFields& fields, const std::string& key) {
  return Splice(
      " INSERT INTO PES23 ( PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_TCTCODE,PE_TCTNAME,PE_FCTCODE,"
      "PE_FCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_MISU,PE_EC,PE_DC,PE_PAYGU,PE_ACCK,PE_TMAN,PE_MEMO,"
      "ST_CODE,PE_PRJ,PE_LINK) VALUES  ('{key}','0','{H2}','{H3}',  '{H4}','{H5}','{H6}',"
      "'{H7}',    {H8} ,{H9} ,{H10} ,{H11} ,{H12} ,{H13} ,  '{H14}' ,'{H15}' ,'{H16}' ,  "
      "'{H17}','{H18}','{H19}','{H20}')",
      fields, "key"_a = key);
}

std::string DepotStatement(const std::string& store) {
  return Splice(
      " SELECT HCT_CODE,HCT_NAME FROM HCT WHERE RCT_CODE = '{store}' ORDER BY HCT_BAS DESC ",
      "store"_a = store);
}

/// The two dates stand the other way round from the other slips: ME_PDATE is today, ME_SDATE the
/// date that was chosen.
std::string SurveyStatement(const HeadFields& fields) {
  return Splice(
      "insert into ME (ME_ID, ME_CK, ME_GU, ME_IO, ME_PDATE, ME_SDATE, ME_FCTCODE, ME_FCTNAME, "
      "ME_TCTCODE,ME_TCTNAME, ME_AMT, ME_TAX, ME_TOT, ME_TMAN, ST_CODE, ME_PRJ, ME_LINK, ME_MEMO) "
      "values ('{H0}','1','82','I','{H3}','{H2}','{H4}','{H5}','','',   {H8} ,{H9} ,{H10},"
      "'{H16}','{H18}','','','{H17}' )",
      fields);
}

std::string SurveyLineStatement(const HeadFields& head, const LineFields& line, int number) {
  return Splice(
      " insert into MS (ME_ID,MS_NO,  MS_DATE, PR_CODE, PR_NAME, PR_STD, PS_TAXGU, PS_UNT, "
      "PS_SQTY, PS_EQTY, PS_COST, PS_UP, PS_AMT, PS_TAX, ST_CODE, PS_TYPE, PS_MEMO, PS_HCTCODE, "
      "PS_HCTNAME) values('{H0}',{n},'{H3}','{L3}','{L4}','{L5}','{L6}','{L7}',     "
      "{L8},{L9},{L10},{L11},{L12},{L13},'{L14}','{L15}','{L16}','{L17}','{L18}' )",
      head, line, "n"_a = std::to_string(number));
}

struct Depot {
  std::string Code;
  std::string Name;
};

/// The default depot of a store, else its first; empty when it has none. Nothing when that cannot
/// be read: the goods would arrive nowhere.
std::optional<Depot> ReceivingDepot(const std::string& store) {
  const RecordsetSlot depots = FetchRecordset(DepotStatement(store));
  if (!depots) return std::nullopt;
  return depots->Eof() ? Depot() : Depot{FieldText(depots, 0), FieldText(depots, 1)};
}

StringTable MirrorLines(StringTable lines, const std::string& key, const Depot& depot) {
  for (int row = 1; row <= lines.LastRow(); ++row) {
    lines.Set(row, line::Id, key);
    lines.Set(row, line::DepotCode, depot.Code);
    lines.Set(row, line::DepotName, depot.Name);
  }
  return lines;
}

/// The lines of a survey whose count differs from the stock on file.
std::vector<LineFields> AdjustedLines(const StringTable& lines) {
  const std::vector<LineFields> all = LinesOf(lines);
  std::vector<LineFields> adjusted;
  std::copy_if(all.begin(), all.end(), std::back_inserter(adjusted), [](const LineFields& fields) {
    return !fields.Field(line::TaxKind).empty() && ParseNumber(fields.Field(line::Quantity)) != 0;
  });
  return adjusted;
}

std::string SlipTraceStatement(const HeadFields& fields, const std::string& table) {
  return Splice(
      "SELECT PE_ID FROM {table} WHERE PE_ID = '{H0}' AND PE_TCTCODE = '{H6}' AND PE_TOT = {H10}",
      fields, "table"_a = table);
}

std::string SurveyTraceStatement(const HeadFields& fields) {
  return Splice("SELECT ME_ID FROM ME WHERE ME_ID = '{H0}' AND ME_TOT = {H10}", fields);
}

}  // namespace

std::string SlipTrace(const HandheldSlip& slip, const std::string& moduleCode) {
  const HeadFields head = FieldsOf(slip);
  if (moduleCode == handheld_module::Survey) return SurveyTraceStatement(head);
  if (moduleCode == handheld_module::Shipment) return SlipTraceStatement(head, "PEM13");
  return SlipTraceStatement(head, moduleCode == handheld_module::Sale ? "PES13" : "PEM23");
}

bool PE_DT900R(const HandheldSlip& slip, const std::string& moduleCode) {
  const bool out = moduleCode == handheld_module::Sale;
  if (!out && moduleCode != handheld_module::Purchase) {
    Host.MsgBox("모듈이 지정되지 않았습니다.", box::Plain, "");
    return false;
  }
  const HeadFields head = FieldsOf(slip);
  AddToBatch(HeaderStatement(head, out ? "PES13" : "PEM23"));
  AddPostedLines(slip.HandheldLines, out ? "PSS13" : "PSM23", kTerminalColumn);
  AddMovement(head, LinesOf(slip.HandheldLines),
              {.StockColumn = out ? "OTQTY" : "INQTY", .BalanceColumn = out ? "CM_M13" : "CM_M23"});
  return true;
}

bool PostStoreShipment(const HandheldSlip& slip) {
  StartBatch();
  const std::string mirrorKey = NextSlipId("PES23");
  if (!IsWholeKey(mirrorKey)) return false;
  const HeadFields head = FieldsOf(slip);
  const std::optional<Depot> depot = ReceivingDepot(head.Field(head::ToCode));
  if (!depot) return false;
  AddToBatch(HeaderStatement(head, "PEM13"));
  AddPostedLines(slip.HandheldLines, "PSM13", kTerminalColumn);
  AddMovement(head, LinesOf(slip.HandheldLines),
              {.StockColumn = "OTQTY", .BalanceColumn = "CM_M13", .PartyKind = "R"});
  AddToBatch(MirrorHeaderStatement(head, mirrorKey));
  AddPostedLines(MirrorLines(slip.HandheldLines, mirrorKey, *depot), "PSS23",
                 kMirrorTerminalColumn);
  return true;
}

bool PostStockSurvey(const HandheldSlip& slip) {
  const HeadFields head = FieldsOf(slip);
  const std::vector<LineFields> adjusted = AdjustedLines(slip.HandheldLines);
  AddToBatch(SurveyStatement(head));
  int number = 0;
  for (const LineFields& fields : adjusted) {
    AddToBatch(SurveyLineStatement(head, fields, ++number));
  }
  AddMovement(head, adjusted, {.StockColumn = "INQTY", .BalanceColumn = ""});
  return true;
}

}  // namespace store
