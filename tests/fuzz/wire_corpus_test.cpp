#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/fuzz/wire_fuzz.h"

namespace store {
namespace {

// What the fuzzer began with, and what it has ever found.
TEST(WireCorpus, HoldsEveryRule) {
  int inputs = 0;
  for (const auto& entry : std::filesystem::directory_iterator(STORE_FUZZ_CORPUS)) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), {});
    FuzzWire(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++inputs;
  }
  EXPECT_GT(inputs, 5);
}

}  // namespace
}  // namespace store
