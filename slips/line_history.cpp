#include "slips/line_history.h"

#include <algorithm>

namespace store {
namespace {

constexpr size_t kMostSteps = 200;
constexpr size_t kMostRows = 20000;

}  // namespace

void LineHistory::Begin() {
  End();
  follows_ = true;
  TakeStand();
}

void LineHistory::End() {
  follows_ = false;
  stand_.clear();
  steps_.clear();
  beside_.clear();
  done_ = weight_ = besideCells_ = 0;
  Tell();
}

void LineHistory::Tell() const {
  if (Changed) Changed();
}

size_t LineHistory::Rows() const {
  return static_cast<size_t>(std::max(0, lines_.Rows() - lines_.FixedRows()));
}

LineHistory::Row LineHistory::ReadRow(size_t row) const {
  const int at = lines_.FixedRows() + static_cast<int>(row);
  Row read;
  for (int column = 0; column < lines_.Cols(); ++column) {
    read.Cells.push_back(lines_.TextMatrix(at, column));
    read.Looks.push_back(lines_.Look(at, column));
  }
  read.Hidden = lines_.RowHidden(at);
  return read;
}

bool LineHistory::Stands(size_t row, const Row& noted) const {
  const int at = lines_.FixedRows() + static_cast<int>(row);
  for (int column = 0; column < lines_.Cols(); ++column) {
    const auto cell = static_cast<size_t>(column);
    if (lines_.TextMatrix(at, column) != noted.Cells[cell]) return false;
    if (lines_.Look(at, column) != noted.Looks[cell]) return false;
  }
  return lines_.RowHidden(at) == noted.Hidden;
}

LineHistory::Totals LineHistory::ReadTotals() const {
  Totals read;
  for (const Label& total : totals_) read.push_back(total.Caption);
  return read;
}

void LineHistory::TakeStand() {
  stand_.clear();
  for (size_t row = 0; row < Rows(); ++row) stand_.push_back(ReadRow(row));
  standTotals_ = ReadTotals();
  row_ = lines_.Row();
  revision_ = lines_.Revision();
}

void LineHistory::NoteRow() {
  if (follows_ && !moving_ && lines_.Revision() == revision_) row_ = lines_.Row();
}

void LineHistory::NoteBeside(Beside change, size_t cells) {
  if (!follows_ || moving_) return;
  beside_.push_back(std::move(change));
  besideCells_ += cells;
}

void LineHistory::Note() {
  if (!follows_ || moving_ || open_ > 0) return;
  Step step = ChangedRows();
  step.BesideLines = std::exchange(beside_, {});
  step.Weight = step.Count + step.Other.size() + std::exchange(besideCells_, 0);
  const bool changed = step.Count > 0 || !step.Other.empty() || !step.BesideLines.empty();
  step.OtherRow = std::exchange(row_, lines_.Row());
  step.OtherTotals = std::exchange(standTotals_, ReadTotals());
  revision_ = lines_.Revision();
  if (changed) Keep(std::move(step));
}

/// What differs from what was noted lies between rows that stand as they stood.
LineHistory::Step LineHistory::ChangedRows() {
  const size_t rows = Rows();
  const size_t fewer = std::min(rows, stand_.size());
  size_t above = 0;
  while (above < fewer && Stands(above, stand_[above])) ++above;
  size_t below = 0;
  while (below < fewer - above && Stands(rows - 1 - below, stand_[stand_.size() - 1 - below])) {
    ++below;
  }
  Step step;
  step.First = above;
  step.Count = rows - above - below;
  const auto from = stand_.begin() + static_cast<std::ptrdiff_t>(above);
  const auto to = stand_.end() - static_cast<std::ptrdiff_t>(below);
  step.Other.assign(std::make_move_iterator(from), std::make_move_iterator(to));
  std::vector<Row> now;
  for (size_t row = 0; row < step.Count; ++row) now.push_back(ReadRow(above + row));
  stand_.insert(stand_.erase(from, to), std::make_move_iterator(now.begin()),
                std::make_move_iterator(now.end()));
  return step;
}

void LineHistory::Keep(Step step) {
  DropUndone();
  step.Number = ++numbers_;
  weight_ += step.Weight;
  steps_.push_back(std::move(step));
  while (steps_.size() > kMostSteps || weight_ > kMostRows) DropOldest();
  done_ = steps_.size();
  Tell();
}

void LineHistory::DropOldest() {
  weight_ -= steps_.front().Weight;
  steps_.pop_front();
}

void LineHistory::DropUndone() {
  for (; CanRedo(); steps_.pop_back()) weight_ -= steps_.back().Weight;
}

void LineHistory::ForgetUndone() {
  DropUndone();
  Tell();
}

bool LineHistory::Undo() {
  Note();
  // A step of which nothing is left to be taken back is no answer to the key.
  while (CanUndo()) {
    const Moved moved = Move(steps_[done_ - 1], Way::Back);
    if (moved == Moved::Refused) return false;
    --done_;
    Tell();
    if (moved == Moved::Done) return true;
  }
  return false;
}

bool LineHistory::Redo() {
  Note();
  while (CanRedo()) {
    const Moved moved = Move(steps_[done_], Way::Forth);
    if (moved == Moved::Refused) return false;
    ++done_;
    Tell();
    if (moved == Moved::Done) return true;
  }
  return false;
}

LineHistory::Moved LineHistory::Move(Step& step, Way way) {
  moving_ = true;
  Moved moved = step.Count > 0 || !step.Other.empty() ? Moved::Done : Moved::Nothing;
  for (const Beside& change : step.BesideLines) {
    const Moved beside = change(way);
    if (beside != Moved::Nothing) moved = beside;
    if (beside == Moved::Refused) break;
  }
  if (moved != Moved::Refused) Switch(step);
  moving_ = false;
  return moved;
}

void LineHistory::Switch(Step& step) {
  // A change beside the lines may have emptied them.
  if (Rows() != stand_.size()) {
    lines_.SetRows(lines_.FixedRows());
    for (size_t row = 0; row < stand_.size(); ++row) PutRow(row, stand_[row]);
  }
  const auto from = stand_.begin() + static_cast<std::ptrdiff_t>(step.First);
  const auto to = from + static_cast<std::ptrdiff_t>(step.Count);
  std::vector<Row> now(std::make_move_iterator(from), std::make_move_iterator(to));
  for (size_t row = 0; row < step.Count; ++row) {
    lines_.RemoveItem(lines_.FixedRows() + static_cast<int>(step.First));
  }
  for (size_t row = 0; row < step.Other.size(); ++row) PutRow(step.First + row, step.Other[row]);
  step.Count = step.Other.size();
  stand_.insert(stand_.erase(from, to), step.Other.begin(), step.Other.end());
  step.Other = std::move(now);
  std::swap(step.OtherTotals, standTotals_);
  for (size_t total = 0; total < totals_.size(); ++total) {
    totals_[total].Caption = standTotals_[total];
  }
  std::swap(step.OtherRow, row_);
  lines_.SetRow(row_);
  revision_ = lines_.Revision();
}

void LineHistory::PutRow(size_t row, const Row& noted) {
  const int at = lines_.FixedRows() + static_cast<int>(row);
  lines_.AddItem("", at);
  for (int column = 0; column < lines_.Cols(); ++column) {
    const auto cell = static_cast<size_t>(column);
    lines_.SetTextMatrix(at, column, noted.Cells[cell]);
    if (lines_.Look(at, column) != noted.Looks[cell]) {
      lines_.SetLook(at, column, noted.Looks[cell]);
    }
  }
  lines_.SetRowHidden(at, noted.Hidden);
}

}  // namespace store
