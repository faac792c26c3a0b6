#pragma once

namespace store {

/// The pointer is an hourglass for as long as one of these lives. Steps within a long step do not
/// turn it back before the whole is done.
class Hourglass {
 public:
  Hourglass();
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace store
