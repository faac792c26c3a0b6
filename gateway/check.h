#pragma once

namespace store {

/// Holds the program to a rule that its own code has to keep. When `kept` is false a build with
/// STORE_CHECKS, which is any but a package's, ends with `rule` on the standard error; a package's
/// build goes on.
void Check(bool kept, const char* rule);

}  // namespace store
