#pragma once

#include <string>

namespace store {

/// The bytes by which the terminal and the program steer each other.
namespace control {
inline constexpr char Stx = 2;  ///< Begins a frame.
inline constexpr char Etx = 3;  ///< Ends a frame.
inline constexpr char Eot = 4;  ///< Closes a transfer.
inline constexpr char Enq = 5;  ///< Opens a transfer.
inline constexpr char Ack = 6;
inline constexpr char Nak = 21;
}  // namespace control

/// What the program sends: STX, ACK or NAK, a counter of four digits, ETX. A counter above 9999
/// takes a fifth digit.

/// The transfer may begin.
std::string AcceptOpening();
/// The record with that number has been taken.
std::string AcceptRecord(int counter);
/// What came was no message; the terminal sends it again.
std::string Reject(int counter);

/// A count as the replies and the window show it: four digits.
std::string FourDigits(int count);

}  // namespace store
