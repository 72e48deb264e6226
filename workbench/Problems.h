// What is wrong in the two files, kept up while somebody types.
#pragma once

#include "language/Problems.h"
#include "workbench/FileModels.h"
#include "workbench/Pause.h"

namespace tarvik {

/// What problems of a severity are marked with.
[[nodiscard]] Colour ColourOf(model::Severity severity);
/// It looks anew a moment after the last edit. Until then what it found moves with the text.
class Problems {
  Component owner_{"Problems"};  // the timer is made in it, and the frame adopts it

 public:
  Problems(Documents& documents, const FileModels& models);

  Pause pause{owner_, "TimerProblems", 80, [this] { Renew(); }};

  /// Those of a document, by their places.
  [[nodiscard]] const std::vector<model::Problem>& Of(const Document& document) const {
    return found_.Of(document);
  }
  [[nodiscard]] std::size_t Count(model::Severity severity) const;
  /// Those that a range may lie in, and maybe others that begin close before it.
  [[nodiscard]] std::span<const model::Problem> In(const Document& document, Range range) const;
  /// The gravest of those that a position lies in; null where it lies in none.
  [[nodiscard]] const model::Problem* At(const Document& document, std::size_t position) const;

  /// Looks now, whether somebody wants to see it or not.
  void Renew();
  /// Selects what is wrong.
  void GoTo(const model::Problem& problem);
  /// Goes to the problem behind the caret, or before it: those of the joystick file, then those of the macro
  /// file, and round again.
  void GoToNext() { Go(1); }
  void GoToPrevious() { Go(-1); }
  void GoToFirstError();

  /// There are others.
  Signal<> Changed;

 private:
  [[nodiscard]] bool IsWanted() const;
  void ShowOrForget();
  void Follow(const Document& document, const PaneEdit& edit);
  void Go(int step);

  Documents& documents_;
  const FileModels& models_;
  PerDocument<std::vector<model::Problem>> found_;
  std::size_t longest_ = 0;  // of all of them, or more
  bool torn_ = false;        // an edit has taken some away since they were last looked for
  std::vector<Connection> connections_;
};

/// How many there are, in words: "2 errors, 1 hint"; empty where there are none.
[[nodiscard]] std::string InWords(const Problems& problems);

}  // namespace tarvik
