#include "lookup/export_grid.h"

#include <xlsxwriter.h>

#include <filesystem>

#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/text.h"
#include "forms/counted_work.h"
#include "forms/host.h"
#include "lookup/new_document.h"

namespace store {
namespace {

constexpr size_t kLongestNumber = 11;  // a longer run of digits is a code, such as a barcode

/// Commas stand for thousands, or the text is a list of something: "1,2".
bool GroupsByThousands(const std::string& text) {
  if (text.find(',') == std::string::npos) return true;
  const std::string whole = text.substr(0, text.find('.'));
  return FormatNumber(ParseGrouped(whole), "#,##0") == whole;
}

/// A number that a sheet may hold as one. A code keeps its leading zeros and its digits as text.
bool ReadsAsNumber(const std::string& text) {
  if (text.empty() || text.size() > kLongestNumber || !IsNumeric(text)) return false;
  if (!GroupsByThousands(text)) return false;
  return text[0] != '0' || text.size() == 1 || text[1] == '.';
}

void WriteCell(lxw_worksheet* sheet, const std::string& address, const std::string& text) {
  const lxw_row_t row = lxw_name_to_row(address.c_str());
  const lxw_col_t column = lxw_name_to_col(address.c_str());
  if (text.empty()) return;
  if (ReadsAsNumber(text)) {
    worksheet_write_number(sheet, row, column, ParseGrouped(text), nullptr);
  } else {
    worksheet_write_string(sheet, row, column, text.c_str(), nullptr);
  }
}

bool WriteWorkbook(const Grid& grid, const std::string& path) {
  lxw_workbook* workbook = path.empty() ? nullptr : workbook_new(path.c_str());
  if (workbook == nullptr) return false;
  lxw_worksheet* sheet = workbook_add_worksheet(workbook, nullptr);
  CountedWork work("엑셀 파일을 만드는 중입니다.", grid.Rows());
  for (int row = 0; row < grid.Rows(); ++row) {
    std::string letters;
    for (int column = 0; column < grid.Cols(); ++column) {
      letters = ColumnLetters(row, column, letters);
      WriteCell(sheet, letters + std::to_string(row + 1), grid.TextMatrix(row, column));
    }
    work.Step();
  }
  return workbook_close(workbook) == LXW_NO_ERROR;
}

}  // namespace

std::string ColumnLetters(int row, int column, const std::string& before) {
  const auto letter = [](int index) { return static_cast<char>('A' + index); };
  if (column < 26) return std::string(1, letter(column));
  const char prefix = row <= 52 ? 'A' : 'B';
  const int index = column - (row <= 52 ? 26 : 52);
  if (row > 78 || index < 0 || index >= 26) return before;
  return {prefix, letter(index)};
}

void ExportGrid(const Grid& grid, const std::string& window, Label& where) {
  where.Caption.clear();
  bool written = false;
  bool opened = false;
  {
    const Hourglass waiting;
    const std::string path =
        NewDocument(Trim(window) + FormatDateValue(Host.Now(), "_YYYY-MM-DD_HHNN"), ".xlsx");
    written = WriteWorkbook(grid, path);
    if (written) where.Caption = "엑셀 저장: " + path;
    opened = written && Host.OpenAddress(path);
    std::error_code ignored;
    if (!written && !path.empty()) std::filesystem::remove(path, ignored);
  }
  if (!written) {
    Host.MsgBox("사용자  작업   취소              ", box::Plain, "강제취소");
  } else if (!opened) {
    Host.MsgBox("호환가능한 엑셀이 설치되어있지 않거나 다른오류가 발생했습니다.              ",
                box::Plain, "엑셀호환오류");
  }
}

}  // namespace store
