// The dialogs that the user sees, as far as they can be answered without one.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "screen/services/FontDialog.h"
#include "screen/services/QtDialogs.h"
#include "screen/widgets/Conversions.h"
#include "support/Printers.h"
#include "support/TemporaryFolder.h"

namespace tarvik::screen {
namespace {

/// Does something with the dialog as soon as it is there.
template <class D>
void Once(const std::function<void(D&)>& does) {
  QTimer::singleShot(0, [does] {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (auto* const dialog = dynamic_cast<D*>(window)) does(*dialog);
    }
  });
}

class QtDialogsTest : public testing::Test {
 protected:
  Drives drives{{}};
  QtDialogs dialogs{drives};
};

TEST_F(QtDialogsTest, AFontOfNoPossibleSizeIsOfferedInOneThatCanBe) {
  for (const auto& [stored, offered] : {std::pair{0, 10}, {1, 1}, {12, 12}, {10000, 512}}) {
    int size = 0;
    Once<FontDialog>([&size](FontDialog& dialog) {
      size = dialog.Choice().size;
      dialog.reject();
    });
    const auto font = dialogs.AskForFont({"A font that is gone", stored, false}, false);
    EXPECT_EQ(size, offered);
    EXPECT_EQ(font.failure().number, error::kDialogCancelled);
  }
}

TEST_F(QtDialogsTest, TheFontThatIsReallyShownIsOffered) {
  const std::string shown = QFontInfo(QFont(QStringLiteral("A font that is gone"))).family().toStdString();
  Once<FontDialog>([&shown](FontDialog& dialog) {
    const auto* const families = dialog.findChild<QListWidget*>();
    ASSERT_TRUE(families->currentItem());
    EXPECT_EQ(families->currentItem()->text().toStdString(), shown);
    dialog.reject();
  });
  EXPECT_FALSE(dialogs.AskForFont({"A font that is gone", 9, false}, false));
}

TEST_F(QtDialogsTest, AFontThatIsTakenAsItIsOfferedStaysWhatItWas) {
  for (const bool fixedPitch : {false, true}) {
    const FontChoice before{"A font that is gone", 0, true};
    Once<FontDialog>([](FontDialog& dialog) { dialog.accept(); });
    const auto font = dialogs.AskForFont(before, fixedPitch);
    ASSERT_TRUE(font);
    EXPECT_EQ(*font, before);
  }
}

TEST_F(QtDialogsTest, AFontThatIsChangedIsOneThatIsThere) {
  Once<FontDialog>([](FontDialog& dialog) {
    dialog.findChild<QSpinBox*>()->setValue(17);
    dialog.accept();
  });
  const auto font = dialogs.AskForFont({"A font that is gone", 9, false}, false);
  ASSERT_TRUE(font);
  EXPECT_EQ(font->size, 17);
  EXPECT_EQ(font->name, QFontInfo(QFont(ToScreen("A font that is gone"))).family().toStdString());
}

TEST_F(QtDialogsTest, AFolderOfTheHostIsChosenAsItIs) {
  const TemporaryFolder temporary;
  const std::string folder = temporary.Make("Dös \u2603").string();
  std::string begins;
  Once<QFileDialog>([&begins](QFileDialog& dialog) {
    begins = dialog.directory().path().toStdString();
    static_cast<QDialog&>(dialog).done(QDialog::Accepted);
  });
  const auto chosen = dialogs.AskForHostFolder("Select", folder);
  EXPECT_EQ(begins, folder);
  ASSERT_TRUE(chosen);
  EXPECT_EQ(*chosen, folder);
}

TEST_F(QtDialogsTest, ANameWithoutAnEndingGetsThatOfTheTypeThatIsChosen) {
  const TemporaryFolder temporary;
  drives = Drives{{{'c', temporary.path()}}};
  const FileRequest request{
      FileDialogKind::Save,
      {},
      "Joystick file (*.b50)|*.b50|F22 joystick file (*.f22) |*.f22|All files (*.*)|*.*",
      "c:\\",
      {},
      "b50"};
  struct Row {
    const char* name;
    int type;
    const char* path;
  };
  const Row kRows[] = {{"mine", 0, "c:\\mine.b50"},     {"mine", 1, "c:\\mine.f22"},
                       {"mine", 2, "c:\\mine.b50"},     {"mine.b50", 1, "c:\\mine.f22"},
                       {"mine.txt", 1, "c:\\mine.f22"}, {"mine.f22", 2, "c:\\mine.f22"}};
  for (const auto& [name, type, path] : kRows) {
    Once<QFileDialog>([index = type, text = name](QFileDialog& dialog) {
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(text);
      auto* const types = dialog.findChild<QComboBox*>("fileTypeCombo");
      types->setCurrentIndex(index);
      Q_EMIT types->activated(index);
      Q_EMIT types->textActivated(types->currentText());
      static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
    const auto chosen = dialogs.AskForFile(request);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(*chosen, path);
  }
}

TEST_F(QtDialogsTest, AFileThatIsOfferedIsTheFileOfThatPath) {
  const TemporaryFolder temporary;
  temporary.Put("tm/Flight.b50", "");
  temporary.Put("tm/\u2603.b50", "");
  drives = Drives{{{'c', temporary.path()}}};
  const std::string snow = drives.FromHost(temporary.path() / "tm/\u2603.b50");
  for (const std::string& path : {std::string("c:\\tm\\flight.b50"), std::string("c:\\tm\\new.b50"), snow}) {
    QString offered;
    Once<QFileDialog>([&offered](QFileDialog& dialog) {
      offered = dialog.findChild<QLineEdit*>("fileNameEdit")->text();
      static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
    const auto chosen =
        dialogs.AskForFile({FileDialogKind::Save, {}, "All files (*.*)|*.*", "c:\\", path, {}});
    ASSERT_TRUE(chosen);
    EXPECT_EQ(*chosen, path);
    EXPECT_FALSE(offered.contains(u'\\')) << offered.toStdString();
  }
}

/// A mnemonic that leads nowhere would become part of a file's name.
TEST_F(QtDialogsTest, ALetterWithAltTypesNothing) {
  QString typed;
  Once<QFileDialog>([&typed](QFileDialog& dialog) {
    auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
    QTest::keyClicks(name, QStringLiteral("ab"));
    QKeyEvent command(QEvent::KeyPress, Qt::Key_Z, Qt::AltModifier, QStringLiteral("z"));
    QApplication::sendEvent(name, &command);
    typed = name->text();
    dialog.reject();
  });
  EXPECT_FALSE(dialogs.AskForFile({FileDialogKind::Save, {}, "All files (*.*)|*.*", {}, {}, {}}));
  EXPECT_EQ(typed, QStringLiteral("ab"));
}

TEST(QtDialogs, FoldersOfInterestStandAtTheSideOnceAndAsFarAsTheyAreThere) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path() / "my");
  Drives drives({{'c', folder.path().string()}});
  QtDialogs dialogs(drives);
  dialogs.foldersOffered = [] {
    return std::vector<std::string>{"c:\\my\\", "c:\\gone\\", "c:\\my", "c:\\"};
  };
  QStringList places;
  Once<QFileDialog>([&places](QFileDialog& dialog) {
    for (const QUrl& place : dialog.sidebarUrls()) places += place.toLocalFile();
    dialog.reject();
  });
  EXPECT_FALSE(dialogs.AskForFile({}));
  const QString root = QString::fromStdString(folder.path().string());
  EXPECT_EQ(places, QStringList({QDir::homePath(), root + QLatin1String("/my"), root, QStringLiteral("/")}));
}

}  // namespace
}  // namespace tarvik::screen
