#pragma once

#include <optional>
#include <string>
#include <vector>

#include "slips/slip.h"
#include "slips/stored_order.h"

namespace store {

/// The order that a form works on, seen from the database: what is known to stand under its key,
/// and which tries to store it have lost their answers. It is stored once, or not at all, however
/// often it is saved and whatever others do to it meanwhile.
class OrderInHand {
 public:
  /// Reads what stands under the key of an order that the form is about to show. One that cannot be
  /// read can be looked at, but not saved.
  void Open(const std::string& slipId);
  /// What the form shows of the opened order is not the whole of it: then it cannot be saved
  /// either.
  void IsNotShown() { opened_.reset(); }
  /// The depot of the opened order's first line; empty without one.
  std::string Depot() const;
  /// How the opened order stood (slips/received_order.h); empty of a new one, and of one that could
  /// not be read.
  std::string Stand() const;
  /// The key of a new order of which a try was sent and lost its answer: it is the order's for
  /// good. Empty when a new key is to be taken.
  const std::string& KeyOfTries() const { return keyOfTries_; }

  /// False when a try has lost its answer and the database cannot even be asked about it: nothing
  /// should be sent then, and `LastErrorText` says so.
  bool TriesCanBeAskedFor() const;

  /// A new order of the same content that another form had sent without an answer is taken up: then
  /// the slip gets its key. To be called before `Save`.
  void FindItsKey(HeadArray& headValues, StringTable& lineValues);

  /// Stores the slip, under the key in its header and lines. True when the
  /// slip stands in the database, whichever try has brought it there. False when it does not, or
  /// nobody knows: `LastErrorText` says in the clerk's words what has happened and what to do.
  bool Save(const HeadArray& headValues, const StringTable& lineValues, const std::string& table);

  /// The form turns to another order. Tries of a new order are kept for the run of the program, so
  /// that whoever types it again does not store it twice.
  void PutAside();

 private:
  bool IsNew() const { return openedId_.empty(); }
  const std::string& KeyToAskFor() const { return IsNew() ? keyOfTries_ : openedId_; }
  TriesFound LookFor(const std::string& slipId, const StoredOrder& order) const;
  bool Post(const HeadArray& headValues, const StringTable& lineValues, const std::string& table);
  bool AfterLostAnswer(const std::string& slipId, const StoredOrder& order);
  bool AfterRefusal(const std::string& slipId, const StoredOrder& order);

  std::string openedId_;
  std::optional<StoredOrder> opened_;  // nothing when it could not be read
  std::string keyOfTries_;             // of a new order
  std::vector<StoredOrder> tries_;     // those without an answer
  bool told_ = false;                  // that one of them is stored, and went on without this form
};

/// Forgets the orders put aside. For the start of a run.
void ResetOrdersInHand();

}  // namespace store
