// Seeded days of a small franchise: many terminals of many stores as processes on one real server,
// faults drawn from the seed, and what must always hold checked while they work and at the end. See
// docs/soak.md.
#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <thread>

#include "tests/soak/clerks.h"
#include "tests/soak/day_book.h"
#include "tests/soak/db_client.h"
#include "tests/soak/findings.h"
#include "tests/soak/franchise.h"
#include "tests/soak/node_check.h"
#include "tests/soak/order_ledger.h"
#include "tests/soak/pass_ledger.h"
#include "tests/soak/site.h"
#include "tests/soak/soak_database.h"
#include "tests/soak/store_rules.h"

namespace store {
namespace {

constexpr long kStandstill = 25;  // new orders of a store in a row, none of them stored

using std::chrono::steady_clock;

struct Options {
  int Seconds = 30 * 60;
  unsigned Seed = 1;
  int Stores = 12;
  bool Cluster = false;
  std::string Logs;  // where the clerks' logs are kept
};

constexpr auto kRound = std::chrono::milliseconds(200);
/// A batch whose client was cut off may still be running at the server for so long.
constexpr auto kSettlingAlone = std::chrono::seconds(8);
constexpr auto kSettlingOfCluster = std::chrono::seconds(25);
constexpr int kNodes = 3;

volatile std::sig_atomic_t interrupted = 0;

void Interrupt(int /*signal*/) { interrupted = 1; }

class Days {
 public:
  Days(const Options& options, const std::string& program)
      : options_(options),
        site_(options.Cluster ? kNodes : 1, Fail),
        settling_(options.Cluster ? kSettlingOfCluster : kSettlingAlone),
        random_(options.Seed) {
    site_.Start(kCompany);
    db_ = std::make_unique<DbClient>(site_.Ports());
    FillFranchise(*db_, options.Stores);
    folder_ = options.Logs.empty() ? site_.Folder() + "/clerks" : options.Logs;
    clerks_ = std::make_unique<Clerks>(program, folder_, site_.Ports(), options.Stores,
                                       options.Seed, findings_);
  }

  int Run() {
    const auto begin = steady_clock::now();
    const auto end = begin + std::chrono::seconds(options_.Seconds);
    auto minute = begin + std::chrono::minutes(1);
    auto power = begin + NextPowerCut();
    while (steady_clock::now() < end && interrupted == 0) {
      clerks_->KeepWorking();
      for (int store = 0; store < options_.Stores; ++store) {
        MoveOrders(*db_, StoreCodeOf(store), 1 + static_cast<int>(random_() % 4));
      }
      Look();
      if (random_() % 10 == 0) {
        clerks_->KillOne(random_);
        ++driverFaults_["client killed at any time"];
      }
      if (steady_clock::now() > power) {
        site_.Strike(random_, driverFaults_);
        power = steady_clock::now() + NextPowerCut();
      }
      if (steady_clock::now() > minute) {
        minute += std::chrono::minutes(1);
        PrintMinute(begin);
      }
      std::this_thread::sleep_for(kRound);
    }
    site_.AwaitEverybody();
    clerks_->SendHome();
    std::this_thread::sleep_for(settling_);
    return Finish(begin);
  }

 private:
  [[noreturn]] static void Fail(const std::string& what) {
    std::fprintf(stderr, "soak_days: %s\n", what.c_str());
    std::exit(2);
  }

  /// A few in the shortest run.
  std::chrono::milliseconds NextPowerCut() {
    const int mean = std::min(options_.Cluster ? 15'000 : 45'000, options_.Seconds * 1000 / 3);
    return std::chrono::milliseconds(mean / 2 +
                                     static_cast<int>(random_() % static_cast<unsigned>(mean)));
  }

  void ReadLogs() {
    for (auto& clerk : clerks_->All()) {
      for (const auto& fields : clerk.Log.News()) {
        book_.Take(clerk.Store * kTerminals + clerk.Terminal, StoreCodeOf(clerk.Store), fields);
      }
    }
  }

  /// What the clerks were told first, then what is in the database, and before that is judged what
  /// they have meant meanwhile: a step is never seen before its intention.
  void Look() {
    ReadLogs();
    const auto now = steady_clock::now();
    for (Work* work : book_.TakeChanged()) {
      if (work->Verdict == Work::Known::Stored) {
        told_.push_back(work);
      } else {
        open_.push_back({now + settling_, work});
      }
    }
    for (PassPress& press : book_.TakePasses())
      passes_.push_back({now + settling_, std::move(press)});
    ledger_.ReadSteps(*db_, [this] { ReadLogs(); });
    JudgeWhatIsDue(now);
    CheckStore(*db_, StoreCodeOf(nextStore_), findings_);
    nextStore_ = (nextStore_ + 1) % options_.Stores;
  }

  void JudgeWhatIsDue(steady_clock::time_point now) {
    while (!open_.empty() && open_.front().first <= now) {
      told_.push_back(open_.front().second);
      open_.pop_front();
    }
    ledger_.Judge(*db_, told_);
    told_.clear();
    std::vector<PassPress> due;
    while (!passes_.empty() && passes_.front().first <= now) {
      due.push_back(std::move(passes_.front().second));
      passes_.pop_front();
    }
    passLedger_.Judge(*db_, due);
  }

  int Finish(steady_clock::time_point begin) {
    ReadLogs();
    book_.CloseEverything();
    Look();
    JudgeWhatIsDue(steady_clock::now() + settling_);
    ledger_.JudgeCounts();
    JudgeProgress();
    passLedger_.JudgeRows(*db_);
    for (int store = 0; store < options_.Stores; ++store) {
      CheckStore(*db_, StoreCodeOf(store), findings_);
    }
    if (site_.IsCluster()) CheckNodesAgree(site_.Ports(), findings_);
    PrintMinute(begin);
    PrintCounts();
    if (findings_.Empty()) return EXIT_SUCCESS;
    findings_.Print();
    std::printf("repeat it with --seed %u; what the clerks wrote down and the data stand in %s\n",
                options_.Seed, KeepFacts().c_str());
    return EXIT_FAILURE;
  }

  std::string KeepFacts() const {
    const std::string dump = "mariadb-dump --no-defaults -h 127.0.0.1 -P " +
                             std::to_string(site_.Ports().front()) + " -u kt -pqz4471 " + kCompany +
                             " >'" + folder_ + "/data.sql'";
    if (std::system(dump.c_str()) != 0) std::printf("the data could not be kept\n");
    if (!options_.Logs.empty()) return options_.Logs;
    const std::string kept = site_.Folder() + "_logs";
    std::error_code failed;
    std::filesystem::rename(folder_, kept, failed);
    return failed ? folder_ : kept;
  }

  /// A store in which nothing can be stored any more would break no other rule.
  void JudgeProgress() {
    for (const auto& [store, since] : book_.SinceStored) {
      if (since < kStandstill) continue;
      findings_.Add("a store that has come to a standstill", store,
                    std::to_string(since) + " presses for a new order, none of them stored");
    }
  }

  long FaultCount() const {
    long count = 0;
    for (const auto& [name, times] : book_.Faults) count += times;
    for (const auto& [name, times] : driverFaults_) count += times;
    return count;
  }

  void PrintMinute(steady_clock::time_point begin) const {
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(steady_clock::now() - begin).count();
    std::printf("%4lld s  %7ld presses (%ld a second), %6ld faults, %s\n",
                static_cast<long long>(seconds), book_.Presses,
                book_.Presses / std::max<long>(1, seconds), FaultCount(),
                findings_.Empty() ? "all holds" : "BROKEN, see above");
    std::fflush(stdout);
  }

  void PrintCounts() const {
    const auto print = [](const char* title, const std::map<std::string, long>& counts) {
      std::printf("%s:", title);
      for (const auto& [name, count] : counts) std::printf(" %s %ld,", name.c_str(), count);
      std::printf("\n");
    };
    print("presses", book_.Kinds);
    print("told", book_.Verdicts);
    print("faults at terminals", book_.Faults);
    print("others", driverFaults_);
    if (!site_.IsCluster()) return;
    std::printf("undone by the cluster since each node's last start: %s\n",
                UndoneByCluster(site_.Ports()).c_str());
  }

  const Options options_;
  Site site_;
  const std::chrono::seconds settling_;
  std::mt19937 random_;
  std::string folder_;
  std::unique_ptr<DbClient> db_;
  Findings findings_;
  std::unique_ptr<Clerks> clerks_;
  DayBook book_;
  OrderLedger ledger_{book_, findings_, settling_};
  PassLedger passLedger_{book_, findings_};
  std::vector<Work*> told_;
  std::deque<std::pair<steady_clock::time_point, Work*>> open_;
  std::deque<std::pair<steady_clock::time_point, PassPress>> passes_;
  std::map<std::string, long> driverFaults_;
  int nextStore_ = 0;
};

template <class Number>
bool TakeNumber(const char* text, Number& number) {
  const auto [end, error] = std::from_chars(text, text + std::strlen(text), number);
  return error == std::errc() && *end == '\0';
}

bool ParseArguments(int argc, char** argv, Options& options) {
  int i = 1;
  for (; i < argc; i += 2) {
    const std::string_view option = argv[i];
    if (option == "--cluster") {
      options.Cluster = true;
      --i;
      continue;
    }
    if (i + 1 == argc) return false;
    int minutes = 0;
    bool taken = false;
    if (option == "--minutes") {
      taken = TakeNumber(argv[i + 1], minutes);
      options.Seconds = minutes * 60;
    } else if (option == "--seconds") {
      taken = TakeNumber(argv[i + 1], options.Seconds);
    } else if (option == "--seed") {
      taken = TakeNumber(argv[i + 1], options.Seed);
    } else if (option == "--stores") {
      taken = TakeNumber(argv[i + 1], options.Stores) && options.Stores > 2;
    }
    if (option == "--logs") {
      options.Logs = argv[i + 1];
      taken = !options.Logs.empty();
    }
    if (!taken) return false;
  }
  return true;
}

}  // namespace
}  // namespace store

int main(int argc, char** argv) {
  store::Options options;
  if (!store::ParseArguments(argc, argv, options)) {
    std::fprintf(stderr,
                 "usage: soak_days [--cluster] [--minutes M | --seconds S] [--seed N] [--stores N] "
                 "[--logs DIR]\n");
    return 2;
  }
  // An interrupted run closes the stores, looks at everything, and leaves no server behind.
  std::signal(SIGINT, store::Interrupt);
  std::signal(SIGTERM, store::Interrupt);
  const std::string program =
      std::filesystem::read_symlink("/proc/self/exe").parent_path() / "soak_clerk";
  // Static, so that its server goes with it also where something ends the program.
  static store::Days days(options, program);
  return days.Run();
}
