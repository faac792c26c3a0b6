#pragma once

#include <string>
#include <vector>

namespace store {

/// The tabs by which the lookups list names by their initial consonant.

/// Captions of the fifteen tabs, "가" to "하" and "기타".
const std::vector<std::string>& ConsonantTabCaptions();

/// What a tab (from 0) asks of a name column: that its first syllable lies from the tab's letter up
/// to the next one's; of the last tab, that it lies outside of all of them.
struct ConsonantRange {
  bool Rest = false;
  std::string From;  ///< First syllable that belongs to the tab.
  std::string To;    ///< First syllable that does not any more.
};
ConsonantRange RangeOfTab(int tab);

}  // namespace store
