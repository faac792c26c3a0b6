// Slips on paper: what stands on it, and what is never printed.
#include "lookup/print_slip.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "lookup/frmPrint.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

const std::string kEditing = "202405171001u01220001";
const std::string kApproved = "202405161001u01220003";
const std::string kReceived = "202405101001u01220005";
const std::string kReceipt = "202405121001u01230001";

std::string Joined(const std::vector<std::string>& cells) {
  std::string text;
  for (const std::string& cell : cells) text += (text.empty() ? "" : "|") + cell;
  return text;
}

std::string Joined(const std::vector<PrintedDocument::Captioned>& captioned) {
  std::string text;
  for (const auto& [caption, value] : captioned) text += caption + "=" + value + ";";
  return text;
}

class PrintSlipTest : public SmallStoreTest {
 protected:
  /// The document that a person is shown; one without a title when none is.
  PrintedDocument Printed(const std::string& orderId) {
    PrintedDocument document;
    host.OnModal("frmPrint", [&](Form& form) { document = static_cast<frmPrint&>(form).Document; });
    PrintSlip(orderId);
    host.ExpectAllShown();
    return document;
  }
};

TEST_F(PrintSlipTest, AnOrderStandsOnPaperAsItIsStored) {
  const PrintedDocument order = Printed(kApproved);
  EXPECT_EQ(order.Title, "발주서");
  EXPECT_EQ(order.Key, kApproved);
  EXPECT_EQ(Joined(order.Head),
            "전표번호=" + kApproved +
                ";상태=본부승인;발주일자=2024-05-16;저장일시=2024-05-16 09:03:00;"
                "매장=성수역점 (1001);발주처=한빛상사 (C0001);하치장=매장;");
  ASSERT_EQ(order.Rows.size(), 2U);
  EXPECT_EQ(Joined(order.Rows[0]), "1|8801000|맑은생수|2L*6|박스|20|18|700|14,000|1,400");
  EXPECT_EQ(Joined(order.Rows[1]), "2|88010003|콩나물|300g|봉|30|30|300|9,000|0");
  EXPECT_EQ(Joined(order.Totals), "건수=2;공급가액=23,000;부가세액=1,400;합계금액=24,400;");
  EXPECT_EQ(order.Foot, "인쇄 2024-05-17 10:20   김하나");
  // Before the approval nothing is said of what is shipped.
  EXPECT_EQ(Joined(Printed(kEditing).Rows.at(1)), "2|88010001|국산쌀|10kg|포|1|5,000|5,000|0");
}

TEST_F(PrintSlipTest, AnOrderThatWasReceivedIsItsReceipt) {
  Sql("UPDATE PSM23 SET PS_SQTY=9,PS_AMT=4320,PS_TAX=432 WHERE PE_ID='" + kReceipt + "'");
  const PrintedDocument receipt = Printed(kReceived);
  EXPECT_EQ(receipt.Title, "입고전표");
  EXPECT_EQ(receipt.Key, kReceipt);
  EXPECT_EQ(receipt.Head.back(), PrintedDocument::Captioned("발주번호", kReceived));
  EXPECT_EQ(receipt.Head.at(2), PrintedDocument::Captioned("입고일자", "2024-05-12"));
  ASSERT_EQ(receipt.Rows.size(), 1U);
  EXPECT_EQ(Joined(receipt.Rows[0]), "1|8801000|맑은생수|2L*6|박스|10|9|480|4,320|432");
  host.ExpectBox("아직 입고하지 않은 전표입니다.");
  PrintReceipt(kApproved);
}

TEST_F(PrintSlipTest, WhatIsNotThereWholeIsToldAndNotPrinted) {
  host.ExpectBox("인쇄할 전표를 먼저 고르세요.");
  PrintSlip("");
  host.ExpectBox("전표가 없습니다. 다른 곳에서 삭제되었을 수 있습니다.");
  PrintSlip("202405171001u01229999");
  Sql("DELETE FROM PSM22 WHERE PE_ID='" + kEditing + "'; DELETE FROM PEM23");
  host.ExpectBox("품목이 없는 전표라 인쇄하지 않았습니다.");
  PrintSlip(kEditing);
  host.ExpectBox("전표번호 " + kReceipt);
  PrintSlip(kReceived);
  Disconnect();
  host.ExpectBox("전표를 읽지 못하여 인쇄하지 않았습니다.");
  PrintSlip(kApproved);
  EXPECT_TRUE(host.FormsShown.empty());
}

TEST_F(PrintSlipTest, APdfIsANewFileAmongTheDocuments) {
  frmPrint preview;
  preview.Document.Title = "발주서";
  preview.Document.Key = "2024/1";
  host.ExpectBox("PDF 파일을 만들지 못했습니다.");
  preview.Command2_Click();
  EXPECT_EQ(preview.LaSheet.Caption, "");
  const std::filesystem::path folder = Host.DocumentsFolder;
  EXPECT_TRUE(std::filesystem::is_empty(folder)) << "nothing is left of it";

  Host.WritePdf = [](const PrintedDocument&, const std::string&) { return true; };
  for (const char* name : {"발주서_2024_1.pdf", "발주서_2024_1_2.pdf"}) {
    preview.Command2_Click();
    EXPECT_EQ(preview.LaSheet.Caption, "PDF 저장: " + (folder / name).string());
    EXPECT_TRUE(std::filesystem::exists(folder / name));
  }
}

}  // namespace
}  // namespace store
