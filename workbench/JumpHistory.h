// Where the user has been: leads back to where the caret was before it went far, and forward again.
#pragma once

#include "workbench/Documents.h"

namespace tarvik {

/// Going into the other file is far, and so is going over more than a few lines, whoever moved the caret.
class JumpHistory {
 public:
  explicit JumpHistory(Documents& documents);

  void Back() { Go(back_, forward_); }
  void Forward() { Go(forward_, back_); }
  /// The user has been nowhere yet.
  void Forget();
  [[nodiscard]] bool CanGoBack() const { return !back_.empty(); }
  [[nodiscard]] bool CanGoForward() const { return !forward_.empty(); }

  /// There is somewhere to go to, or no longer.
  Signal<> Changed;

 private:
  struct Place {
    Document* document;
    std::size_t position;
  };

  [[nodiscard]] Place Caret() const;
  [[nodiscard]] static bool IsFar(const Place& one, const Place& other);
  void CaretMoved();
  void Follow(const Document& document, const PaneEdit& edit);
  /// To the last of `from`, which is left for `to`.
  void Go(std::vector<Place>& from, std::vector<Place>& to);

  Documents& documents_;
  std::vector<Place> back_;
  std::vector<Place> forward_;
  Place here_;
  bool going_ = false;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
