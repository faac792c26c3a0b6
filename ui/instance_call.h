#pragma once

#include <QString>
#include <functional>

namespace store {

/// A person who starts the program a second time wants the window that is open. The run that ends
/// at once calls the one that is at work, of the same user and the same program file.

/// Answers calls from now on with `comeForward`. Where the machine does not let it listen, nobody
/// is answered.
void AnswerCalls(const QString& programPath, std::function<void()> comeForward);

/// Calls the run that is at work, if it can be reached; one of another user cannot. Waits no longer
/// than a second.
void CallForward(const QString& programPath);

}  // namespace store
