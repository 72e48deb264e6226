// The two files played for real: what the sticks do becomes keys in whatever program has the focus. In a
// window of Tarvik nothing is sent: the keys would go into the files. Whatever happens, nothing stays down.
#pragma once

#include <memory>
#include <optional>

#include "play/Player.h"
#include "workbench/FileModels.h"
#include "workbench/Notices.h"
#include "workbench/StickFeed.h"

namespace tarvik {

class Flight {
 public:
  /// So long the controls that end it are held.
  static constexpr std::chrono::milliseconds kChord{2000};
  /// The controls that end it.
  static constexpr std::string_view kEndControls[] = {"S1", "S4"};

  enum class Phase : std::uint8_t {
    Ended,
    Beginning,  ///< a way to send keys is looked for
    Flying,
  };

  Flight(Platform& platform, FileModels& models, StickFeed& sticks, Notices& notices);
  ~Flight();
  Flight(const Flight&) = delete;
  Flight& operator=(const Flight&) = delete;

  /// Where it has not begun.
  void Begin();
  /// Everything goes up. `why` is for the user.
  void End(const std::string& why = {});

  [[nodiscard]] Phase Now() const { return phase_; }
  /// It flies, and keys are not held back for a window of Tarvik.
  [[nodiscard]] bool IsSending() const { return player_ != nullptr; }
  /// How keys go; what was found last, or nothing yet.
  [[nodiscard]] const std::optional<KeyOutputState>& Way() const { return way_; }
  /// Why it has ended, or could not begin; empty where the user ended it.
  [[nodiscard]] const std::string& WhyEnded() const { return whyEnded_; }
  /// A key or a button of the mouse that is down.
  [[nodiscard]] bool IsDown(play::Position position) const { return player_ && player_->IsDown(position); }

  /// It has begun or ended, or keys are held back or not.
  Signal<> Changed;
  /// A key or button went down or up.
  Signal<play::Position, bool> Sent;

 private:
  void Take(const KeyOutputState& state);
  /// Plays on where keys may go, and else lets go of everything.
  void Turn();
  void Hear(const play::ControlEvent& event);
  void HearChord(const play::ControlEvent& event);
  void Ring();
  void SetAlarm();
  void FilesChanged();

  Platform& platform_;
  FileModels& models_;
  StickFeed& sticks_;
  Notices& notices_;
  Phase phase_ = Phase::Ended;
  std::optional<KeyOutputState> way_;
  std::string whyEnded_;
  std::unique_ptr<play::Player> player_;
  std::array<bool, std::size(kEndControls)> chord_ = {};
  std::optional<Alarm::Time> chordEnds_;
  std::optional<Alarm::Time> filesSettle_;
  std::unique_ptr<StickFeed::Listening> listening_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
