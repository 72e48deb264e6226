#include "check/CheckFiles.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "language/Problems.h"
#include "pairs/PairFiles.h"
#include "pairs/PairOnDisk.h"
#include "text/CodePage.h"

namespace tarvik::check {
namespace {

namespace fs = std::filesystem;
using model::FileKind;
using model::Severity;
using pairs::Role;

/// A problem as it is written. Sorted, they are in the order of the files and of the places in them.
struct Finding {
  std::string file;
  model::LineAndColumn at;
  std::size_t length;
  Severity severity;
  std::string rule;
  std::string text;
  std::string advice;

  [[nodiscard]] auto Key() const { return std::tie(file, at.line, at.column, severity, rule, text); }
  friend bool operator<(const Finding& one, const Finding& other) { return one.Key() < other.Key(); }
};

class Checker {
 public:
  explicit Checker(const Streams& streams) : streams_(streams) {}

  void Take(const std::vector<std::string>& paths) {
    std::vector<fs::path> files;
    for (const std::string& path : paths) Gather(path, files);
    for (const fs::path& file : files) {
      if (pairs::RoleOf(file) == Role::Joystick) CheckPair(file);
    }
    // What is no joystick file's macro file is checked by itself.
    for (const fs::path& file : files) {
      if (pairs::RoleOf(file) == Role::Macros && !checked_.contains(file.lexically_normal())) CheckPair(file);
    }
  }

  [[nodiscard]] const std::set<Finding>& Findings() const { return findings_; }
  [[nodiscard]] Status Result() const {
    if (unreadable_) return kUnreadable;
    const auto isError = [](const Finding& each) { return each.severity == Severity::Error; };
    return std::ranges::any_of(findings_, isError) ? kErrors : kFine;
  }

 private:
  void Gather(const fs::path& path, std::vector<fs::path>& files) {
    std::error_code ignored;
    if (!fs::is_directory(path, ignored)) {
      const char* why = fs::exists(path, ignored) ? "Neither a joystick file nor a macro file by its ending"
                                                  : "No such file or directory";
      if (pairs::RoleOf(path) == Role::None) return Complain(path, why);
      files.push_back(path);
      return;
    }
    const auto inside = pairs::FilesIn(path);
    if (inside) {
      files.insert(files.end(), inside->begin(), inside->end());
    } else {
      Complain(path, inside.failure().text);
    }
  }

  void Complain(const fs::path& path, const std::string& why) { Complain(path.string() + ": " + why); }
  void Complain(const std::string& why) {
    streams_.error << "tarvik-check: " << why << '\n';
    unreadable_ = true;
  }

  void CheckPair(const fs::path& file) {
    const auto pair = pairs::PairOnDisk::Read(file);
    if (!pair) return Complain(pair.failure().text);
    if (!pair->macros().path.empty()) checked_.insert(pair->macros().path.lexically_normal());
    Judge(*pair);
  }

  void Judge(const pairs::PairOnDisk& pair) {
    model::LinePositions joystickLines(pair.joystick().text);
    model::LinePositions macroLines(pair.macros().text);
    for (const model::Problem& problem : model::ProblemsIn(pair.View())) {
      const bool inJoystick = problem.file == FileKind::Joystick;
      findings_.insert({(inJoystick ? pair.joystick() : pair.macros()).path.string(),
                        (inJoystick ? joystickLines : macroLines).Of(problem.range.start),
                        problem.range.length, problem.rule->severity, std::string(problem.rule->id),
                        ToUtf8(problem.text), ToUtf8(problem.advice)});
    }
  }

  Streams streams_;
  std::set<fs::path> checked_;
  std::set<Finding> findings_;
  bool unreadable_ = false;
};

void WriteLines(const std::set<Finding>& findings, std::ostream& out) {
  for (const Finding& each : findings) {
    out << each.file << ':' << each.at.line << ':' << each.at.column << ": " << NameOf(each.severity) << ": "
        << each.text << " [" << each.rule << "]\n";
  }
}

void WriteJson(const std::set<Finding>& findings, std::ostream& out) {
  auto all = nlohmann::ordered_json::array();
  for (const Finding& each : findings) {
    all.push_back({{"file", each.file},
                   {"line", each.at.line},
                   {"column", each.at.column},
                   {"length", each.length},
                   {"severity", NameOf(each.severity)},
                   {"rule", each.rule},
                   {"text", each.text},
                   {"advice", each.advice}});
  }
  // A file's name on the disk need not be UTF-8.
  out << all.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

}  // namespace

Status CheckFiles(const Arguments& arguments, const Streams& streams) {
  Checker checker(streams);
  checker.Take(arguments.paths);
  if (!arguments.quiet) (arguments.json ? WriteJson : WriteLines)(checker.Findings(), streams.out);
  return checker.Result();
}

}  // namespace tarvik::check
