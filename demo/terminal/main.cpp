#include <charconv>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

#include "demo/terminal/terminal_session.h"

namespace store::demo {
namespace {

constexpr const char* kUsage =
    "usage: demo_terminal (--port PATH | --pty LINK) [what to send] [how the line behaves]\n"
    "Plays a handheld terminal: it waits until the other end is open, sends one transfer and "
    "ends.\n"
    "  --records FILE    lines of kind,partner,barcode,name,quantity,price\n"
    "  --make N          N records of the demo's products instead; 20 by default\n"
    "  --kind K          their kind: 0 purchase, 2 sale, 1 sale returned, 5 purchase returned,\n"
    "                    3 stock survey, 4 prices\n"
    "  --items N         size of the demo's catalogue, 3000 by default\n"
    "  --seed N          another seed gives other goods and other damage\n"
    "  --baud N          speed of the line   --piece N   bytes at a time   --gap MS   between "
    "them\n"
    "  --noise P  --lose P  --wrong P   frames of a hundred with stray bytes before them, without\n"
    "                    their first byte, of another kind\n"
    "  --never-closes 1  stops before the end   --patience MS   for each reply\n";

struct Command {
  std::string Port, Link, File;
  char Kind = '0';
  std::size_t Make = 20;
  std::size_t Items = 3000;
  LineManners Manners;
};

int Number(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value < 0) {
    throw std::invalid_argument("not a number: " + std::string(text));
  }
  return value;
}

bool TakeManner(LineManners& manners, std::string_view option, std::string_view value) {
  using std::chrono::milliseconds;
  if (option == "--baud")
    manners.Baud = Number(value);
  else if (option == "--piece")
    manners.Piece = static_cast<std::size_t>(Number(value));
  else if (option == "--gap")
    manners.Gap = milliseconds(Number(value));
  else if (option == "--noise")
    manners.NoisePercent = Number(value);
  else if (option == "--lose")
    manners.LosePercent = Number(value);
  else if (option == "--wrong")
    manners.WrongKindPercent = Number(value);
  else if (option == "--never-closes")
    manners.NeverCloses = Number(value) != 0;
  else if (option == "--patience")
    manners.Patience = milliseconds(Number(value));
  else if (option == "--seed")
    manners.Seed = static_cast<std::uint64_t>(Number(value));
  else
    return false;
  return true;
}

Command ParseArguments(int argc, char** argv) {
  Command command;
  for (int i = 1; i < argc; i += 2) {
    const std::string_view option = argv[i];
    if (i + 1 == argc) throw std::invalid_argument("no value for " + std::string(option));
    const std::string_view value = argv[i + 1];
    if (option == "--port")
      command.Port = value;
    else if (option == "--pty")
      command.Link = value;
    else if (option == "--records")
      command.File = value;
    else if (option == "--kind")
      command.Kind = value.empty() ? '0' : value[0];
    else if (option == "--make")
      command.Make = static_cast<std::size_t>(Number(value));
    else if (option == "--items")
      command.Items = static_cast<std::size_t>(Number(value));
    else if (!TakeManner(command.Manners, option, value)) {
      throw std::invalid_argument("what is " + std::string(option) + "?");
    }
  }
  if (command.Port.empty() == command.Link.empty()) throw std::invalid_argument("--port or --pty?");
  return command;
}

void WaitForTheOtherEnd(const TerminalLine& line) {
  if (!line.IsOpenElsewhere()) std::cout << "waiting for the other end to be opened" << std::endl;
  while (!line.IsOpenElsewhere()) std::this_thread::sleep_for(std::chrono::milliseconds(100));
}

int Run(const Command& command) {
  const std::vector<TerminalRecord> records =
      command.File.empty()
          ? MakeRecords(command.Kind, command.Make, command.Items, command.Manners.Seed)
          : ReadRecords(command.File);
  const TerminalLine line = command.Link.empty() ? TerminalLine::OnPort(command.Port)
                                                 : TerminalLine::OnPseudoTerminal(command.Link);
  WaitForTheOtherEnd(line);
  const TransferReport report =
      SendTransfer(line, records, command.Manners,
                   [](const std::string& what) { std::cout << what << std::endl; });
  std::cout << report.Accepted << " of " << records.size() << " records accepted" << std::endl;
  // The last bytes are still on their way when the far end is slow to look.
  std::this_thread::sleep_for(std::chrono::seconds(1));
  return report.Finished ? 0 : 1;
}

}  // namespace
}  // namespace store::demo

int main(int argc, char** argv) {
  try {
    return store::demo::Run(store::demo::ParseArguments(argc, argv));
  } catch (const std::invalid_argument& wrong) {
    std::cerr << "demo_terminal: " << wrong.what() << "\n" << store::demo::kUsage;
    return 2;
  } catch (const std::exception& refusal) {
    std::cerr << "demo_terminal: " << refusal.what() << "\n";
    return 1;
  }
}
