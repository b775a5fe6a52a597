#include "json/tuning/first_match_index.h"

#include <algorithm>

namespace kovalt {

void FirstMatchIndex::grow() {
  std::vector<Slot> old(std::max(kFirstSlots, slots_.size() * 2));
  old.swap(slots_);
  for (const Slot& slot : old) {
    if (slot.isFree()) {
      continue;
    }
    std::size_t i = slot.hash & (slots_.size() - 1);
    while (!slots_[i].isFree()) {
      i = (i + 1) & (slots_.size() - 1);
    }
    slots_[i] = slot;
  }
}

}  // namespace kovalt
