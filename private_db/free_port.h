#pragma once

namespace store {

/// A port of the loopback on which nobody listens, for a private server and its next starts; 0 when
/// there is none.
int FreePort();

}  // namespace store
