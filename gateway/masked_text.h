#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace store {

/// Statements and the server's words as the log may hold them. Of what stands between quotes only
/// codes, keys, dates and figures stay; a name, a phone number, an address, a memo and whatever a
/// person has typed into a search is "?". Where passwords are compared nothing between quotes
/// stays.

/// A statement, whether it was sent or a value has broken it.
std::string MaskedStatement(std::string_view statement);

/// What the server, the driver or the gateway says about `statements`. What it quotes stays as well
/// when it stands in them outside of quotes, as a column does. The piece of a statement that a
/// server quotes back ("near '...'") goes as a whole, as do the value behind a connection string's
/// PWD and a value that has broken a statement.
std::string MaskedWords(std::string_view words, const std::vector<std::string>& statements);

}  // namespace store
