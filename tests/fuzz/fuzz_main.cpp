// What the fuzzer calls with each of its inputs.
#include "tests/fuzz/wire_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  store::FuzzWire(data, size);
  return 0;
}
