#include "completion/candidate_list.h"

namespace kovalt {

void CandidateList::add(const std::string& word) {
  if (words_.size() < kLongest) {
    if (known_.insert(word).second) {
      words_.push_back(word);
    }
    return;
  }
  if (known_.count(word) != 0) {
    return;
  }
  if (!cut_ || word < least_) {
    least_ = word;
  }
  if (!cut_ || word > greatest_) {
    greatest_ = word;
  }
  cut_ = true;
}

std::vector<std::string> CandidateList::words() const {
  std::vector<std::string> words = words_;
  if (cut_) {
    words.push_back(least_);
    if (greatest_ != least_) {
      words.push_back(greatest_);
    }
  }
  return words;
}

}  // namespace kovalt
