// Real pages: what is printed into a PDF file is read back with the tools that show such files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinterInfo>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <csignal>
#include <regex>
#include <stdexcept>

#include "app/Program.h"
#include "screen/services/QtPrinter.h"
#include "support/TemporaryFolder.h"

namespace tarvik::screen {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr double kInch = 72;  // points
constexpr double kIndent = 15;
constexpr double kTolerance = 0.5;

std::string OutputOf(const std::string& command) {
  std::string output;
  FILE* const pipe = popen(command.c_str(), "r");
  char buffer[4096];
  while (const std::size_t count = fread(buffer, 1, sizeof buffer, pipe)) output.append(buffer, count);
  EXPECT_EQ(pclose(pipe), 0) << command;
  return output;
}

/// In points from the upper left corner of the sheet.
struct Word {
  std::string text;
  double left, top, right, bottom;
};

struct Page {
  double width, height;
  std::vector<Word> words;
};

std::vector<Page> PagesOf(const fs::path& file) {
  static const std::regex kItem(
      R"re(<page width="([\d.]+)" height="([\d.]+)">|<word xMin="(\S+)" yMin="(\S+)" xMax="(\S+)" yMax="(\S+)">(.*)</word>)re");
  const std::string listed = OutputOf("pdftotext -bbox '" + file.string() + "' -");
  std::vector<Page> pages;
  for (std::sregex_iterator item(listed.begin(), listed.end(), kItem), end; item != end; ++item) {
    const std::smatch& part = *item;
    if (part[1].matched) {
      pages.push_back({std::stod(part[1]), std::stod(part[2]), {}});
    } else {
      pages.back().words.push_back(
          {part[7], std::stod(part[3]), std::stod(part[4]), std::stod(part[5]), std::stod(part[6])});
    }
  }
  return pages;
}

std::string TextOfWords(const std::vector<Page>& pages) {
  std::string text;
  for (const Page& page : pages) {
    for (const Word& word : page.words) {
      if (word.bottom > kInch) text += word.text;
    }
  }
  return text;
}

std::string WithoutBlanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\r' || c == '\n' || c == '\t'; });
  return text;
}

/// Whether the first page shows a dot of the colour, in a picture with three bytes for each dot.
bool ShowsColour(const fs::path& file, Colour colour) {
  const std::string picture = OutputOf("pdftoppm -r 150 -f 1 -l 1 '" + file.string() + "'");
  const std::string dot = {static_cast<char>(RedOf(colour)), static_cast<char>(GreenOf(colour)),
                           static_cast<char>(BlueOf(colour))};
  for (std::size_t at = picture.find("255\n") + 4; at < picture.size(); at += 3) {
    if (picture.compare(at, 3, dot) == 0) return true;
  }
  return false;
}

class QtPrinterTest : public testing::Test {
 protected:
  /// What the user does in the dialog while it is open.
  Outcome<> SetUp(const std::function<void(QPrintDialog&)>& user) {
    InSetUp(user);
    return printer.SetUp();
  }
  using testing::Test::SetUp;

  static void InSetUp(const std::function<void(QPrintDialog&)>& user) {
    QTimer::singleShot(0, qApp,
                       [user] { user(dynamic_cast<QPrintDialog&>(*QApplication::activeModalWidget())); });
  }

  /// What the user does in the preview of the file on show, once its pages are there.
  void Preview(const std::function<void(QPrintPreviewDialog&)>& user) {
    QTimer::singleShot(0, qApp, [&user] {
      auto& preview = dynamic_cast<QPrintPreviewDialog&>(*QApplication::activeModalWidget());
      const auto laidOut = [&] { return preview.findChild<QPrintPreviewWidget*>()->pageCount() > 0; };
      EXPECT_TRUE(QTest::qWaitFor(laidOut));
      user(preview);
    });
    editor.mnuFilePrintPreview_Click();
  }

  static void ChooseIn(QPrintDialog& dialog, const fs::path& file) {
    auto* const printers = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
    printers->setCurrentIndex(printers->findText(QStringLiteral("Print to File (PDF)")));
    dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(QString::fromStdString(file.string()));
    dialog.accept();
  }

  fs::path ChooseFile(const std::string& name) {
    const fs::path file = folder.path() / name;
    const Outcome<> chosen = SetUp([&file](QPrintDialog& dialog) { ChooseIn(dialog, file); });
    EXPECT_TRUE(chosen);
    return file;
  }

  fs::path Print(const std::string& text) {
    const fs::path file = ChooseFile("file" + std::to_string(files_++) + ".pdf");
    editor.JoystickText.Text = text;
    editor.mnuFilePrintJoystick_Click();
    return file;
  }

  [[nodiscard]] std::string ErrorTag() const { return program.application.workbench.errors.ErrorTag; }

  TemporaryFolder folder;
  QtPrinter printer;
  Program program{&printer};
  Editor& editor = program.editor();

 private:
  int files_ = 0;
};

std::string Lines(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += "BTN" + std::to_string(i) + "\r\n";
  return text;
}

TEST_F(QtPrinterTest, TheTextKeepsAnInchFromAllEdgesAndTheHeaderIsAboveIt) {
  std::string longLines;
  for (int i = 0; i < 300; ++i)
    longLines += "some words " + std::string(static_cast<std::size_t>(i), 'x') + "\t,";
  const std::vector<Page> pages = PagesOf(Print(Lines(70) + longLines));
  ASSERT_GT(pages.size(), 3U);
  double left = 10 * kInch;
  double right = -10 * kInch;
  double bottom = -10 * kInch;
  std::string header;
  for (const Page& page : pages) {
    for (const Word& word : page.words) {
      if (word.bottom < kInch) {
        header += word.text + " ";
        continue;
      }
      EXPECT_GE(word.top, kInch - kTolerance) << word.text;
      left = std::min(left, word.left);
      right = std::max(right, word.right - page.width);
      bottom = std::max(bottom, word.bottom - page.height);
    }
    EXPECT_EQ(&page == &pages.front(), std::exchange(header, "") == "untitled.b50 Date printed: 14/12/97 ");
  }
  EXPECT_NEAR(left, kInch + kIndent, kTolerance);
  EXPECT_LE(right, -kInch + kTolerance);
  EXPECT_GT(right, -kInch - 12);  // the room is used
  EXPECT_LE(bottom, -kInch + kTolerance);
  EXPECT_GT(bottom, -kInch - 12);
  EXPECT_EQ(ErrorTag(), "");
}

TEST_F(QtPrinterTest, NoCharacterIsLostOrPrintedTwice) {
  std::string words;
  for (int i = 0; i < 5000; ++i) words += "w" + std::to_string(i) + (i % 7 == 0 ? "\t" : " ");
  std::string unbroken;
  for (int i = 0; unbroken.size() < 20000; ++i) unbroken += std::to_string(i);
  const std::string text = Lines(100) + words + "\r\n\r\n" + unbroken + "\r\n" + std::string(4095, 'a') +
                           "\r\n" + std::string(4096, 'b') + "\r\n" + std::string(4097, 'c') + "\r\nend";
  EXPECT_EQ(TextOfWords(PagesOf(Print(text))), WithoutBlanks(text));
}

TEST_F(QtPrinterTest, EmptyLinesTakeTheirPlace) {
  const auto heightBetween = [&](const std::string& text) {
    const std::vector<Page> pages = PagesOf(Print(text));
    return pages[0].words.back().top - pages[0].words.end()[-2].top;
  };
  EXPECT_NEAR(heightBetween("one\r\n\r\n\r\ntwo"), 3 * heightBetween("one\r\ntwo"), 0.1);
}

TEST_F(QtPrinterTest, APageThatIsJustFullIsTheLastOne) {
  const Page first = PagesOf(Print(Lines(300))).front();
  const int fit = std::stoi(first.words.back().text.substr(3));
  ASSERT_GT(fit, 30);
  EXPECT_EQ(PagesOf(Print(Lines(fit))).size(), 1U);
  EXPECT_EQ(PagesOf(Print(Lines(fit + 1))).size(), 2U);
  EXPECT_EQ(PagesOf(Print(Lines(10 * fit))).size(), 10U);
}

TEST_F(QtPrinterTest, AStatementHasItsColourOnPaper) {
  const Colour colour = program.application.workbench.settings.BTNColour;
  ASSERT_NE(colour, kBlack);
  EXPECT_FALSE(ShowsColour(Print("BTN S1 Fire\r\nBTN S2 Eject\r\n"), colour));
  const fs::path file = ChooseFile("coloured.pdf");
  editor.mnuViewColourJoystick_Click();
  editor.mnuFilePrintJoystick_Click();
  EXPECT_TRUE(ShowsColour(file, colour));
}

TEST_F(QtPrinterTest, TheFontIsThePanesAndTheHeaderIsBold) {
  const std::string regular = OutputOf("pdffonts '" + Print("BTN").string() + "'");
  EXPECT_THAT(regular, HasSubstr("-Bold"));
  EXPECT_THAT(regular, HasSubstr("Liberation"));
  editor.JoystickText.SelFontSize = 8.5F;
  const double small = PagesOf(Print("BTN")).front().words.back().right;
  editor.JoystickText.SelFontSize = 17;
  const double large = PagesOf(Print("BTN")).front().words.back().right;
  EXPECT_NEAR(large - kInch - kIndent, 2 * (small - kInch - kIndent), kTolerance);
}

TEST_F(QtPrinterTest, AFontThatFitsNoPagePrintsNoText) {
  editor.JoystickText.SelFontSize = 800;
  const std::vector<Page> pages = PagesOf(Print("BTN S1\r\nBTN S2"));
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(TextOfWords(pages), "");
}

TEST_F(QtPrinterTest, TheNextDocumentDoesNotTakeThePlaceOfTheLastOne) {
  const fs::path file = Print("first");
  editor.MacroText.Text = "second";
  editor.mnuFilePrintMacro_Click();
  editor.JoystickText.Text = "third";
  editor.mnuFilePrintJoystick_Click();
  EXPECT_EQ(TextOfWords(PagesOf(file)), "first");
  EXPECT_EQ(TextOfWords(PagesOf(folder.path() / "file0 (2).pdf")), "second");
  EXPECT_EQ(TextOfWords(PagesOf(folder.path() / "file0 (3).pdf")), "third");
}

TEST_F(QtPrinterTest, ACancelledSetUpLeavesTheFormerChoice) {
  const fs::path file = ChooseFile("chosen.pdf");
  const Outcome<> cancelled = SetUp([](QPrintDialog& dialog) { dialog.reject(); });
  ASSERT_FALSE(cancelled);
  EXPECT_EQ(cancelled.failure().number, error::kDialogCancelled);
  editor.JoystickText.Text = "BTN";
  editor.mnuFilePrintJoystick_Click();
  EXPECT_EQ(TextOfWords(PagesOf(file)), "BTN");
}

TEST_F(QtPrinterTest, AFileThatCannotBeWrittenIsOnRecordAndTheNextOneIsPrinted) {
  const fs::path gone = folder.Make("gone");
  ChooseFile("gone/a.pdf");
  fs::remove_all(gone);
  editor.JoystickText.Text = "BTN";
  editor.mnuFilePrintJoystick_Click();
  EXPECT_EQ(ErrorTag(), "MODULE PrintRTF");
  EXPECT_EQ(program.application.workbench.errors.ErrorNumber.Get(), 482);
  EXPECT_EQ(TextOfWords(PagesOf(Print("next"))), "next");
}

TEST_F(QtPrinterTest, AFileThatIsCutShortIsOnRecord) {
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  rlimit small = before;
  small.rlim_cur = 8192;
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  const fs::path file = Print(Lines(1000));
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(fs::file_size(file), 8192U);
  EXPECT_EQ(ErrorTag(), "MODULE PrintRTF");
}

QAction& ActionOf(const QPrintPreviewDialog& preview, const QString& text) {
  for (QAction* const action : preview.findChildren<QAction*>()) {
    if (action->text() == text) return *action;
  }
  throw std::runtime_error("there is no " + text.toStdString());
}

TEST_F(QtPrinterTest, APreviewHasThePagesThatArePrintedFromIt) {
  const fs::path file = ChooseFile("previewed.pdf");
  editor.JoystickText.Text = Lines(300);
  int pages = 0;
  Preview([&](QPrintPreviewDialog& preview) {
    pages = preview.findChild<QPrintPreviewWidget*>()->pageCount();
    EXPECT_FALSE(fs::exists(file));
    ActionOf(preview, QStringLiteral("Print")).trigger();
  });
  EXPECT_GT(pages, 3);
  EXPECT_EQ(PagesOf(file).size(), static_cast<std::size_t>(pages));
  EXPECT_EQ(TextOfWords(PagesOf(file)), WithoutBlanks(Lines(300)));
  EXPECT_EQ(ErrorTag(), "");
}

TEST_F(QtPrinterTest, APreviewThatIsClosedPrintsNothing) {
  const fs::path file = ChooseFile("previewed.pdf");
  editor.JoystickText.Text = "BTN";
  Preview([&](QPrintPreviewDialog& preview) {
    EXPECT_EQ(preview.windowTitle(), QStringLiteral("Print preview of untitled.b50"));
    preview.reject();
  });
  EXPECT_FALSE(fs::exists(file));
  EXPECT_EQ(ErrorTag(), "");
}

TEST_F(QtPrinterTest, WhereThereIsNoPrinterAPreviewAsksForAFileToPrintTo) {
  if (!QPrinterInfo::availablePrinters().isEmpty()) GTEST_SKIP() << "there is a printer";
  EXPECT_FALSE(printer.IsThere());
  const fs::path file = folder.path() / "asked.pdf";
  editor.JoystickText.Text = Lines(300);
  int pages = 0;
  Preview([&](QPrintPreviewDialog& preview) {
    pages = preview.findChild<QPrintPreviewWidget*>()->pageCount();
    QAction& print = ActionOf(preview, QStringLiteral("Print"));
    InSetUp([](QPrintDialog& dialog) { dialog.reject(); });
    print.trigger();
    EXPECT_TRUE(preview.isVisible());
    InSetUp([&](QPrintDialog& dialog) { ChooseIn(dialog, file); });
    print.trigger();
  });
  EXPECT_TRUE(printer.IsThere());
  EXPECT_GT(pages, 3);
  EXPECT_EQ(PagesOf(file).size(), static_cast<std::size_t>(pages));
  EXPECT_EQ(ErrorTag(), "");
}

TEST_F(QtPrinterTest, TheSetUpAlwaysOffersAPdfFile) {
  EXPECT_FALSE(SetUp([](QPrintDialog& dialog) {
    const auto* const printers = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
    EXPECT_EQ(printers->itemText(printers->count() - 1), QStringLiteral("Print to File (PDF)"));
    EXPECT_TRUE(dialog.testOption(QAbstractPrintDialog::PrintToFile));
    dialog.reject();
  }));
}

TEST_F(QtPrinterTest, WithoutAPrinterNothingIsPrintedOrShown) {
  if (!QPrinterInfo::availablePrinters().isEmpty()) GTEST_SKIP() << "there is a printer";
  editor.JoystickText.Text = "BTN";
  editor.mnuFilePrintJoystick_Click();
  EXPECT_EQ(ErrorTag(), "MODULE PrintRTF");
  EXPECT_EQ(program.application.workbench.errors.ErrorText.Get(), "Printer error");
}

}  // namespace
}  // namespace tarvik::screen
