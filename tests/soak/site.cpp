#include "tests/soak/site.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <thread>
#include <utility>

#include "private_db/free_port.h"

namespace store {
namespace {

constexpr const char* kOptions = "--innodb-lock-wait-timeout=2 --max-connections=300";
constexpr int kFreezeInTen = 3;

std::string Local(int port) { return "127.0.0.1:" + std::to_string(port); }

/// What a server needs to be a node of the cluster; docs/soak.md says which of it a deployment has
/// to set too. The provider's own options stand behind semicolons.
std::string NodeOptions(const std::string& members, int groupPort) {
  const std::string provider =
      "gmcast.listen_addr=tcp://" + Local(groupPort) + ";ist.recv_addr=" + Local(FreePort()) +
      ";gcache.size=256M;evs.suspect_timeout=PT3S;evs.inactive_timeout=PT9S";
  return std::string(kOptions) +
         " --wsrep-on=ON --wsrep-provider=/usr/lib/galera/libgalera_smm.so"
         " --wsrep-cluster-name=soak --wsrep-cluster-address=gcomm://" +
         members + " --wsrep-node-address=127.0.0.1 --wsrep-provider-options=" + provider +
         " --wsrep-sst-method=rsync --wsrep-sst-receive-address=" + Local(FreePort()) +
         " --binlog-format=ROW --innodb-autoinc-lock-mode=2 --wsrep-sync-wait=15";
}

}  // namespace

Site::Site(int nodes, std::function<void(const std::string& what)> failed)
    : failed_(std::move(failed)) {
  std::vector<int> groupPorts;
  std::string members;
  for (int i = 0; i < nodes; ++i) {
    groupPorts.push_back(FreePort());
    members += (members.empty() ? "" : ",") + Local(groupPorts.back());
  }
  for (const int port : groupPorts) {
    nodes_.push_back(std::make_unique<PrivateDbServer>(
        "store_soak", "", [this](const std::string& what) { Note(what); },
        nodes == 1 ? kOptions : NodeOptions(members, port)));
  }
}

void Site::Start(const std::string& database) {
  nodes_.front()->Start(IsCluster() ? "--wsrep-new-cluster" : "");
  nodes_.front()->MakeSchema(database);
  std::for_each(nodes_.begin() + 1, nodes_.end(), [](const auto& node) { node->Start(); });
  TellWhatFailed();
}

void Site::Note(const std::string& what) {
  const std::lock_guard lock(mutex_);
  wrong_ += what + "\n";
}

void Site::TellWhatFailed() {
  const std::lock_guard lock(mutex_);
  if (!wrong_.empty()) failed_(wrong_);
}

bool Site::SomebodyIsAway() const {
  return comingBack_.valid() &&
         comingBack_.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

std::vector<int> Site::Ports() const {
  std::vector<int> ports;
  std::transform(nodes_.begin(), nodes_.end(), std::back_inserter(ports),
                 [](const auto& node) { return node->Port(); });
  return ports;
}

void Site::Strike(std::mt19937& random, std::map<std::string, long>& faults) {
  TellWhatFailed();
  PrivateDbServer& node = *nodes_[random() % nodes_.size()];
  const std::chrono::milliseconds away(200 + random() % 3500);
  const bool freezes = random() % 10 < kFreezeInTen;
  if (SomebodyIsAway()) return;
  ++faults[freezes ? "server frozen" : "server killed"];
  if (freezes) {
    node.Freeze();
    comingBack_ = std::async(std::launch::async, [&node, away] {
      std::this_thread::sleep_for(away);
      node.Thaw();
    });
    return;
  }
  node.Kill();
  if (!IsCluster()) return node.Start();
  comingBack_ = std::async(std::launch::async, [&node, away] {
    std::this_thread::sleep_for(away);
    node.Start();
  });
}

void Site::AwaitEverybody() {
  if (comingBack_.valid()) comingBack_.get();
  TellWhatFailed();
}

}  // namespace store
