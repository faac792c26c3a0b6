// The handheld terminal's path: frames from the line into the grid, the grid into the staging
// table, the products into the cradle's file.
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "basics/text.h"
#include "bench/benches.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "handheld/DT9RECEV.h"
#include "handheld/FRM_CRDIMP.h"
#include "tests/handheld/terminal_text.h"
#include "tests/support/scripted_port.h"

namespace store {
namespace {

constexpr int kFrames = 10000;
constexpr int kRounds = 5;

/// A pseudo-terminal of which this process holds both ends.
class Line {
 public:
  Line() : near_(posix_openpt(O_RDWR | O_NOCTTY)) {
    grantpt(near_);
    unlockpt(near_);
    far_ = open(ptsname(near_), O_RDWR | O_NOCTTY);
    termios settings{};
    tcgetattr(far_, &settings);
    cfmakeraw(&settings);
    tcsetattr(far_, TCSANOW, &settings);
  }
  ~Line() {
    close(far_);
    close(near_);
  }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  /// Sends the bytes and takes them out at the other end.
  std::string Through(const std::string& bytes) const {
    std::string came(bytes.size(), '\0');
    if (write(near_, bytes.data(), bytes.size()) < 0) return {};
    size_t taken = 0;
    while (taken < came.size()) {
      const ssize_t got = read(far_, came.data() + taken, came.size() - taken);
      if (got <= 0) return {};
      taken += static_cast<size_t>(got);
    }
    return came;
  }

 private:
  int near_;
  int far_ = -1;
};

/// Frames of purchased goods, as bytes of the line. `barcodes` come in turn.
std::vector<std::string> Frames(const std::vector<std::string>& barcodes) {
  std::vector<std::string> frames;
  for (int i = 0; i < kFrames; ++i) {
    const std::string number = std::to_string(1 + i % 9999);
    frames.push_back(ToCodePage949(FrameOf(
        TradeRecord('0', number, kSupplier, barcodes[static_cast<size_t>(i) % barcodes.size()],
                    "고운 신선한 사이다", "12", "500"))));
  }
  return frames;
}

std::vector<std::string> Barcodes() {
  const RecordsetSlot products = FetchRecordset(
      "SELECT PR_BCODE FROM PR WHERE PR_BCODE<>'' ORDER BY PR_PTNO DESC LIMIT 10000");
  std::vector<std::string> barcodes;
  ForEachRow(products, [&] { barcodes.push_back(FieldText(products, 0)); });
  return barcodes;
}

/// The receive form in the middle of a transfer.
class Receiving {
 public:
  Receiving() {
    Host.MakeSerialPort = [this] {
      auto port = std::make_unique<ScriptedPort>();
      port_ = port.get();
      return port;
    };
    form_ = std::make_unique<DT9RECEV>();
    form_->KindCaption = "매    입";
    form_->ModuleCode = "23";
    form_->EnsureLoaded();
    form_->Activate();
  }
  void Begin() {
    form_->SetPortOpen(false);
    form_->FLEX.SetRows(1);
    form_->SetPortOpen(true);
    port_->Sent.clear();
    form_->OnHandheldChunk(kOpening);
  }
  DT9RECEV& Form() { return *form_; }

 private:
  std::unique_ptr<DT9RECEV> form_;
  ScriptedPort* port_ = nullptr;
};

void BenchFrames(Receiving& receiving, const std::vector<std::string>& frames, RatioTable& table) {
  const Line line;
  table.AddTimes(
      "10,000 frames through protocol, parser and grid, against reading and dropping them",
      MeasureBoth(
          kRounds,
          [&] {
            receiving.Begin();
            for (const std::string& frame : frames) {
              receiving.Form().OnHandheldChunk(FromCodePage949(line.Through(frame)));
            }
          },
          [&] {
            for (const std::string& frame : frames) line.Through(frame);
          }),
      3);
  std::printf("  %d rows\n", receiving.Form().FLEX.Rows() - 1);
}

/// Passes everything on to the real tier and keeps the last statements.
class Listening : public DataTier {
 public:
  explicit Listening(std::shared_ptr<DataTier> tier) : tier_(std::move(tier)) {}
  std::unique_ptr<Recordset> GETSQL(const std::string& statement, std::string& errorText,
                                    const std::string& connectString) override {
    Read = statement;
    return tier_->GETSQL(statement, errorText, connectString);
  }
  bool PUTSQL(const std::vector<std::string>& statements, std::string& errorText,
              const std::string& connectString) override {
    Batch = statements;
    return tier_->PUTSQL(statements, errorText, connectString);
  }
  std::string Read;
  std::vector<std::string> Batch;

 private:
  std::shared_ptr<DataTier> tier_;
};

class ListeningDataSpace : public DataSpaceObject {
 public:
  std::shared_ptr<DataTier> CreateObject(const std::string& progId,
                                         const std::string& address) override {
    if (Tier == nullptr) {
      Tier = std::make_shared<Listening>(DataSpaceObject::CreateObject(progId, address));
    }
    return Tier;
  }
  std::shared_ptr<Listening> Tier;
};

void BenchStaging(Receiving& receiving, RatioTable& table) {
  const auto clear = [] { ExecuteBatch({"", "TRUNCATE TABLE DT900"}); };
  for (int row = 1; row < receiving.Form().FLEX.Rows(); ++row) {
    receiving.Form().FLEX.SetTextMatrix(row, received::Code, kSupplier);
  }
  receiving.Form().Label7.Caption = "u01";
  std::unique_ptr<DataSpaceObject> before = std::move(DataSpace);
  auto listening = std::make_unique<ListeningDataSpace>();
  ListeningDataSpace& space = *listening;
  DataSpace = std::move(listening);
  receiving.Form().SaveToStaging();
  const std::string read = space.Tier->Read;
  const std::vector<std::string> batch = space.Tier->Batch;
  Duel best{1e9, 1e9};
  for (int round = 0; round < 3; ++round) {
    clear();
    best.Ours = std::min(best.Ours, TimeOf([&] { receiving.Form().SaveToStaging(); }));
    clear();
    best.Peer = std::min(best.Peer, TimeOf([&] {
                           FetchRecordset(read);
                           ExecuteBatch(batch);
                         }));
  }
  clear();
  DataSpace = std::move(before);
  table.AddTimes("10,000 rows staged, against the read and the batch alone", best, 1.3);
}

void BenchMaster(RatioTable& table) {
  Host.ProgramFolder = std::filesystem::temp_directory_path().string() + "/store_bench_master";
  std::filesystem::create_directories(Host.ProgramFolder);
  std::string read;
  {
    std::unique_ptr<DataSpaceObject> before = std::move(DataSpace);
    auto listening = std::make_unique<ListeningDataSpace>();
    ListeningDataSpace& space = *listening;
    DataSpace = std::move(listening);
    FRM_CRDIMP().Command1_Click(0);
    read = space.Tier->Read;
    DataSpace = std::move(before);
  }
  table.AddTimes("MASTER.txt of all products, against its read",
                 MeasureBoth(
                     3, [] { FRM_CRDIMP().Command1_Click(0); }, [&] { FetchRecordset(read); }),
                 1.3);
  std::filesystem::remove_all(Host.ProgramFolder);
}

}  // namespace

void BenchHandheld(RatioTable& table) {
  HostDoor door = std::exchange(Host, EmptyHost());
  {
    Receiving receiving;
    BenchFrames(receiving, Frames(Barcodes()), table);
    BenchStaging(receiving, table);
  }
  BenchMaster(table);
  Host = std::move(door);
}

}  // namespace store
