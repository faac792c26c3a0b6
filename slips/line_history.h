#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/grid.h"
#include "slips/line_grid.h"

namespace store {

/// What a person has done to the lines of a slip, step by step, so that it can be taken back and
/// done again. A step holds the rows that it has changed, every cell of them as it stood, with the
/// totals and the current row; a number of steps is kept, and a number of rows in all of them, and
/// the oldest go first.
class LineHistory {
 public:
  /// Whether a step is being taken back or done again.
  enum class Way { Back, Forth };
  /// What became of what a step has changed beside the lines.
  enum class Moved {
    Done,
    Nothing,  ///< It is there no more, or is no longer as the step had left it.
    Refused,  ///< It cannot be done now; everything stands as before, and the person was told.
  };
  using Beside = std::function<Moved(Way way)>;

  LineHistory(Grid& lines, TotalLabels& totals) : lines_(lines), totals_(totals) {}
  LineHistory(const LineHistory&) = delete;
  LineHistory& operator=(const LineHistory&) = delete;

  std::function<void()> Changed;  ///< Another step, or none, can be taken back or done again.

  /// What stands now is what the person begins with: there is nothing to take back.
  void Begin();
  /// Forgets everything, and follows nothing until the next `Begin`.
  void End();
  /// An act of the person is over: what it has changed is one step, and steps that were taken back
  /// can be done again no more. Within a `OneStep` it waits for that one's end.
  void Note();
  /// The current row has moved. Where the lines stand as they were noted the person has moved it.
  void NoteRow();
  /// The step that is under way has changed something beside the lines, too; `cells` says how much.
  void NoteBeside(Beside change, size_t cells);
  /// Steps that were taken back can be done again no more.
  void ForgetUndone();

  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < steps_.size(); }
  /// Takes the last step back, or does the one again that was taken back last. False when there is
  /// none, or when it cannot be done now.
  bool Undo();
  bool Redo();
  /// A step is being taken back or done again at this moment.
  bool IsMoving() const { return moving_; }
  /// A number that no other step bears; 0 when there is none that could be taken back.
  int LastStep() const { return done_ == 0 ? 0 : steps_[done_ - 1].Number; }

  /// All that changes while one of these lives is one step.
  class OneStep {
   public:
    explicit OneStep(LineHistory& history) : history_(history) { ++history_.open_; }
    ~OneStep() {
      if (--history_.open_ == 0) history_.Note();
    }
    OneStep(const OneStep&) = delete;
    OneStep& operator=(const OneStep&) = delete;

   private:
    LineHistory& history_;
  };

 private:
  struct Row {
    std::vector<std::string> Cells;
    std::vector<CellLook> Looks;
    bool Hidden = false;
    bool operator==(const Row&) const = default;
  };
  using Totals = std::vector<std::string>;
  /// Rows of the lines, counted from 0 behind the header, and what stands in their place on the
  /// other side of the step.
  struct Step {
    int Number = 0;
    size_t First = 0;
    size_t Count = 0;
    std::vector<Row> Other;
    int OtherRow = 0;
    Totals OtherTotals;
    std::vector<Beside> BesideLines;
    size_t Weight = 0;
  };

  Row ReadRow(size_t row) const;
  bool Stands(size_t row, const Row& noted) const;
  Totals ReadTotals() const;
  size_t Rows() const;
  void TakeStand();
  Step ChangedRows();
  void Keep(Step step);
  void DropOldest();
  void DropUndone();
  Moved Move(Step& step, Way way);
  void Switch(Step& step);
  void PutRow(size_t row, const Row& noted);
  void Tell() const;

  Grid& lines_;
  TotalLabels& totals_;
  std::vector<Row> stand_;  // the lines as they were last noted
  int row_ = 0;             // and the current one, with where the person has moved it since
  Totals standTotals_;
  unsigned revision_ = 0;  // of the lines then
  std::deque<Step> steps_;
  size_t done_ = 0;  // those before it can be taken back, those behind it done again
  size_t weight_ = 0;
  int numbers_ = 0;
  std::vector<Beside> beside_;  // of the step under way
  size_t besideCells_ = 0;
  int open_ = 0;
  bool follows_ = false;
  bool moving_ = false;
};

}  // namespace store
