// tarvik_bench: the hot operations of the core beside their peers, at 30 KB, 1 MB and 10 MB.
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCursor>
#include <QTextDocument>
#include <cstring>
#include <memory>
#include <set>

#include "Compare.h"
#include "Samples.h"
#include "language/Controllers.h"
#include "language/MacroAnalysis.h"
#include "language/Problems.h"
#include "language/SyntaxColouring.h"
#include "support/MemoryFiles.h"
#include "text/CodePage.h"
#include "text/NameFilter.h"
#include "text/Rtf.h"
#include "workbench/UndoHistory.h"

namespace {

using namespace tarvik;
using namespace tarvik::bench;

struct Size {
  const char* name;
  std::size_t bytes;
};
constexpr Size kSizes[] = {{"30 KB", 30'000}, {"1 MB", 1'000'000}, {"10 MB", 10'000'000}};
constexpr std::size_t kPeerLimit = 1'000'000;  // beyond it a slow peer is not waited for

constexpr Colour kClassColours[kColourClasses] = {kBlack,        Colour{16711680}, Colour{255},
                                                  Colour{32768}, Colour{12615680}, Colour{8421504}};

volatile std::size_t sink = 0;  // keeps results from being optimised away

/// The growth of an operation from 1 MB to 10 MB, which is to stay in a straight line. `operation` makes it
/// for a size.
template <class Operation>
void ReportGrowth(const char* what, const Operation& operation) {
  Report(std::string(what) + ", 10 MB to 1 MB", Measure(operation(10'000'000), operation(1'000'000)),
         Goal::AtMost, 13);
}

ColourRuns ColoursOf(const std::string& text) {
  SyntaxColouring colouring(text, JoystickPasses());
  colouring.Run();
  return colouring.Colours(kClassColours);
}

RichText ColouredFile(std::size_t bytes) {
  const std::string text = JoystickFile(bytes);
  return {text, ColoursOf(text)};
}

// Find.

void BenchFind() {
  const std::string needle = "No_Such_Macro";
  for (const Size& size : kSizes) {
    const std::string text = JoystickFile(size.bytes);
    const std::string folded = LowerCase(text);
    const SearchableText searchable{text, folded};
    const auto own = [&] { sink = sink + FindText(searchable, needle, 0, text.size(), 0).value_or(0); };
    const auto libc = [&] { sink = sink + (strcasestr(text.c_str(), needle.c_str()) != nullptr); };
    Report(std::string("find, no hit, beside strcasestr, ") + size.name, Measure(own, libc), Goal::AtLeast,
           8);

    if (size.bytes <= kPeerLimit) {
      QTextDocument document;
      document.setPlainText(QString::fromLatin1(text));
      const auto qt = [&] { sink = sink + !document.find("No_Such_Macro").isNull(); };
      Report(std::string("find, no hit, beside QTextDocument, ") + size.name, Measure(own, qt, 5),
             Goal::AtLeast, 100);
    }
    const auto word = [&] {
      sink = sink + FindText(searchable, needle, 0, text.size(), find::kWholeWord).value_or(0);
    };
    Report(std::string("find whole word, beside plain, ") + size.name, Measure(word, own), Goal::AtMost,
           1.15);
  }
  const auto searching = [](std::string text, const std::string& wanted) {
    return [text = std::move(text), wanted] {
      sink = sink + FindText({text, text}, wanted, 0, text.size(), 0).value_or(0);
    };
  };
  ReportGrowth("find", [&](std::size_t bytes) {
    return searching(LowerCase(JoystickFile(bytes)), LowerCase(needle));
  });
  ReportGrowth("find \"aaaa...b\"", [&](std::size_t bytes) {
    return searching(std::string(bytes, 'a'), std::string(200, 'a') + "b");
  });
}

void BenchFindAll() {
  const std::string text = JoystickFile(1'000'000);
  const std::string folded = LowerCase(text);
  QTextDocument document;
  document.setPlainText(QString::fromLatin1(text));
  const auto own = [&] { sink = sink + FindAll({text, folded}, "btn", 0).size(); };
  const auto qt = [&] {
    for (QTextCursor hit = document.find("btn"); !hit.isNull(); hit = document.find("btn", hit))
      sink = sink + 1;
  };
  Report("all hits of a dense word in 1 MB, beside QTextDocument", Measure(own, qt, 5), Goal::AtLeast, 40);
}

void BenchFilter() {
  std::vector<std::string> names;
  for (int i = 0; i < 50'000; ++i) names.push_back("Gear_and_Flaps_" + std::to_string(i * 7919 % 50'000));
  const NameFilter filter(names);
  const auto own = [&] { sink = sink + filter.Matching("flaps_42").size(); };
  const auto libc = [&] {
    for (const std::string& name : names) sink = sink + (strcasestr(name.c_str(), "flaps_42") != nullptr);
  };
  Report("filter over 50,000 names, beside strcasestr", Measure(own, libc), Goal::AtMost, 2);
}

// Colouring.

class PeerHighlighter : public QSyntaxHighlighter {
 public:
  explicit PeerHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {
    for (const Pass& pass : JoystickPasses()) {
      QString pattern = QRegularExpression::escape(
          QString::fromLatin1(pass.text.data(), static_cast<int>(pass.text.size())));
      if (pass.options & find::kWholeWord) pattern = "(?<!\\w)" + pattern + "(?!\\w)";
      if (pass.kind == PassKind::WordAndOperand) pattern += ".[^ ]*";
      if (pass.kind == PassKind::Comment) pattern += ".*";
      if (pass.kind == PassKind::Bracket) pattern += "[^)]*\\)";
      if (pass.kind == PassKind::Modifier) pattern = "(?<= )/[^ ]";
      QTextCharFormat format;
      format.setForeground(QColor::fromRgb(NumberOf(kClassColours[static_cast<std::size_t>(pass.colour)])));
      const bool matchCase = (pass.options & find::kMatchCase) != 0;
      rules_.push_back({QRegularExpression(pattern, matchCase ? QRegularExpression::NoPatternOption
                                                              : QRegularExpression::CaseInsensitiveOption),
                        format});
    }
  }

 protected:
  void highlightBlock(const QString& text) override {
    for (const Rule& rule : rules_) {
      for (auto hits = rule.expression.globalMatch(text); hits.hasNext();) {
        const QRegularExpressionMatch hit = hits.next();
        setFormat(static_cast<int>(hit.capturedStart()), static_cast<int>(hit.capturedLength()), rule.format);
      }
    }
  }

 private:
  struct Rule {
    QRegularExpression expression;
    QTextCharFormat format;
  };
  std::vector<Rule> rules_;
};

void BenchColouring() {
  for (const Size& size : kSizes) {
    const std::string text = JoystickFile(size.bytes);
    const std::string folded = LowerCase(text);
    const SearchableText searchable{text, folded};
    const auto own = [&] { sink = sink + ColoursOf(text).size(); };
    // Searches of each pass's own over the whole text, with no more done at a hit than to paint its word.
    const auto passes = [&] {
      std::vector<ColourClass> classes(text.size(), ColourClass::Black);
      for (const Pass& pass : JoystickPasses()) {
        std::size_t from = 0;
        while (const auto hit = FindText(searchable, pass.text, from, text.size(), pass.options)) {
          from = *hit + pass.text.size();
          std::fill_n(classes.begin() + static_cast<std::ptrdiff_t>(*hit), pass.text.size(), pass.colour);
        }
      }
      sink = sink + classes.size();
    };
    Report(std::string("colouring, beside passes with the own find, ") + size.name, Measure(own, passes),
           Goal::AtLeast, 2);
    if (size.bytes > kPeerLimit) continue;
    QTextDocument document;
    document.setPlainText(QString::fromLatin1(text));
    PeerHighlighter highlighter(&document);
    Report(std::string("colouring, beside QSyntaxHighlighter, ") + size.name,
           Measure(
               own, [&] { highlighter.rehighlight(); }, 3),
           Goal::AtLeast, 50);
  }
  ReportGrowth("colouring", [](std::size_t bytes) {
    return [text = JoystickFile(bytes)] { sink = sink + ColoursOf(text).size(); };
  });
}

// The model of what the statements mean.

template <class File>
void BenchReading(const std::string& what, const std::string& text, std::span<const Pass> passes) {
  const auto whole = [&] { sink = sink + File(text).size(); };
  const auto colouring = [&] {
    SyntaxColouring run(text, passes);
    run.Run();
    sink = sink + run.Colours(kClassColours).size();
  };
  Report("model of the " + what + ", beside colouring", Measure(whole, colouring), Goal::AtMost, 2);
}

/// A key in the middle of the text and the key that takes it back.
void BenchModelKeys(const std::string& text) {
  const std::size_t middle = text.find(" ", text.size() / 2);
  std::string longer = text;
  longer.insert(middle, 1, 'x');
  model::JoystickFile file(text);
  const auto keys = [&] {
    file.Edit(longer, {middle, 0}, 1);
    file.Edit(text, {middle, 1}, 0);
    sink = sink + file.size();
  };
  const auto whole = [&] {
    sink = sink + model::JoystickFile(text).size() + model::JoystickFile(longer).size();
  };
  Report("model, two keys in 1 MB, beside reading twice", Measure(keys, whole), Goal::AtMost, 0.01);
}

/// A joystick file of 1 MB and a macro file of 5,000 macros. The first assigns each macro to flags and
/// buttons, so that names are looked up all over; it repeats itself, so that there is much to tell as well.
void BenchProblems() {
  const std::string macroText = MacroFile(5'000, 500);
  std::string joystickText = JoystickFile(600'000);
  const std::vector<std::string> names = Names(5'000);
  for (std::size_t i = 0; joystickText.size() < 1'000'000; ++i) {
    joystickText +=
        "BTN H1U /I " + names[i * 31 % names.size()] + " /O " + names[i * 17 % names.size()] + "x\r\n";
  }
  const model::JoystickFile joystick(joystickText);
  const model::MacroFile macros(macroText);
  const auto own = [&] {
    sink = sink + model::ProblemsIn({joystick, joystickText, macros, macroText, {kFlcs}}).size();
  };
  const auto reading = [&] {
    sink = sink + model::JoystickFile(joystickText).size() + model::MacroFile(macroText).size();
  };
  Report("problems of 1 MB with 5,000 macros, beside reading it", Measure(own, reading, 5), Goal::AtMost, 8);
}

void BenchModel() {
  for (const Size& size : kSizes) {
    BenchReading<model::JoystickFile>(std::string("joystick file, ") + size.name, JoystickFile(size.bytes),
                                      JoystickPasses());
  }
  BenchReading<model::MacroFile>("macro file, 5,000 macros", MacroFile(5'000, 500), MacroPasses());
  BenchModelKeys(JoystickFile(1'000'000));
  BenchProblems();
}

// Macros.

void BenchAnalysis() {
  for (const auto& [macros, headings] : {std::pair{5'000, 500}, std::pair{50'000, 5'000}}) {
    const std::string file = MacroFile(static_cast<std::size_t>(macros), static_cast<std::size_t>(headings));
    const auto own = [&] {
      auto records = ReadMacroRecords(file);
      MacroAnalysis analysis = AnalyseMacros(records);
      std::stable_sort(analysis.macros.begin(), analysis.macros.end(), SortsBefore);
      for (MacroCategory& category : analysis.categories) {
        std::stable_sort(category.macros.begin(), category.macros.end(), SortsBefore);
      }
      sink = sink + analysis.macros.size();
    };
    const auto peer = [&] {
      std::vector<std::string> names;
      for (std::size_t at = 0; at < file.size();) {
        const std::size_t end = std::min(file.find("\r\n", at), file.size());
        const std::string line = file.substr(at, end - at);
        if (const std::size_t equals = line.find(" ="); equals != std::string::npos)
          names.push_back(line.substr(0, equals));
        at = end + 2;
      }
      std::stable_sort(names.begin(), names.end(), SortsBefore);
      sink = sink + names.size();
    };
    Report("analysis of " + std::to_string(macros) + " macros, beside split and sort", Measure(own, peer, 5),
           Goal::AtMost, 3);
  }
}

void BenchTicking() {
  const std::string text = JoystickFile(30'000);
  const std::string folded = LowerCase(text);
  const std::vector<std::string> names = Names(2'000);
  const auto own = [&] { sink = sink + NamesUsed(text, names).size(); };
  const auto peer = [&] {
    for (const std::string& name : names) {
      sink = sink + FindText({text, folded}, name, 0, text.size(), find::kWholeWord).has_value();
    }
  };
  Report("ticking 2,000 names in 30 KB, beside one find a name", Measure(own, peer), Goal::AtLeast, 30);
}

// Undo.

struct Bench final : Form {
  Bench() : Form("Bench") {}
  MemoryFiles files;
  Pane pane{*this, "Pane", files};
  UndoHistory history{*this, "Index", "Start", pane};
};

void BenchUndo() {
  constexpr int kDepth = 30'000;
  const std::string text = JoystickFile(1'000'000);
  Bench bench;
  bench.pane.SetContent(RichText(text));
  bench.pane.Recolour(0, ColoursOf(text));
  bench.history.Clear();
  bench.pane.SelStart = text.size() / 2;
  const Medians copy = Measure([&] { sink = sink + RichText(bench.pane.Content()).size(); }, [] {});
  const PaneEdit edit{text.size() / 2, {}, RichText("x")};
  const Medians record = Measure(
      [&] {
        bench.pane.Edited(edit);
        bench.history.Open(kDepth);
        bench.history.GoToNewest();
      },
      [] {});
  Report("one typed key recorded in 1 MB, beside a copy of the pane", {record.own, copy.own}, Goal::AtLeast,
         1000);
}

// RTF.

void BenchRtf() {
  for (const Size& size : kSizes) {
    if (size.bytes > kPeerLimit) continue;
    const RichText content = ColouredFile(size.bytes);
    const std::string rtf = WriteRtf(content);
    const auto write = [&] { sink = sink + WriteRtf(content).size(); };
    const auto read = [&] { sink = sink + ReadRtf(rtf).size(); };
    QTextDocument document;
    QTextCursor cursor(&document);
    for (std::size_t i = 0; i < content.colours.runs().size(); ++i) {
      const ColourRuns::Run& run = content.colours.runs()[i];
      QTextCharFormat format;
      format.setForeground(QColor::fromRgb(NumberOf(run.colour)));
      std::string part = content.text.substr(run.start, content.colours.EndOf(i) - run.start);
      std::erase(part, '\r');
      cursor.insertText(QString::fromLatin1(part), format);
    }
    const QString html = document.toHtml();
    const auto toHtml = [&] { sink = sink + static_cast<std::size_t>(document.toHtml().size()); };
    Report(std::string("writing RTF, beside toHtml, ") + size.name, Measure(write, toHtml, 5), Goal::AtLeast,
           40);
    QTextDocument target;
    const auto setHtml = [&] { target.setHtml(html); };
    Report(std::string("reading RTF, beside setHtml, ") + size.name, Measure(read, setHtml, 5), Goal::AtLeast,
           100);
  }
  ReportGrowth("writing RTF", [](std::size_t bytes) {
    return [content = ColouredFile(bytes)] { sink = sink + WriteRtf(content).size(); };
  });
  ReportGrowth("reading RTF", [](std::size_t bytes) {
    return [rtf = WriteRtf(ColouredFile(bytes))] { sink = sink + ReadRtf(rtf).size(); };
  });
}

// Replacing.

/// Lines with one hit each, about ten to 100 characters.
std::string LinesWithHits(std::size_t bytes) {
  std::string text;
  while (text.size() < bytes) text += "Rem Gun\r\n";
  return text;
}

/// Replaces all there and back again, so that there is as much to do every time.
std::function<void()> ReplaceInPane(std::size_t bytes) {
  struct State {
    explicit State(std::size_t size) { bench.pane.SetContent(RichText(LinesWithHits(size))); }
    Bench bench;
    bool there = false;
  };
  return [state = std::make_shared<State>(bytes)] {
    state->there = !state->there;
    const Replaced replaced = state->bench.pane.ReplaceAll(
        state->there ? "Gun" : "Fly", state->there ? "Fly" : "Gun", find::kMatchCase, [](std::size_t) {});
    sink = sink + replaced.count;
  };
}

void BenchReplaceAll() {
  QTextDocument document;
  document.setUndoRedoEnabled(false);
  document.setPlainText(QString::fromStdString(LinesWithHits(900'000)));
  bool there = false;
  const auto peer = [&] {
    there = !there;
    const QString from = there ? QStringLiteral("Gun") : QStringLiteral("Fly");
    const QString to = there ? QStringLiteral("Fly") : QStringLiteral("Gun");
    QTextCursor hit(&document);
    while (true) {
      hit = document.find(from, hit, QTextDocument::FindCaseSensitively);
      if (hit.isNull()) break;
      hit.insertText(to);
      sink = sink + 1;
    }
  };
  Report("replacing 100,000 hits in 1 MB, beside QTextDocument", Measure(ReplaceInPane(900'000), peer, 3),
         Goal::AtLeast, 100);
  ReportGrowth("replacing all", [](std::size_t bytes) { return ReplaceInPane(bytes); });
}

}  // namespace

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(count, arguments);
  std::printf("%-58s %13s %15s   %9s\n", "", "own", "peer", "ratio");
  BenchFind();
  BenchFindAll();
  BenchFilter();
  BenchColouring();
  BenchModel();
  BenchAnalysis();
  BenchTicking();
  BenchUndo();
  BenchRtf();
  BenchReplaceAll();
}
