// Press to find: what is pressed on a stick lights, and its statement glows; and the control of the statement
// at the caret lights, too. All of it is painted by those who ask here, and nothing takes the focus.
#pragma once

#include <set>

#include "workbench/FileModels.h"
#include "workbench/Pause.h"
#include "workbench/StickFeed.h"

namespace tarvik {

class FollowStick {
 public:
  FollowStick(Documents& documents, const FileModels& models, StickFeed& feed);
  FollowStick(const FollowStick&) = delete;
  FollowStick& operator=(const FollowStick&) = delete;

  Pause typing;   ///< after a key
  Pause resting;  ///< after an axis has moved

  [[nodiscard]] bool IsOn() const { return listening_ != nullptr; }
  /// Whether a control, by its name in the files, is pressed or moved, or assigned at the caret.
  [[nodiscard]] bool Lights(std::string_view control) const;
  /// Whether it is pressed or moved just now.
  [[nodiscard]] bool IsHeld(std::string_view control) const {
    return IsOn() && (pressed_.contains(control) || moving_.contains(control));
  }
  /// The statement of the control that was pressed last and the macros that it names, where they are defined:
  /// all of each statement. Empty for none.
  [[nodiscard]] const std::vector<model::Mention>& Glow() const { return glow_; }

  /// Another control lights, or another statement glows.
  Signal<> Changed;
  /// What glows is to be seen, the first of it in each file. Not while the user types.
  Signal<> Shows;

 private:
  void Switch();
  void Follow(const play::ControlEvent& event);
  void Press(std::string_view control);
  [[nodiscard]] std::vector<model::Mention> GlowOf(const model::Mention& assignment) const;
  void MoveAxis(std::string_view axis, double position);
  void FollowCaret();
  void Edited(const PaneEdit& edit);

  Documents& documents_;
  const FileModels& models_;
  StickFeed& feed_;
  bool isTyping_ = false;
  std::set<std::string, std::less<>> pressed_;
  std::set<std::string, std::less<>> moving_;
  std::vector<std::pair<std::string, double>> positions_;  // of axes, when they last counted as moved
  std::string atCaret_;
  std::vector<model::Mention> glow_;
  std::vector<Connection> connections_;
  std::unique_ptr<StickFeed::Listening> listening_;
};

}  // namespace tarvik
