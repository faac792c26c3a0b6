#include "ui/deleted_window.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "board/frmDeleted.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr QSize kSize(860, 520);

}  // namespace

DeletedWindow::DeletedWindow(frmDeleted& form) : FormWindow(form) {
  auto* slips = Named("FLEX1", new GridView(form.FLEX1));
  auto* content = Column();
  content->addWidget(
      ListAndDetails(Titled(HeadingLabel("오늘 삭제한 발주 (내일은 되살릴 수 없습니다)"), slips),
                     Titled(HeadingLabel("전표 내용"), Named("FLEX2", new GridView(form.FLEX2)))),
      1);
  content->addWidget(Foot());
  FillWindow(*this, content);
  BindControls();
  OfferActions(*slips, {ButtonLine("Command1")});
  Layout().OpenAs(kSize, 0.7);
}

QWidget* DeletedWindow::Foot() {
  auto* restore = Named("Command1", new KeyButton);
  restore->WriteKey("Enter");
  restore->MarkMain();
  auto* row = Row();
  row->addStretch();
  row->addWidget(restore);
  row->addWidget(Named("Command3", new KeyButton({}, Qt::Key_Escape)));
  return Group("totals", row);
}

}  // namespace store
