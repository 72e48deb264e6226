// The pages of the wizards and of Speedy, made from the rows that say what stands on them.
#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <algorithm>
#include <utility>

#include "screen/pages/Pages.h"
#include "screen/widgets/Conversions.h"
#include "tools/wizards/Speedy.h"

namespace tarvik::screen {
namespace {

constexpr int kTextWidth = 520;
constexpr int kListLines = 9;

/// Makes the layout of one page after the other, since the words of all are one array.
class GuidePages {
 public:
  GuidePages(GuidedForm& form, const FormLayout& in) : form_(form), in_(in) {}

  /// The layout of the next page, whose rows stand below `pieces`.
  QLayout* Next(std::vector<Piece> pieces = {}) {
    std::vector<Field> fields;
    const auto align = [&] {
      if (!fields.empty()) pieces.emplace_back(Fields(std::exchange(fields, {})));
    };
    for (const GuideRow& row : form_.pages[page_++].rows) {
      if (IsField(row)) {
        fields.push_back(FieldOf(row));
        continue;
      }
      align();
      pieces.push_back(row.control.empty() ? Piece(Words(row)) : Piece(Controls(row.control)));
    }
    align();
    pieces.emplace_back(Stretch());
    return Column(pieces);
  }

 private:
  /// Rows with words and a control that stand below one another are aligned.
  static bool IsField(const GuideRow& row) { return !row.text.empty() && !row.control.empty(); }

  QLabel* NextWords() { return OnTheWindow(form_.Texts(text_++)); }

  /// Shows a label without a ground of its own.
  QLabel* OnTheWindow(Label& label) {
    auto* const shown = qobject_cast<QLabel*>(in_.Show(label));
    shown->setAutoFillBackground(false);
    return shown;
  }

  QWidget* Words(const GuideRow& row) {
    QLabel* const words = Wrapped(NextWords());
    words->setMinimumWidth(kTextWidth);
    if (row.example) {
      words->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
      words->setIndent(2 * words->fontMetrics().height());
    }
    return words;
  }

  Field FieldOf(const GuideRow& row) {
    QLabel* const label = NextWords();
    QWidget* const control = ShowNamed(row.control);
    if (qobject_cast<QLineEdit*>(control)) Named(control, label->text());
    return {label, control};
  }

  QLayout* Controls(std::string_view names) {
    std::vector<Piece> row;
    bool stretch = true;
    while (!names.empty()) {
      const std::size_t blank = std::min(names.find(' '), names.size());
      QWidget* const widget = ShowNamed(names.substr(0, blank));
      row.emplace_back(widget);
      stretch = stretch && qobject_cast<QPushButton*>(widget);
      names.remove_prefix(std::min(blank + 1, names.size()));
    }
    if (stretch) row.emplace_back(Stretch());
    return Row(row);
  }

  QWidget* ShowNamed(std::string_view name) {
    auto& control = dynamic_cast<Control&>(Require(form_.Resolve(name), form_, name));
    if (auto* const preview = dynamic_cast<Label*>(&control)) return Preview(OnTheWindow(*preview));
    QWidget* const shown = in_.Show(control);
    return dynamic_cast<ListBox*>(&control) ? Headings(shown) : shown;
  }

  static QWidget* Headings(QWidget* list) {
    list->setMinimumHeight(kListLines * list->fontMetrics().lineSpacing());
    return Named(list, QStringLiteral("Headings"));
  }

  static QWidget* Preview(QLabel* label) {
    label->setTextFormat(Qt::PlainText);
    label->setFrameShape(QFrame::StyledPanel);
    label->setMargin(label->fontMetrics().height() / 3);
    label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setMinimumWidth(1);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return label;
  }

  GuidedForm& form_;
  const FormLayout& in_;
  std::size_t page_ = 0;
  int text_ = 0;
};

}  // namespace

/// The frame in front is the page on show. All pages are there at once, so that the window keeps its size.
QLayout* Page(Wizard& form, const FormLayout& in) {
  auto* const stack = new QStackedWidget;
  GuidePages pages(form, in);
  for (int i = 0; i < form.frames.Count(); ++i) {
    auto* const page = new QWidget;
    QLayout* const rows = pages.Next({AsTitle(Wrapped(new QLabel(ToScreen(form.frames(i).Caption.Get()))))});
    rows->setSpacing(page->fontMetrics().height() * 2 / 3);
    page->setLayout(rows);
    stack->addWidget(page);
    in.bindings().Shows(form.frames(i), *page);
    in.bindings().Keep(form.frames(i).Raised.Connect([stack, i] { stack->setCurrentIndex(i); }));
  }
  return Column(
      {stack, Row({in.Show(form.buttons(Wizard::kCancel)), Stretch(), in.Show(form.buttons(Wizard::kBack)),
                   in.Show(form.buttons(Wizard::kNext)), in.Show(form.buttons(Wizard::kFinish))})});
}

QLayout* Page(Speedy& form, const FormLayout& in) {
  GuidePages pages(form, in);
  std::vector<QLayout*> tabs(form.pages.size());
  std::generate(tabs.begin(), tabs.end(), [&pages] { return pages.Next(); });
  return Column({in.Show(form.SSTab1, tabs), Row({Stretch(), in.Show(form.Command1(0))})});
}

}  // namespace tarvik::screen
