#pragma once

#include <cstdint>
#include <string>

namespace store {

/// The workstation's options: file "OPT.ini" beside the program or where forms/program_places.h
/// says, a private profile in code page 949 (see basics/profile_file.h).

/// The one section of the options file.
inline constexpr const char* kOptionSection = "TARNWICK";
/// The key of the order type.
inline constexpr const char* kOrderTypeKey = "발주타입";

/// What is wrong with a file that is there and is passed over; empty when nothing is.
std::string OptionsFileFault();

/// The value of a key, at most 254 bytes of code page 949; empty when the key is absent.
std::string ReadOption(const std::string& section, const std::string& key);

/// Writes one key. A failure is told to the user in a box; the caller goes on with the next key.
void WriteOption(const std::string& section, const std::string& key, const std::string& value);

/// A number option's value: the leading numeric part, rounded half to even; 0 when there is none.
std::int16_t OptionNumber(const std::string& value);

}  // namespace store
