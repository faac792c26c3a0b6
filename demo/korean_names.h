#pragma once

#include <string>

#include "demo/random.h"

namespace store::demo {

/// A person's name: family name and a given name of two syllables.
std::string PersonName(Random& random);

/// The first address line: province or city, district and road with a number.
std::string StreetAddress(Random& random);

/// A telephone number behind that prefix, with the exchange 000 that no subscriber has.
std::string PhoneNumber(Random& random, const std::string& prefix);

/// A business registration number in its usual grouping, from a series that is not given out.
std::string BusinessNumber(Random& random);

}  // namespace store::demo
