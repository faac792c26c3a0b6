// Whatever is written on a window can be read.
#include "ui/palette.h"

#include <QHeaderView>
#include <QImage>
#include <QtTest>
#include <filesystem>
#include <fstream>
#include <functional>
#include <regex>
#include <sstream>

#include "tests/ui/probe_form.h"
#include "ui/desk.h"
#include "ui/grid_view.h"

namespace store {
namespace {

constexpr double kReadable = 4.5;

struct Source {
  std::string Name;
  std::string Text;
};

std::vector<Source> SourcesIn(const std::vector<std::string>& folders) {
  std::vector<Source> sources;
  for (const std::string& folder : folders) {
    for (const auto& entry : std::filesystem::directory_iterator(STORE_ROOT "/" + folder)) {
      const std::string extension = entry.path().extension();
      if (extension != ".cpp" && extension != ".h") continue;
      std::ostringstream text;
      text << std::ifstream(entry.path()).rdbuf();
      sources.push_back({folder + "/" + entry.path().filename().string(), text.str()});
    }
  }
  EXPECT_GT(sources.size(), folders.size());
  return sources;
}

std::string Told(const char* where, const QColor& ink, const QColor& ground) {
  return std::string(where) + ": " + ink.name().toStdString() + " on " +
         ground.name().toStdString();
}

void InBothThemes(const std::function<void()>& check) {
  for (const Theme theme : {Theme::Dark, Theme::Light}) {
    SetTheme(theme);
    check();
  }
}

TEST(Palette, EveryTextIsToldFromItsGround) {
  EXPECT_NEAR(Contrast(QColor(0, 0, 0), QColor(255, 255, 255)), 21, 0.01);
  InBothThemes([] {
    for (const TextPair& pair : TextPairs()) {
      EXPECT_GE(Contrast(pair.Ink, pair.Ground), kReadable)
          << Told(pair.Where, pair.Ink, pair.Ground);
    }
  });
}

TEST(Palette, EdgesAndMarksAreToldFromTheirGround) {
  InBothThemes([] {
    for (const Hue& mark : {look::Bright, look::Warning, look::Waiting, look::Connected}) {
      for (const Hue& ground : {look::Paper, look::Window, look::Card}) {
        EXPECT_GE(Contrast(mark, ground), 3) << Told("mark", mark, ground);
      }
    }
  });
}

// The list above is all there is only as long as no window mixes a colour of its own.
TEST(Palette, NoOtherFileOfTheWindowsNamesAColour) {
  const std::regex colour(
      R"(#[0-9a-fA-F]{6}\b|QColor\((0x|\d|Qt::)|Qt::(white|black|red|green|blue|gray|yellow)\b)");
  for (const Source& source : SourcesIn({"ui"})) {
    if (source.Name.starts_with("ui/palette.")) continue;
    std::smatch found;
    EXPECT_FALSE(std::regex_search(source.Text, found, colour)) << source.Name << ": " << found[0];
  }
}

TEST(Palette, TextIsReadOnTheGroundsThatFormsAskFor) {
  const std::regex asked(R"(\b0x([0-9A-Fa-f]{6})\b)");
  int grounds = 0;
  for (const Source& source :
       SourcesIn({"board", "order", "receipt", "handheld", "lookup", "start", "ui"})) {
    if (source.Name.starts_with("ui/palette.")) continue;
    for (std::sregex_iterator at(source.Text.begin(), source.Text.end(), asked), end; at != end;
         ++at) {
      InBothThemes([&] {
        const QColor ground = Softened(std::stoi((*at)[1], nullptr, 16));
        EXPECT_GE(Contrast(look::Ink, ground), kReadable)
            << Told(source.Name.c_str(), look::Ink, ground);
      });
      ++grounds;
    }
  }
  EXPECT_GT(grounds, 4);
}

class DrawnTextTest : public DeskTest {};

/// The ink that stands out most from the ground at the right end of a picture's line.
double DrawnContrast(const QImage& picture, int top, int bottom) {
  const QColor ground = picture.pixelColor(picture.width() - 8, (top + bottom) / 2);
  double most = 1;
  for (int y = top; y < bottom; ++y) {
    for (int x = 6; x < picture.width() - 6; ++x) {
      most = std::max(most, Contrast(picture.pixelColor(x, y), ground));
    }
  }
  return most;
}

TEST_F(DrawnTextTest, TheBarcodeOfACurrentRowIsRead) {
  ProbeForm form;
  form.FLEX1.AddItem("████\r████\t1");  // letters without thin strokes show their ink
  FormWindow& window = Open(form);
  GridView& view = FindGrid(window, "FLEX1");
  view.verticalHeader()->setDefaultSectionSize(40);
  for (const bool hasKeyboard : {true, false}) {
    (hasKeyboard ? static_cast<QWidget*>(&view) : &Find<QLineEdit>(window, "Text1"))->setFocus();
    Dispatch([&] { form.FLEX1.Select(1, 1); });
    const QRect cell = view.visualRect(view.model()->index(0, 0));
    const QImage picture = view.viewport()->grab(cell).toImage();
    EXPECT_GE(DrawnContrast(picture, 4, 19), kReadable) << "barcode, " << hasKeyboard;
    EXPECT_GE(DrawnContrast(picture, 21, 36), kReadable) << "name, " << hasKeyboard;
  }
}

}  // namespace
}  // namespace store
