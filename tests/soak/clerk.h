#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tests/soak/clerk_host.h"
#include "tests/soak/day_log.h"
#include "tests/soak/fault_proxy.h"

namespace store {

class frm_Start;
class frm_PE_UNIT;
class FRM_DT900_01;
class OrderForm;
class LookupForm;

/// Which clerk works where, as the driver tells the process.
struct ClerkPlace {
  std::string Folder;            ///< Log, numbers and the program's folder of this terminal.
  std::vector<int> ServerPorts;  ///< The one it goes to first, then the others.
  int Store = 0;
  int Terminal = 0;  ///< Of the store; the first two belong to one user.
  int Stores = 0;
  unsigned Seed = 0;
};

/// How a clerk's process ends.
namespace clerk_end {
inline constexpr int Closing = 0;   ///< She was told to go home.
inline constexpr int Restart = 10;  ///< The program is to be started again.
inline constexpr int NoLogin = 11;  ///< The server was not there.
}  // namespace clerk_end

/// One terminal of one store: the real program from its login on, without a screen, over a line
/// that faults strike. What is done and which fault strikes comes from the seed alone.
class Clerk {
 public:
  explicit Clerk(const ClerkPlace& place);

  /// Works until the program is to end, and says how. `stop` turns true at closing time.
  int Run(const volatile bool& stop);

 private:
  /// A document in work: the order, receipt or pass that presses belong to, from the first press to
  /// the moment when the clerk turns away from it.
  struct Work {
    std::string Group;
    std::function<void(const std::string& press)> NoteIntent;
    std::function<void()> Press;
    std::function<std::string()> Key;  ///< Of what was sent, as far as the form knows it.
  };

  // clerk.cpp
  bool LogIn();
  void WriteOptions() const;
  void Act();
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  bool Percent(int chance) { return Below(100) < chance; }
  void Pause();
  void PassMidnight();
  std::string NextGroup();
  void ArmFault();
  std::string PressOnce(const Work& work);
  /// Presses, and presses again after what was not stored, until the clerk gives up. True when
  /// stored.
  bool PressUntilDone(const Work& work);
  frm_Start& Board() const;
  /// Makes a row of the board's list the selected one. False when there is none.
  bool SelectOnBoard(int option);
  std::string TokenQuantity(int product);
  void Release() const;

  // clerk_orders.cpp
  void NewOrder();
  void ChangeOrder();
  void DeleteOrRevert(bool revert);
  bool FillOrder(OrderForm& form);
  bool ChooseSupplier(OrderForm& form, int product);
  void TakePartner(LookupForm& lookup) const;
  bool AddLine(OrderForm& form, int product, const std::string& quantity);
  bool EditOrder(OrderForm& form);
  bool SetToken(OrderForm& form);
  void ConnectOrder(OrderForm& form, Work& work, int button, const std::string& from);
  OrderForm* OpenOrder() const;
  std::string StateToStore(int button) const;

  // clerk_goods.cpp
  void ReceiveGoods();
  void ReceiveAgain();
  void WorkOnReceipt(frm_PE_UNIT& form);
  void RunPass();
  bool StageRows(const std::string& module);
  void WorkOnPass(FRM_DT900_01& form);

  const ClerkPlace place_;
  ClerkNumbers& numbers_;
  const DayLog log_;
  ClerkHost host_;
  FaultProxy proxy_;
  std::mt19937 random_;
  std::string wantedPartner_;          // in the lookup
  std::string token_;                  // of the order in work
  std::string openedAt_;               // when the receipt in work was about to be read
  std::vector<std::string> received_;  // orders of which this clerk has received the goods
  int waiting_ = 0;                    // orders that the board last showed as to be received
};

/// Microseconds of the machine's clock.
std::string MicrosecondsNow();

}  // namespace store
