// The dice of a random user: a seed and a round give the same throws again.
#pragma once

#include <cstddef>
#include <random>

namespace tarvik::events {

class Chance {
 public:
  Chance(unsigned seed, unsigned round) {
    std::seed_seq both{seed, round};
    dice_.seed(both);
  }

  /// From 0; the same on every machine.
  std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : dice_() % limit; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }
  template <class Items>
  auto& OneOf(Items& items) {
    return items[Below(std::size(items))];
  }

 private:
  std::mt19937 dice_;
};

}  // namespace tarvik::events
