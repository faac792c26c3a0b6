#pragma once

#include <string>

namespace store {

/// Looks a user up in table ST with what was typed; the answer lands in `SlotA`. The password is
/// compared by the database as stored; a quote in either text breaks the statement, which looks
/// like an unknown user.
void ReadUser(const std::string& user, const std::string& password);

/// Fills the user fields of `Session` from the row that `ReadUser` brought.
void TakeUser();

/// A beep and the box that tells of an unknown user.
void TellUnknownUser();

}  // namespace store
