#include "handheld/wire/replies.h"

#include "basics/numbers.h"

namespace store {
namespace {

std::string Reply(char answer, int counter) {
  return std::string{control::Stx, answer} + FourDigits(counter) + control::Etx;
}

}  // namespace

std::string FourDigits(int count) { return FormatNumber(count, "0000"); }

std::string AcceptOpening() { return Reply(control::Ack, 1); }

std::string AcceptRecord(int counter) { return Reply(control::Ack, counter); }

std::string Reject(int counter) { return Reply(control::Nak, counter); }

}  // namespace store
