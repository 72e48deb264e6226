#include "tools/testing/Fly.h"

#include "text/CodePage.h"
#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

constexpr const char* kStops = " Ctrl+Alt+End stops, and so do S1 and S4 held for two seconds.";
constexpr const char* kStopsWithoutHotKey =
    " S1 and S4 held for two seconds stop; Ctrl+Alt+End is not heard here.";

std::string StateOf(const Flight& flight) {
  switch (flight.Now()) {
    case Flight::Phase::Beginning:
      return "Looking for a way to send keys ...";
    case Flight::Phase::Flying:
      return flight.IsSending() ? "Flying: what the stick does is sent to the program in front."
                                : "Flying. Go to another program: in Tarvik's own windows no key is sent.";
    default:
      return flight.WhyEnded().empty() ? "Not flying." : "Not flying. " + flight.WhyEnded();
  }
}

std::string WayOf(const std::optional<KeyOutputState>& state) {
  if (!state) return "Which way keys can be sent is found out at the start.";
  std::string words = state->way == KeyWay::Uinput  ? "Keys go by a keyboard of Tarvik's own (uinput)."
                      : state->way == KeyWay::Xtest ? "Keys go by the X server (XTEST)."
                                                    : "";
  if (!state->why.empty()) words.append(words.empty() ? "" : " ").append(state->why);
  if (state->way != KeyWay::None) words.append(state->hotKey ? kStops : kStopsWithoutHotKey);
  const char* const mends =
      state->way == KeyWay::None ? " This command mends it:" : " This command gives a better way:";
  if (!state->mend.empty()) words.append(mends);
  return words;
}

}  // namespace

Fly::Fly(Workbench& bench, Shell& shell) : ToolForm("Fly", bench, shell) {
  Caption = "Fly";
  for (Label* const label : {&State, &Way, &Mend, &KeysDown}) label->BackColor = ToggleLabel::kOff;
  CopyMend.ToolTipText = "Put the command on the clipboard";
  MapSticks.ToolTipText = "Say which button stands for which control";
  TryIt.ToolTipText = "See what would be sent, without sending anything";
  Start.MakeDefault();
  Done.Cancel = true;
  HelpButton.Click = [this] { ShowHelp(bench_.platform, topic::kFly); };
  connections_.push_back(bench.flight.Changed.Connect([this] { ShowFlight(); }));
  connections_.push_back(bench.flight.Sent.Connect([this](play::Position, bool) { ShowKeys(); }));
  connections_.push_back(bench.sticks.PresentChanged.Connect([this] { ShowSticks(); }));
  listening_ = bench.sticks.Listen();
  ShowFlight();
  ShowSticks();
}

void Fly::ShowFlight() {
  const Flight& flight = bench_.flight;
  State.Caption = StateOf(flight);
  Way.Caption = WayOf(flight.Way());
  const std::string mend = flight.Way() ? flight.Way()->mend : std::string();
  Mend.Caption = mend;
  Mend.Visible = !mend.empty();
  CopyMend.Visible = !mend.empty();
  Start.Caption = flight.Now() == Flight::Phase::Ended ? "&Fly" : "&Stop";
  ShowKeys();
}

void Fly::ShowSticks() {
  std::vector<std::string> items;
  for (const StickInfo& stick : bench_.sticks.Present()) {
    const play::StickMap::Stick* const known = bench_.sticks.Map().StickOf(StickFeed::IdOf(stick));
    const std::size_t mapped = known ? known->rows.size() : 0;
    std::string item = FromUtf8(stick.name);
    item.append(mapped == 0 ? ": not mapped yet" : ": " + std::to_string(mapped) + " inputs are mapped");
    items.push_back(std::move(item));
  }
  if (items.empty()) items.emplace_back("No stick is plugged in.");
  if (items != Sticks.List()) Sticks.FillInOrder(std::move(items));
}

void Fly::ShowKeys() {
  std::string keys;
  for (play::Position position = 0; position < play::kPositions; ++position) {
    if (bench_.flight.IsDown(position)) keys.append(keys.empty() ? "" : "  ").append(play::NameAt(position));
  }
  KeysDown.Caption = keys;
}

void Fly::CopyMend_Click() { bench_.platform.clipboard.Put(Mend.Caption, ""); }

void Fly::MapSticks_Click() {
  shell_.Show(ToolId::Sticks);
  ShowSticks();
}

void Fly::Start_Click() {
  if (bench_.flight.Now() == Flight::Phase::Ended) {
    bench_.flight.Begin();
  } else {
    bench_.flight.End();
  }
}

void Fly::TryIt_Click() { shell_.Show(ToolId::TryOut); }

}  // namespace tarvik
