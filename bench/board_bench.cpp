// The board with ten thousand slips, from the press of the key to what stands on the screen.
#include <cstdio>

#include "basics/dates.h"
#include "bench/asked_selects.h"
#include "bench/benches.h"
#include "bench/client_library.h"
#include "bench/desk_hand.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "forms/open_forms.h"

namespace store {
namespace {

constexpr int kRounds = 9;

/// Slips of the last days with five lines each.
void InsertSlips(ClientLibrary& client) {
  client.Run(
      "INSERT INTO PEM22 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,"
      "PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_LINK) SELECT CONCAT(DATE_FORMAT(NOW(),'%Y%m%d'),"
      "'1001b0122',LPAD(seq,5,'0')),seq%4,DATE_FORMAT(NOW()-INTERVAL seq%25 DAY,'%Y-%m-%d'),NOW(),"
      "'1001','성수역점',CT_CODE,CT_NAME,seq*10,seq,seq*11,'' FROM seq_1_to_10000 JOIN CT ON "
      "CT_CODE=10001+seq%40");
  client.Run(
      "INSERT INTO PSM22 (PE_ID,PS_NO,PS_DATE,PR_CODE,PR_NAME,PS_SQTY) SELECT PE_ID,seq,PE_PDATE,"
      "'1000001','상품',1 FROM PEM22,seq_1_to_5 WHERE PE_ID LIKE '%1001b0122%'");
}

/// The notices' SELECT and the slips'.
std::vector<std::string> BoardSelects(int port, const std::function<void()>& refresh) {
  std::vector<std::string> asked = SelectsOf(port, refresh);
  std::erase_if(asked, [](const std::string& select) {
    return select.find("FROM NOTICE") == std::string::npos &&
           select.find("FROM (PEM22") == std::string::npos;
  });
  return asked;
}

}  // namespace

void BenchBoard(BenchServer& server, RatioTable& table) {
  ClientLibrary client(server.Port());
  InsertSlips(client);
  DeskHand hand("frm_Start", "FLEX1");
  auto& board = dynamic_cast<frm_Start&>(*TheForm("frm_Start"));
  board.DTOrderDate[0].SetValue(FormatDateValue(AddDays(Today(), -30), "YYYY-MM-DD"));
  const auto refresh = [&] {
    hand.Press(Qt::Key_F5);
    hand.Draw();
  };
  refresh();
  const std::vector<std::string> selects = BoardSelects(server.Port(), refresh);
  table.AddTimes("board refreshed and drawn, against its two SELECTs",
                 MeasureBoth(kRounds, refresh,
                             [&] {
                               for (const std::string& select : selects) client.ReadAll(select);
                             }),
                 1.5);
  std::printf("  %d slips, %zu SELECTs\n", board.FLEX1.Rows() - 1, selects.size());
  ClearDesk();
}

}  // namespace store
