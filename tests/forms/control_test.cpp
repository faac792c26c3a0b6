#include "forms/control.h"

#include <gtest/gtest.h>

namespace store {
namespace {

TEST(TextBox, RaisesChangeFromCodeWheneverTheTextBecomesAnother) {
  TextBox box;
  std::vector<std::string> seen;
  box.Change = [&] { seen.push_back(box.Text()); };
  for (const char* text : {"가", "가", "가나", ""}) box.SetText(text);
  EXPECT_EQ(seen, (std::vector<std::string>{"가", "가나", ""}));
}

TEST(ComboBox, KeepsItsChoiceWhenAskedForWhatItDoesNotHave) {
  ComboBox combo;
  int clicks = 0;
  combo.Click = [&] { ++clicks; };
  combo.AddItem("매장");
  combo.AddItem("창고");
  combo.SetListIndex(1);
  combo.SetText("없는 곳");
  combo.SetListIndex(2);
  combo.SetListIndex(-2);
  EXPECT_EQ(combo.Text(), "창고");
  EXPECT_EQ(clicks, 1);
  combo.SetText("매장");
  EXPECT_EQ(combo.ListIndex(), 0);
  combo.Clear();
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(combo.Text(), "");
}

TEST(TextBox, AsksForASelectionEachTimeItIsTold) {
  TextBox box;
  box.SelectAll();
  const unsigned first = box.SelectionRevision();
  box.SelectAll();
  EXPECT_NE(box.SelectionRevision(), first);
  box.CaretToEnd();
  EXPECT_EQ(box.WantedSelection(), TextBox::Selection::End);
}

}  // namespace
}  // namespace store
