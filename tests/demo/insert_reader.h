#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace store::demo {

/// A row by column name, texts without their quotes.
using Row = std::map<std::string, std::string>;

/// The rows of every table that INSERT statements name, as a server would read them. Throws if a
/// row has more or fewer values than its statement names columns.
std::map<std::string, std::vector<Row>> ReadInserts(std::string_view sql);

}  // namespace store::demo
