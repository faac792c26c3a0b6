#include "ui/drafts_window.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "board/frmDrafts.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr QSize kSize(760, 520);

}  // namespace

DraftsWindow::DraftsWindow(frmDrafts& form) : FormWindow(form) {
  auto* slips = Named("FLEX1", new GridView(form.FLEX1));
  auto* content = Column();
  content->addWidget(ListAndDetails(Titled(HeadingLabel("저장하지 않은 발주와 입고"), slips),
                                    Titled(HeadingLabel("적어 둔 내용"),
                                           Named("FLEX2", new GridView(form.FLEX2)))),
                     1);
  content->addWidget(Foot());
  FillWindow(*this, content);
  BindControls();
  OfferActions(*slips, {ButtonLine("Command1"), ButtonLine("Command2")});
  Layout().OpenAs(kSize, 0.7);
}

QWidget* DraftsWindow::Foot() {
  auto* goOn = Named("Command1", new KeyButton);
  goOn->WriteKey("Enter");
  goOn->MarkMain();
  auto* row = Row();
  row->addWidget(Named("Command2", new KeyButton({}, QKeySequence(Qt::CTRL | Qt::Key_Delete))));
  row->addStretch();
  row->addWidget(goOn);
  row->addWidget(Named("Command3", new KeyButton({}, Qt::Key_Escape)));
  return Group("totals", row);
}

}  // namespace store
