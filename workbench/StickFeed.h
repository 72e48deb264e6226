// What the sticks do, told as what the controls of the hardware do, for everybody who listens; and the map by
// which it is told, which is kept in the settings file.
#pragma once

#include <memory>
#include <vector>

#include "controls/Signal.h"
#include "platform/Platform.h"
#include "play/StickReader.h"
#include "workbench/Errors.h"
#include "workbench/Settings.h"

namespace tarvik {

class StickFeed {
 public:
  StickFeed(Platform& platform, Settings& settings, Errors& errors)
      : platform_(platform), settings_(settings), errors_(errors) {}
  StickFeed(const StickFeed&) = delete;
  StickFeed& operator=(const StickFeed&) = delete;

  /// The sticks are read as long as one of these lives. The feed outlives it.
  class Listening {
   public:
    explicit Listening(StickFeed& feed) : feed_(feed) { feed_.Add(); }
    ~Listening() { feed_.Drop(); }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;

   private:
    StickFeed& feed_;
  };
  /// All controls are let go of, and axes and switches tell anew where they are.
  [[nodiscard]] std::unique_ptr<Listening> Listen() { return std::make_unique<Listening>(*this); }

  /// The sticks that are plugged in, as far as somebody listens.
  [[nodiscard]] const std::vector<StickInfo>& Present() const { return present_; }
  [[nodiscard]] static play::StickId IdOf(const StickInfo& stick) {
    return {stick.guid, stick.name, stick.path};
  }

  [[nodiscard]] const play::StickMap& Map();
  /// Takes the map in use, and keeps it.
  void Use(const play::StickMap& map);

  /// What a control does; the name is good until the call returns.
  Signal<const play::ControlEvent&> Happened;
  /// What a stick does, mapped or not.
  Signal<const StickChange&> Moved;
  /// Sticks came or went.
  Signal<> PresentChanged;

 private:
  void Add();
  void Drop();
  void Read();
  Outcome<> Keep();

  Platform& platform_;
  Settings& settings_;
  Errors& errors_;
  int listeners_ = 0;
  bool isRead_ = false;
  play::StickMap map_;
  std::vector<StickInfo> present_;
  play::StickReader reader_{[this](const play::ControlEvent& event) { Happened(event); }};
};

}  // namespace tarvik
