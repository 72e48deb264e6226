// The log on screen: it grows while somebody looks, and each line can be copied.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QListView>
#include <QTest>

#include "screen/ProgramOnScreen.h"
#include "tools/viewers/LogForm.h"

namespace tarvik::screen {
namespace {

class LogWindow : public testing::Test, public ProgramOnScreen {
 protected:
  QStringList ShownLines() const {
    QStringList lines;
    for (int i = 0; i < list.model()->rowCount(); ++i) lines += list.model()->index(i, 0).data().toString();
    return lines;
  }

  Log& log = application.workbench.log;
  LogForm& form = Show<LogForm>();
  QListView& list = Find<QListView>(form.List1);
};

TEST_F(LogWindow, GrowsWhileItIsOpenAndKeepsWhatIsPicked) {
  log.Write("one");
  list.setCurrentIndex(list.model()->index(0, 0));
  log.Write("two");
  EXPECT_EQ(ShownLines(), QStringList({"16:00:00 one", "16:00:00 two"}));
  EXPECT_EQ(list.currentIndex().row(), 0);
}

TEST_F(LogWindow, CopiesThePickedLineByKeyAndAllLinesByItsButton) {
  log.Write("one");
  log.Write("two");
  list.setCurrentIndex(list.model()->index(1, 0));
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "16:00:00 two");
  QTest::mouseClick(&Find<QWidget>(form.cmdCopy), Qt::LeftButton);
  EXPECT_EQ(outside.clipboard.Text().text, "16:00:00 one\r\n16:00:00 two\r\n");
}

TEST_F(LogWindow, ShowsLettersOfTheCodePage) {
  log.Write("Gr\xFC\xDF");
  EXPECT_EQ(ShownLines(), QStringList(QString::fromUtf8("16:00:00 Gr\xC3\xBC\xC3\x9F")));
}

TEST_F(LogWindow, HearsNothingAnyMoreWhenItIsGone) {
  application.Unload(form);
  log.Write("one");
  EXPECT_EQ(application.LoadedTool<LogForm>(), nullptr);
}

}  // namespace
}  // namespace tarvik::screen
