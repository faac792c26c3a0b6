// Nothing that a person types becomes a statement, whatever the box.
#include <set>

#include "board/frm_Start.h"
#include "forms/open_forms.h"
#include "handheld/handheld_forms.h"
#include "lookup/NEW_PR.h"
#include "order/order_form.h"
#include "receipt/frm_PE_UNIT.h"
#include "slips/item_list.h"
#include "start/Main_Start.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

const std::string kMark = "zq7";

/// A statement without its quoted texts.
std::string Bare(const std::string& statement) {
  std::string bare;
  bool quoted = false;
  for (const char c : statement) {
    if (c == '\'') quoted = !quoted;
    if (!quoted) bare += c;
  }
  return bare;
}

/// A clerk who throws one text into whatever box there is. Every box is answered, every window that
/// comes up gets the text as well and is closed.
class HostileText : public SmallStoreTest {
 protected:
  HostileText() {
    RegisterStartForms();
    RegisterBoardForms();
    RegisterOrderForms();
    RegisterReceiptForms();
    RegisterHandheldForms();
    RegisterLookupForms();
    Host.MsgBox = [](const std::string&, int style, const std::string&) {
      return (style & box::YesNo) != 0 ? box::Yes : box::Ok;
    };
    Host.ShowModal = [this](Form& form) {
      form.EnsureLoaded();
      if (form.IsClosed()) return;
      NoteReached();
      form.Activate();
      if (depth_++ == 0) ThrowInto(form);
      --depth_;
      if (!form.IsClosed()) form.Close();
    };
    Host.EndProgram = [] {};
    TestServer().Sql("mysql", "SET GLOBAL log_output = 'TABLE'; SET GLOBAL general_log = ON");
  }
  ~HostileText() override { TestServer().Sql("mysql", "SET GLOBAL general_log = OFF"); }

  /// Opens a form afresh and throws the text into it.
  void ThrowIntoForm(const std::string& name) {
    DropAllForms();
    ReleaseDroppedForms();
    Session.UserCode = "u01";
    Session.StoreCode = "1001";
    auto* board = dynamic_cast<MainWindow*>(TheForm("frm_Start"));
    Host.Show(*board);
    Form& form = *TheForm(name);
    if (auto* slip = dynamic_cast<SlipForm*>(&form)) {
      slip->SlipTable = name == "frm_PE_UNIT" ? "PEM23" : "PEM22";
      if (name == "frm_PE_UNIT") slip->SlipId = "202405151001u02220004";
    }
    Host.Show(form);
    ThrowInto(form);
    Host.Ending = false;
  }

  std::string Text;
  std::set<std::string> Reached;  ///< The boxes from which a harmless text came into a statement.

  /// The statements of the server's log that hold the text's mark, those since the last call.
  std::vector<std::string> Logged() {
    std::vector<std::string> statements;
    for (const auto& row : TestServer().Rows(
             "mysql",
             "SELECT CONVERT(argument USING utf8mb4) FROM general_log WHERE argument LIKE "
             "CONCAT('%zq','7%')")) {
      statements.push_back(row[0]);
    }
    const auto known = static_cast<std::ptrdiff_t>(seen_);
    seen_ = statements.size();
    return {statements.begin() + known, statements.end()};
  }

 private:
  void ThrowInto(Form& form) {
    for (const auto& [name, box] : BoxesOf(form)) {
      if (form.IsClosed()) return;
      form.TakeFocus(*box, true);
      at_ = form.Name + "." + name;
      for (const Key key : {Key::Enter, Key::F1, Key::F6, Key::F5, Key::F9}) {
        if (form.IsClosed()) break;
        box->SetText(Text);
        form.Press(key, box);
      }
      at_ = form.Name + "." + name;  // a window may have come up meanwhile
      NoteReached();
    }
    for (const auto& [name, click] : ClicksOf(form)) {
      if (form.IsClosed()) return;
      for (const auto& [boxName, box] : BoxesOf(form)) box->SetText(Text);
      at_ = form.Name + "." + name;
      click();
      at_ = form.Name + "." + name;
      NoteReached();
    }
  }
  void NoteReached() {
    if (Text == kMark && !Logged().empty()) Reached.insert(at_);
  }

  static std::vector<std::pair<std::string, TextBox*>> BoxesOf(const Form& form) {
    std::vector<std::pair<std::string, TextBox*>> boxes;
    for (const auto& [name, control] : form.Controls()) {
      if (auto* box = dynamic_cast<TextBox*>(control)) boxes.emplace_back(name, box);
    }
    return boxes;
  }
  static std::vector<std::pair<std::string, std::function<void()>>> ClicksOf(const Form& form) {
    std::vector<std::pair<std::string, std::function<void()>>> clicks;
    for (const auto& [name, control] : form.Controls()) {
      if (auto* label = dynamic_cast<Label*>(control)) clicks.emplace_back(name, label->Click);
      if (auto* button = dynamic_cast<Button*>(control)) clicks.emplace_back(name, button->Click);
    }
    std::erase_if(clicks, [](const auto& click) { return !click.second; });
    return clicks;
  }

  std::string at_;  // the control that has the text
  int depth_ = 0;
  size_t seen_ = 0;  // statements of the log
};

constexpr const char* kForms[] = {"frmLogin",     "frm_Start",   "frm_Order",    "frm_Order01",
                                  "frm_Order02",  "frm_Order03", "frm_OrderPLU", "frm_PE_UNIT",
                                  "NEW_PR",       "DT9RECEV",    "FRM_NAMECHK",  "FRM_DT900_01",
                                  "frmProperties"};

TEST_F(HostileText, OfNoBoxBecomesAStatement) {
  Text = kMark;
  for (const char* form : kForms) ThrowIntoForm(form);
  // A box that no longer reaches a statement would make the rest of this test prove nothing.
  EXPECT_EQ(Reached,
            (std::set<std::string>{
                "FRM_DT900_01.Command1_0", "FRM_DT900_01.Text1_1", "FRM_NAMECHK.Text1",
                "HELP_BPR.Command1", "HELP_BPR.Text1", "HELP_CT.Command1", "HELP_CT.Text1",
                "NEW_PR.txBox_6", "frmLogin.cmdOK", "frmLogin.txtPassword", "frm_Order.Text1",
                "frm_Order01.Text1", "frm_Order02.Text1", "frm_Order03.Text1", "frm_Start.Text2"}));

  for (const char* text : {"'", "' OR '1'='1", "\\", "\\' OR 1=1 -- ", "\" OR 1=1 -- ", "%_",
                           "';DELETE FROM CT;-- ", "''; -- "}) {
    Text = kMark + text;
    for (const char* form : kForms) {
      ThrowIntoForm(form);
      for (const std::string& statement : Logged()) {
        EXPECT_EQ(Bare(statement).find(kMark), std::string::npos)
            << form << " with " << Text << ": " << statement;
        EXPECT_TRUE(Text.find('\'') == std::string::npos)
            << form << " with " << Text << ": " << statement;
      }
    }
  }
}

}  // namespace
}  // namespace store
