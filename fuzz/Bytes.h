// The fuzzer's bytes, handed out one after another as the choices that a target makes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarvik {

class Bytes {
 public:
  Bytes(const unsigned char* data, std::size_t size) : data_(data), size_(size) {}

  [[nodiscard]] bool Empty() const { return at_ >= size_; }
  /// 0 when there are no more.
  std::size_t Below(std::size_t limit) { return Empty() || limit == 0 ? 0 : data_[at_++] % limit; }
  template <class T, std::size_t N>
  const T& OneOf(const T (&items)[N]) {
    return items[Below(N)];
  }
  /// The next ones as they are, or as many as there are.
  std::string Next(std::size_t length) {
    std::string next;
    for (; !Empty() && next.size() < length; ++at_) next += static_cast<char>(data_[at_]);
    return next;
  }
  std::string Rest() { return Next(size_); }

 private:
  const unsigned char* data_;
  std::size_t size_;
  std::size_t at_ = 0;
};

}  // namespace tarvik
