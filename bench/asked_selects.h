#pragma once

#include <functional>
#include <string>
#include <vector>

namespace store {

/// The SELECTs that `work` sends to the server behind `port`, in their order, as the server's own
/// log has them.
std::vector<std::string> SelectsOf(int port, const std::function<void()>& work);

}  // namespace store
