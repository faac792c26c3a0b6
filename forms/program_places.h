#pragma once

#include <string>

namespace store {

/// Where a program that stands in a folder of the system, which its users cannot write to, has the
/// files that otherwise stand beside it. All empty for a program with a folder of its own.
struct ProgramPlaces {
  std::string OwnOptions = {};  ///< The options file of the user; it comes before the machine's.
  std::string MachineOptions = {};  ///< The one that an administrator has written for all users.
  std::string WorkFolder = {};      ///< For the files that go to the terminal's cradle.
};

inline ProgramPlaces Places;

/// The options file that counts: the user's own where there is one, then the machine's, then the
/// one beside the program.
std::string OptionsFileInUse();

/// The options file that a change goes to: the user's own, which begins as a copy of the machine's,
/// or the one beside the program. Empty when the copy cannot be made.
std::string OptionsFileToWrite();

/// The folder in which the program puts its work, without a slash at the end.
std::string WorkFolder();

}  // namespace store
