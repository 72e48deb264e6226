// The dialogs that the user sees, as far as they can be answered without one.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFontDialog>
#include <QLineEdit>
#include <QTimer>

#include "platform/TemporaryFolder.h"
#include "screen/QtDialogs.h"

namespace tarvik::screen {
namespace {

/// Does something with the dialog as soon as it is there.
template <class D>
void Once(const std::function<void(D&)>& does) {
  QTimer::singleShot(0, [does] {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (auto* const dialog = qobject_cast<D*>(window)) does(*dialog);
    }
  });
}

class QtDialogsTest : public testing::Test {
 protected:
  Drives drives{{}};
  QtDialogs dialogs{drives};
};

TEST_F(QtDialogsTest, AFontOfNoPossibleSizeIsOfferedInOneThatCanBe) {
  for (const auto& [stored, offered] : {std::pair{0, 4}, {12, 12}, {10000, 144}}) {
    int size = 0;
    Once<QFontDialog>([&size](QFontDialog& dialog) {
      size = dialog.currentFont().pointSize();
      dialog.reject();
    });
    const auto font = dialogs.AskForFont({"A font that is gone", stored, false}, false);
    EXPECT_EQ(size, offered);
    EXPECT_EQ(font.failure().number, error::kDialogCancelled);
  }
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
  const std::pair<int, const char*> kTypes[] = {
      {0, "c:\\mine.b50"}, {1, "c:\\mine.f22"}, {2, "c:\\mine.b50"}};
  for (const auto& [type, path] : kTypes) {
    Once<QFileDialog>([index = type](QFileDialog& dialog) {
      auto* const types = dialog.findChild<QComboBox*>("fileTypeCombo");
      types->setCurrentIndex(index);
      Q_EMIT types->activated(index);
      Q_EMIT types->textActivated(types->currentText());
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText("mine");
      static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
    const auto chosen = dialogs.AskForFile(request);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(*chosen, path);
  }
}

}  // namespace
}  // namespace tarvik::screen
