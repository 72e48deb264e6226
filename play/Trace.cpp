#include "play/Trace.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "text/CodePage.h"

namespace tarvik::play {
namespace {

using model::SameWord;

constexpr Time kAfterwards = std::chrono::seconds(1);
/// What is written of a run, though its conditions change every thousandth of a second.
constexpr std::size_t kMostSteps = 200000;
constexpr std::string_view kSwitchPlaces[] = {"up", "middle", "down"};

constexpr double kMilli = 1000;

/// A number of parts of one, such as 1250 thousandths, without zeros at its end: 1.25
std::string Decimal(std::int64_t parts, double ofOne) {
  std::array<char, 32> digits = {};
  const double value = static_cast<double>(parts) / ofOne;
  return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr};
}

std::string_view Trimmed(std::string_view line) {
  while (!line.empty() && model::IsBlank(line.front())) line.remove_prefix(1);
  while (!line.empty() && model::IsBlank(line.back())) line.remove_suffix(1);
  return line;
}

/// A number with a unit behind it, such as 120ms; none for any other word.
std::optional<double> Measure(std::string_view word, std::string_view unit) {
  if (!word.ends_with(unit)) return std::nullopt;
  word.remove_suffix(unit.size());
  double value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  const bool whole = error == std::errc{} && end == word.data() + word.size();
  if (!whole || !(value >= 0)) return std::nullopt;
  return value;
}

/// Up to an hour.
std::optional<Time> WaitIn(std::string_view word) {
  constexpr double kSecond = 1000000;
  constexpr double kLongest = 3600 * kSecond;
  std::optional<double> micros = Measure(word, "ms");
  if (micros) {
    *micros *= kMilli;
  } else {
    micros = Measure(word, "s");
    if (micros) *micros *= kSecond;
  }
  if (!micros || *micros > kLongest) return std::nullopt;
  return Time(std::llround(*micros));
}

class Reader {
 public:
  explicit Reader(const Program& program) : program_(program) {}

  std::variant<Trace, TraceError> Read(std::string_view text) {
    std::size_t number = 0;
    while (!text.empty()) {
      const std::size_t end = std::min(text.find('\n'), text.size());
      std::string_view line = text.substr(0, end);
      text.remove_prefix(std::min(end + 1, text.size()));
      if (line.ends_with('\r')) line.remove_suffix(1);
      ++number;
      if (const std::string wrong = Take(line, number); !wrong.empty()) return TraceError{number, wrong};
    }
    return std::move(trace_);
  }

 private:
  /// What is wrong with the line.
  std::string Take(std::string_view line, std::size_t number) {
    const std::string_view words = Trimmed(line);
    if (words.starts_with('>')) {
      trace_.expected.emplace_back(Trimmed(words.substr(1)));
      trace_.expectedLine.push_back(number);
      return {};
    }
    trace_.lines.emplace_back(line);
    if (words.empty() || words.starts_with('~')) return {};
    TraceStep step{.line = trace_.lines.size() - 1};
    if (SameWord(words, "stop")) {
      step.kind = TraceStep::Kind::Stop;
    } else if (const auto wait = WaitIn(words)) {
      step.kind = TraceStep::Kind::Wait;
      step.wait = *wait;
    } else {
      std::string wrong = TakeEvent(words, step);
      if (!wrong.empty() || step.kind == TraceStep::Kind::Wait) return wrong;
    }
    trace_.steps.push_back(step);
    return {};
  }

  std::string TakeEvent(std::string_view words, TraceStep& step) {
    const std::size_t blank = words.find_last_of(" \t");
    if (blank == std::string_view::npos) {
      return "Neither a control with what it does, nor a time such as 120ms: " + std::string(words);
    }
    const std::string_view does = words.substr(blank + 1);
    const std::string_view name = Trimmed(words.substr(0, blank));
    if (SameWord(name, "plays")) {
      trace_.files.emplace_back(does);
      step.kind = TraceStep::Kind::Wait;
      return {};
    }
    if (const auto axis = FindAxis(name)) {
      const auto position = Measure(does, "%");
      if (!position || *position > kPerCent)
        return "An axis stands between 0% and 100%: " + std::string(does);
      step.event = {EventKind::Move, *axis, *position / kPerCent};
      return {};
    }
    if (SameWord(name, "DOGFIGHT")) return TakeSwitch(does, step);
    const auto control = program_.FindControl(name);
    const bool down = SameWord(does, "down");
    if (!down && !SameWord(does, "up")) return "A control goes down or up: " + std::string(words);
    if (!control) return "No controller has this control: " + std::string(name);
    step.event = {down ? EventKind::Down : EventKind::Up, *control, 0};
    return {};
  }

  static std::string TakeSwitch(std::string_view does, TraceStep& step) {
    for (std::uint32_t i = 0; i < std::size(kSwitchPlaces); ++i) {
      if (!SameWord(kSwitchPlaces[i], does)) continue;
      step.event = {EventKind::Switch, i, 0};
      return {};
    }
    return "The dogfight switch stands up, middle or down: " + std::string(does);
  }

  const Program& program_;
  Trace trace_;
};

class TracePlayer {
 public:
  TracePlayer(const Trace& trace, const Program& program, const PlayedFiles& files)
      : program_(program), files_(files), engine_(program) {
    run_.outputs.resize(trace.lines.size() + 1);
  }

  Outcomes Do(const Trace& trace) {
    // A file says something of time alone, too.
    Keep(engine_.Step({}, now_));
    for (const TraceStep& step : trace.steps) {
      line_ = step.line;
      if (step.kind == TraceStep::Kind::Event) Keep(engine_.Step(step.event, now_));
      if (step.kind == TraceStep::Kind::Wait) Pass(step.wait);
      if (step.kind == TraceStep::Kind::Stop) Keep(engine_.Stop(now_));
    }
    line_ = trace.lines.size();
    Pass(kAfterwards);
    Keep(engine_.Stop(now_));
    run_.keysLeft = engine_.AnyKeyDown();
    return std::move(run_);
  }

 private:
  void Pass(Time wait) {
    const Time until = now_ + wait;
    while (deadline_ && *deadline_ <= until && ++steps_ < kMostSteps) {
      now_ = std::max(now_, *deadline_);
      Keep(engine_.Step({}, now_));
    }
    now_ = until;
  }

  void Keep(const StepResult& result) {
    deadline_ = result.deadline;
    for (const Output& each : result.outputs) run_.outputs[line_].push_back(Printed(each, program_, files_));
  }

  const Program& program_;
  const PlayedFiles& files_;
  Engine engine_;
  Outcomes run_;
  Time now_ = {};
  std::optional<Time> deadline_;
  std::size_t line_ = 0;
  std::size_t steps_ = 0;
};

std::string Seconds(Time at) {
  constexpr std::int64_t kMicros = 1000000;
  std::string digits = std::to_string(kMicros + at.count() % kMicros).substr(1);
  if (digits.ends_with("000")) digits.resize(3);
  std::string words = std::to_string(at.count() / kMicros);
  words.push_back('.');
  return words.append(digits);
}

std::string ThingIn(const Output& output) {
  switch (output.kind) {
    case OutputKind::Key:
      return NameOf(output.number);
    case OutputKind::Mouse:
      return "mouse " + std::to_string(output.number);
    case OutputKind::Port:
      return "port " + std::to_string(output.number);
    case OutputKind::Reset:
      return "reset";
  }
  return {};
}

std::string PlaceOf(const Output& output, const Program& program, const PlayedFiles& files) {
  const Source& source = program.sources[output.source];
  const bool inJoystick = source.file == model::FileKind::Joystick;
  const std::string_view text = inJoystick ? files.joystickText : files.macroText;
  const std::size_t start = std::min(source.range.start, text.size());
  std::string place = inJoystick ? files.joystickName : files.macroName;
  place.push_back(':');
  return place.append(std::to_string(std::ranges::count(text.substr(0, start), '\n') + 1));
}

}  // namespace

std::variant<Trace, TraceError> ReadTrace(std::string_view text, const Program& program) {
  return Reader(program).Read(text);
}

std::vector<std::string> Outcomes::All() const {
  std::vector<std::string> all;
  for (const auto& each : outputs) all.insert(all.end(), each.begin(), each.end());
  return all;
}

std::string LineOf(const Event& event, const Program& program) {
  constexpr double kTenths = 10;
  std::string line;
  switch (event.kind) {
    case EventKind::Nothing:
      return line;
    case EventKind::Down:
    case EventKind::Up:
      return line.append(program.controls[event.index])
          .append(event.kind == EventKind::Down ? " down" : " up");
    case EventKind::Switch:
      return line.append("DOGFIGHT ").append(kSwitchPlaces[event.index]);
    case EventKind::Move:
      return line.append(kAxisNames[event.index])
          .append(" ")
          .append(Decimal(std::llround(event.position * kPerCent * kTenths), kTenths))
          .append("%");
  }
  return line;
}

std::string LineOf(Time wait) { return Decimal(wait.count(), kMilli).append("ms"); }

std::optional<TraceDifference> DifferenceOf(const Trace& trace, const Outcomes& run) {
  constexpr const char* kNoMore = "nothing more";
  const std::vector<std::string> all = run.All();
  const auto [expected, came] = std::ranges::mismatch(trace.expected, all);
  const bool isMore = expected == trace.expected.end();
  if (trace.expected.empty() || (isMore && came == all.end())) return std::nullopt;
  const auto index = static_cast<std::size_t>(expected - trace.expected.begin());
  return TraceDifference{isMore ? trace.expectedLine.back() : trace.expectedLine[index],
                         isMore ? kNoMore : *expected, came == all.end() ? kNoMore : *came};
}

Outcomes Play(const Trace& trace, const Program& program, const PlayedFiles& files) {
  return TracePlayer(trace, program, files).Do(trace);
}

std::string Printed(const Trace& trace, const Outcomes& run) {
  std::string text;
  for (std::size_t i = 0; i < run.outputs.size(); ++i) {
    if (i < trace.lines.size()) text.append(trace.lines[i]).push_back('\n');
    for (const std::string& each : run.outputs[i]) text.append("> ").append(each).push_back('\n');
  }
  return text;
}

std::string Printed(const Output& output, const Program& program, const PlayedFiles& files) {
  std::string line = Seconds(output.at);
  const auto add = [&](std::string_view word) {
    if (!word.empty()) line.append(" ").append(word);
  };
  const std::size_t controls = program.controls.size();
  if (output.control != kNoControl) {
    add(output.control < controls ? std::string_view(program.controls[output.control])
                                  : kAxisNames[output.control - controls]);
    add(program.sources[output.source].layer);
  }
  add(ThingIn(output));
  if (output.kind != OutputKind::Reset) add(output.down ? "down" : "up");
  if (output.source != 0) add(PlaceOf(output, program, files));
  return line;
}

}  // namespace tarvik::play
