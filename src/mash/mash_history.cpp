#include "mash/mash_history.h"

#include <utility>

namespace wortlex {
namespace {

constexpr std::size_t most_designs = 200;

} // namespace

void MashHistory::begin(const State& before, std::string_view key) {
    const bool goes_on = !key.empty() && key == key_;
    key_ = key;
    undone_.clear();
    if (goes_on) return;
    done_.push_back(before);
    if (done_.size() > most_designs) done_.pop_front();
}

MashHistory::State MashHistory::take(const State& now, std::deque<State>& from, std::deque<State>& to) {
    key_.clear();
    to.push_back(now);
    const auto state = from.back();
    from.pop_back();
    return state;
}

} // namespace wortlex
