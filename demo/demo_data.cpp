#include <charconv>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "demo/franchise_sql.h"

namespace {

using store::demo::Options;

constexpr const char* kUsage =
    "usage: demo_data [--items N] [--slips N] [--today YYYY-MM-DD] [--database NAME]\n"
    "Writes a demo franchise as SQL to standard output, for a database that holds the empty\n"
    "tables. The same arguments give the same text. Defaults: 3000 items, 200 order slips, the\n"
    "system's date, database demo.\n";

struct Command {
  Options options;
  std::string database = "demo";
};

std::size_t Number(std::string_view text, std::size_t least, std::size_t most) {
  std::size_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value < least || value > most) {
    throw std::invalid_argument("not a number from " + std::to_string(least) + " to " +
                                std::to_string(most) + ": " + std::string(text));
  }
  return value;
}

store::demo::Day Date(std::string_view text) {
  const auto day = store::demo::ParseDate(text);
  if (!day) throw std::invalid_argument("not a date: " + std::string(text));
  return *day;
}

// The name stands bare in the statements.
std::string DatabaseName(std::string_view text) {
  constexpr std::string_view kAllowed =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";
  if (text.empty() || text.find_first_not_of(kAllowed) != std::string_view::npos) {
    throw std::invalid_argument("not a database name: " + std::string(text));
  }
  return std::string(text);
}

Command ParseArguments(int argc, char** argv) {
  Command command;
  command.options.Today = store::demo::SystemToday();
  for (int i = 1; i < argc; i += 2) {
    const std::string_view option = argv[i];
    if (i + 1 == argc) throw std::invalid_argument("no value for " + std::string(option));
    const std::string_view value = argv[i + 1];
    if (option == "--items") {
      command.options.Items = Number(value, 1, store::demo::kMostItems);
    } else if (option == "--slips") {
      command.options.Slips = Number(value, 0, store::demo::kMostSlips);
    } else if (option == "--today") {
      command.options.Today = Date(value);
    } else if (option == "--database") {
      command.database = DatabaseName(value);
    } else {
      throw std::invalid_argument("unknown option: " + std::string(option));
    }
  }
  return command;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  try {
    const Command command = ParseArguments(argc, argv);
    store::demo::WriteFranchise(std::cout, store::demo::MakeFranchise(command.options),
                                command.database);
  } catch (const std::invalid_argument& error) {
    std::cerr << "demo_data: " << error.what() << "\n" << kUsage;
    return 2;
  }
  std::cout.flush();
  if (!std::cout) {
    std::cerr << "demo_data: the output could not be written\n";
    return 1;
  }
  return 0;
}
