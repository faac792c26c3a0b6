#pragma once

#include <string>
#include <string_view>

namespace store {

/// A statement of a batch that writes nothing: a SELECT that must give at least one row when the
/// batch runs, inside its transaction, or nothing of the batch takes effect and `refusal` becomes
/// the batch's error text. It locks what it looks at, so `select` should end in FOR UPDATE. The
/// words stand behind the statement as a comment, where the server's log shows them too.
std::string Guard(const std::string& select, std::string_view refusal);

/// Whether a statement of a batch is a guard: every SELECT is one.
bool IsGuard(std::string_view statement);
/// The guard without its words.
std::string_view GuardSelect(std::string_view statement);
/// Its words; those of any guard when it has none of its own.
std::string_view GuardRefusal(std::string_view statement);

}  // namespace store
