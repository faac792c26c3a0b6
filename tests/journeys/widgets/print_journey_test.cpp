// A slip of the real database on paper, read back from the PDF that it became.
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdio>

#include "forms/host.h"
#include "tests/journeys/widgets/journey.h"
#include "tests/journeys/widgets/journey_checks.h"

namespace store {
namespace {

constexpr int kLines = 90;
const std::string kSlip = "202601051001u01220077";

/// What a program of the desktop says of a file.
std::string Said(const std::string& command) {
  std::string text;
  FILE* pipe = popen(command.c_str(), "r");
  for (int letter = fgetc(pipe); letter != EOF; letter = fgetc(pipe)) text += char(letter);
  EXPECT_EQ(pclose(pipe), 0) << command;
  return text;
}

/// An order with so many lines that it takes three pages, of which one name takes two lines.
void StoreLongOrder() {
  DemoSql("DELETE FROM PEM22 WHERE PE_ID='" + kSlip + "'");
  DemoSql(
      "INSERT INTO PEM22 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,"
      "PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_LINK) VALUES ('" +
      kSlip +
      "','0',DATE_FORMAT(NOW(),'%Y-%m-%d'),NOW(),'1001','서울점','10006','참나무커피',0,0,0,' ')");
  DemoSql(
      "SET @n := 0; INSERT INTO PSM22 (PE_ID,PS_NO,PS_DATE,PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT,"
      "PS_SQTY,PS_UP,PS_AMT,PS_TAX,PS_HCTNAME) SELECT '" +
      kSlip +
      "',@n := @n + 1,DATE_FORMAT(NOW(),'%Y-%m-%d'),PR_CODE,IF(@n = 2,REPEAT('긴이름의품목',8),"
      "PR_NAME),PR_STD,'0',PR_UNT,@n + 1000,@n * 10,(@n + 1000) * @n * 10,(@n + 1000) * @n,'매장' "
      "FROM (SELECT * FROM PR WHERE PR_BCODE <> '' ORDER BY PR_CODE LIMIT " +
      std::to_string(kLines) + ") P");
  DemoSql("UPDATE PEM22 SET PE_AMT=(SELECT SUM(PS_AMT) FROM PSM22 WHERE PE_ID='" + kSlip +
          "'),PE_TAX=PE_AMT/10,PE_TOT=PE_AMT+PE_TAX WHERE PE_ID='" + kSlip + "'");
}

class PrintJourney : public Journey {
 protected:
  void SetUp() override {
    Journey::SetUp();
    StoreLongOrder();
    Host.DocumentsFolder = documents_.path().toStdString();
  }
  void TearDown() override {
    DemoSql("DELETE FROM PEM22 WHERE PE_ID='" + kSlip + "'");
    Journey::TearDown();
  }
  std::string File(const std::string& name) const {
    return "'" + documents_.filePath(QString::fromStdString(name)).toStdString() + "'";
  }

  QTemporaryDir documents_;
};

TEST_F(PrintJourney, ASlipOfThreePagesIsInThePdfWholeAndInOrder) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  WalkTo(kSlip);
  const std::string pdf = "발주서_" + kSlip + ".pdf";
  hands.See("frmPrint", [&](FormWindow& preview) {
    EXPECT_TRUE(Hands::Wait([&] { return Hands::TextOf(preview, "Page") == "1 / 3"; }));
    Hands::Press(preview, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Hands::TextOf(preview, "Page"), "2 / 3");
    Hands::Press(preview, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Hands::TextOf(preview, "LaSheet"),
              "PDF 저장: " + documents_.filePath(QString::fromStdString(pdf)).toStdString());
    Hands::Press(preview, Qt::Key_Escape);
  });
  Hands::Press(Board(), Qt::Key_P, Qt::ControlModifier);
  ASSERT_TRUE(hands.AllDone());

  const QString text = QString::fromStdString(Said("pdftotext -layout " + File(pdf) + " -"));
  // One line of the paper for each of the slip, numbered on, each with its own barcode and figures.
  std::vector<std::vector<std::string>> found;
  const QRegularExpression lineOfSlip(
      R"(^\s*(\d+)\s+(\d{8,13})\s.*\s([\d,]+)\s+([\d,]+)\s+([\d,]+)\s+([\d,]+)\s*$)",
      QRegularExpression::MultilineOption);
  for (auto at = lineOfSlip.globalMatch(text); at.hasNext();) {
    const QStringList words = at.next().capturedTexts().mid(1);
    auto& row = found.emplace_back();
    for (const QString& word : words) row.push_back(word.toStdString());
  }
  EXPECT_EQ(found,
            DemoRows("SELECT PS_NO,PR_BCODE,FORMAT(PS_SQTY,0),FORMAT(PS_UP,0),FORMAT(PS_AMT,0),"
                     "FORMAT(PS_TAX,0) FROM PSM22 L JOIN PR ON PR.PR_CODE=L.PR_CODE WHERE PE_ID='" +
                     kSlip + "' ORDER BY PS_NO"));
  for (const char* sum : {"PE_AMT", "PE_TAX", "PE_TOT"}) {
    const std::string total = DemoValue(std::string("SELECT FORMAT(") + sum +
                                        ",0) FROM PEM22 WHERE PE_ID='" + kSlip + "'");
    EXPECT_EQ(text.count(QString::fromStdString(total)), 1) << sum << " " << total;
  }
  // In the order of drawing a text that goes on in a second line stays together.
  const QString drawn = QString::fromStdString(Said("pdftotext -raw " + File(pdf) + " -"));
  for (int page = 1; page <= 3; ++page) {
    const QRegularExpression number(QString(R"(\b%1 / 3$)").arg(page),
                                    QRegularExpression::MultilineOption);
    EXPECT_EQ(drawn.count(number), 1) << page;
  }
  EXPECT_EQ(drawn.count(QString::fromStdString(kSlip)), 4) << "by each barcode, and in the head";
  EXPECT_EQ(drawn.simplified().remove(' ').count("긴이름의품목"), 8) << "a long name goes on";
  EXPECT_TRUE(drawn.contains("참나무커피 (10006)")) << drawn.toStdString();
}

TEST_F(PrintJourney, AnOrderAndAReceiptPrintWhatIsStored) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  const auto print = [&](FormWindow& window, const char* title) {
    hands.See("frmPrint", [title](FormWindow& preview) {
      EXPECT_EQ(preview.windowTitle().toStdString(), title);
      Hands::Press(preview, Qt::Key_Escape);
    });
    Hands::Press(window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(hands.AllDone()) << hands.NextAnnounced().toStdString();
  };
  WalkTo(kSlip);
  Hands::Press(Board(), Qt::Key_Return);
  print(Order(), "발주서 인쇄");
  Hands::Press(Order(), Qt::Key_Delete);
  hands.AnswerBox("저장하지 않은 내용은 인쇄되지 않습니다.", Qt::Key_N);
  Hands::Press(Order(), Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(hands.AllDone());
  hands.AnswerBox("저장하지 않은 내용은 인쇄되지 않습니다.", Qt::Key_Y);
  print(Order(), "발주서 인쇄");
  Hands::Press(Order(), Qt::Key_Escape);
  Hands::Press(Board(), Qt::Key_F2);
  hands.AnswerBox("저장한 전표만 인쇄할 수 있습니다.", Qt::Key_Return);
  Hands::Press(Order(), Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(hands.AllDone());
  Hands::Press(Order(), Qt::Key_Escape);

  DemoSql("UPDATE PEM22 SET PE_CK='3' WHERE PE_ID='" + kSlip + "'");
  Hands::Press(Board(), Qt::Key_F5);
  WalkTo(kSlip);
  hands.WorkIn("frm_PE_UNIT", [&](FormWindow& receipt) {
    print(receipt, "발주서 인쇄");
    Hands::Press(receipt, Qt::Key_Escape);
  });
  Hands::Press(Board(), Qt::Key_Return);
  EXPECT_TRUE(hands.AllDone());
}

TEST_F(PrintJourney, ThePdfHoldsItsLettersAndABarcodeThatAScannerReads) {
  PrintedDocument document{.Title = "발주서", .Key = kSlip, .Columns = {{.Header = "품명"}}};
  document.Rows = {{"맑은생수"}};
  document.Totals = {{"건수", "1"}};
  const std::string pdf = documents_.filePath("slip.pdf").toStdString();
  ASSERT_TRUE(Host.WritePdf(document, pdf));
  const std::string fonts = Said("pdffonts '" + pdf + "'");
  EXPECT_NE(fonts.find("NanumBarunGothic"), std::string::npos) << fonts;
  const QRegularExpression notEmbedded(R"(Identity-H\s+no)");
  EXPECT_FALSE(QString::fromStdString(fonts).contains(notEmbedded)) << fonts;
  Said("pdftoppm -r 200 -gray '" + pdf + "' '" + documents_.filePath("page").toStdString() + "'");
  EXPECT_EQ(Said("zbarimg --nodbus -q --raw " + File("page-1.pgm")), kSlip + "\n");
  EXPECT_FALSE(Host.WritePdf(document, "/nowhere/slip.pdf"));
}

}  // namespace
}  // namespace store
