#include "lookup/frmPrint.h"

#include <filesystem>

#include "forms/host.h"
#include "lookup/new_document.h"

namespace store {

frmPrint::frmPrint() : Form("frmPrint") {
  Publish("Command1", Command1);
  Publish("Command2", Command2);
  Publish("Command3", Command3);
  Publish("LaSheet", LaSheet);
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Close(); };
  TabOrder = {&Command1, &Command2, &Command3};
}

void frmPrint::Load() { Caption = Document.Title + " 인쇄"; }

bool frmPrint::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  Close();
  return true;
}

void frmPrint::Command1_Click() {
  LaSheet.Caption.clear();
  switch (Host.Print(Document)) {
    case PrintFate::Printed:
      LaSheet.Caption = "프린터로 보냈습니다.";
      break;
    case PrintFate::Failed:
      Host.MsgBox("인쇄하지 못했습니다.\r프린터를 확인하고 다시 하세요.", box::Critical, "인쇄");
      break;
    case PrintFate::Cancelled:
      break;
  }
}

void frmPrint::Command2_Click() {
  LaSheet.Caption.clear();
  bool written = false;
  {
    const Hourglass waiting;
    const std::string path = NewDocument(Document.Title + "_" + Document.Key, ".pdf");
    written = !path.empty() && Host.WritePdf(Document, path);
    if (written) LaSheet.Caption = "PDF 저장: " + path;
    std::error_code ignored;
    if (!written && !path.empty()) std::filesystem::remove(path, ignored);
  }
  if (!written) {
    Host.MsgBox("PDF 파일을 만들지 못했습니다.\r문서 폴더에 쓸 자리가 있는지 확인하세요.",
                box::Critical, "PDF 저장");
  }
}

}  // namespace store
