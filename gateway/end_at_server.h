#pragma once

#include <string>

namespace store {

/// Ends a statement at the server whose answer nobody waits for any more. Closing the connection
/// would not do it: the server looks at that only when it has rows to send, and until then the
/// statement costs everybody time.
///
/// Goes over a short connection of its own, on a thread of its own, so the caller does not wait;
/// what fails on it is passed over. Nothing but the statement is ended: the connection of that
/// number must be running this very text. Behind a proxy the number may be another workstation's.
void EndAtServer(const std::string& connectString, const std::string& connectionId,
                 const std::string& statement);

}  // namespace store
