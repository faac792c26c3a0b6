#include "slips/slip.h"

#include <array>

namespace store {

std::string StateWord(const std::string& state) {
  static constexpr std::array<const char*, 5> words = {kWordEditing, kWordConfirmed, kWordApproved,
                                                       kWordShipped, kWordReceived};
  if (state.size() == 1 && state[0] >= '0' && state[0] <= '4') {
    return words[static_cast<size_t>(state[0] - '0')];
  }
  return state;
}

}  // namespace store
