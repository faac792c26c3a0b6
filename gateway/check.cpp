#include "gateway/check.h"

#ifdef STORE_CHECKS
#include <cstdio>
#include <cstdlib>
#endif

namespace store {

#ifdef STORE_CHECKS
void Check(bool kept, const char* rule) {
  if (kept) return;
  std::fprintf(stderr, "broken rule: %s\n", rule);
  std::abort();
}
#else
void Check(bool /*kept*/, const char* /*rule*/) {}
#endif

}  // namespace store
