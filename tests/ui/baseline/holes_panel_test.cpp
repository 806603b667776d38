// SPDX-License-Identifier: MIT
// What may vary in a page, in the content dialog.
#include "ui/baseline/holes_panel.h"

#include <QApplication>
#include <QComboBox>
#include <QMenu>

#include "support/wait_until.h"
#include "ui/baseline/learn_dialog.h"
#include "ui/controls/tones.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using testing::waitUntil;

const std::string kPage =
    "<p>Seen at 04:10:12</p>\n<p>by visitor 18,204 of all</p>\n<p>" + std::string(300, 'x') + "</p>\n";

class HolesPanelTest : public DialogTest {
 protected:
  HolesPanelTest() { addSite(1, server.url("/page")); }

  ContentDialog& openContent() {
    if (master == nullptr) {
      openEditor();
    }
    press(opened<SiteEditor>(), "Command2");
    auto& dialog = opened<ContentDialog>();
    if (!QTest::qWaitForWindowActive(&dialog)) {
      throw std::runtime_error("The dialog did not become the active window.");
    }
    return dialog;
  }
  void store(const std::string& column, const std::string& page) {
    const std::string hex = QByteArray::fromStdString(page).toHex().toStdString();
    folder.execute("update sites set " + column + " = cast(x'" + hex + "' as text)");
  }
  RuleSet rules() { return master->program().data().rulesOf(1); }
  static BaselineEdit& content(QWidget& dialog) { return in<BaselineEdit>(dialog, "tContent"); }
  static HoleTable& table(QWidget& dialog) { return in<HoleTable>(dialog, "holes"); }
  static bool isShown(QWidget& dialog) { return in<QWidget>(dialog, "frameHoles").isVisible(); }
  static std::string cell(QWidget& dialog, int row, int column) {
    const QAbstractItemModel& model = *table(dialog).model();
    return model.data(model.index(row, column)).toString().toStdString();
  }
  static std::vector<std::string> row(QWidget& dialog, int row) {
    std::vector<std::string> cells;
    for (int column = 0; column < table(dialog).model()->columnCount(); ++column) {
      cells.push_back(cell(dialog, row, column));
    }
    return cells;
  }
  static int rows(QWidget& dialog) { return table(dialog).model()->rowCount(); }
  static void select(QWidget& dialog, const std::string& text) {
    BaselineEdit& edit = content(dialog);
    QTextCursor cursor = edit.document()->find(QString::fromStdString(text));
    if (cursor.isNull()) {
      throw std::runtime_error("The page does not show " + text);
    }
    edit.setTextCursor(cursor);
  }
  static void mayVary(QWidget& dialog, const std::string& text) {
    select(dialog, text);
    press(dialog, "btnMayVary");
  }
  static void chooseRow(QWidget& dialog, int row, int column) {
    HoleTable& holes = table(dialog);
    QTest::mouseClick(holes.viewport(), Qt::LeftButton, {},
                      holes.visualRect(holes.model()->index(row, column)).center());
  }
  static std::string title(QWidget& dialog) { return in<QGroupBox>(dialog, "frameHoles").title().toStdString(); }
};

TEST_F(HolesPanelTest, IsThereWhenItIsAskedFor) {
  store("content_compare", kPage);
  auto& dialog = openContent();
  EXPECT_FALSE(isShown(dialog));
  EXPECT_FALSE(in<QAction>(dialog, "actionMayVary").isVisible());
  const int width = dialog.width();
  QTest::keyClick(&content(dialog), Qt::Key_H, Qt::AltModifier);
  EXPECT_TRUE(waitUntil([&] { return isShown(dialog); }));
  EXPECT_GT(dialog.width(), width);
  EXPECT_EQ(title(dialog), "What may vary (100 % stays watched)");
  EXPECT_EQ(rows(dialog), 0);
  press(dialog, "btnHoles");
  EXPECT_FALSE(isShown(dialog));
  press(dialog, "btnOk");
  EXPECT_EQ(column(1, "content_compare"), kPage);
  EXPECT_TRUE(rules().empty());
}

TEST_F(HolesPanelTest, SelectedTextMayVaryAndIsStoredByOk) {
  store("content_compare", kPage);
  std::string latest = kPage;
  latest.replace(latest.find("18,204"), 6, "18,377");
  store("content_runtime", latest);
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  EXPECT_FALSE(in<QPushButton>(dialog, "btnMayVary").isEnabled());
  mayVary(dialog, "18,204");
  select(dialog, "04:10:12");
  QTest::keyClick(&content(dialog), Qt::Key_M, Qt::ControlModifier);
  ASSERT_EQ(rows(dialog), 2);
  EXPECT_EQ(row(dialog, 0), (std::vector<std::string>{"Line 1", "time or date", "8", "04:10:12"}));
  EXPECT_EQ(row(dialog, 1), (std::vector<std::string>{"Line 2", "digits", "1–8", "18,377"}));
  EXPECT_EQ(table(dialog).currentIndex().row(), 0);
  EXPECT_TRUE(title(dialog).starts_with("What may vary (96."));
  EXPECT_TRUE(rules().empty()) << "stored before OK";
  press(dialog, "btnOk");
  ASSERT_EQ(rules().holes.size(), 2U);
  EXPECT_EQ(rules().holes[0].begin, kPage.find("04:10:12"));
  EXPECT_EQ(rules().holes[1].kind, HoleClass::digits);
  EXPECT_EQ(column(1, "content_compare"), kPage);
  auto& again = openContent();
  EXPECT_TRUE(isShown(again));
  EXPECT_TRUE(in<QPushButton>(again, "btnHoles").isChecked());
  EXPECT_EQ(rows(again), 2);
  EXPECT_EQ(cell(again, 1, HoleTableModel::seenColumn), "18,377");
}

TEST_F(HolesPanelTest, CancelDropsWhatWasMade) {
  store("content_compare", kPage);
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  mayVary(dialog, "18,204");
  EXPECT_FALSE(dialog.unsavedEdits().isEmpty());
  QTest::keyClick(&content(dialog), Qt::Key_Escape);
  EXPECT_EQ(shown<ContentDialog>(), nullptr);
  EXPECT_TRUE(rules().empty());
}

TEST_F(HolesPanelTest, TheMenuOfTheTextMakesAHole) {
  store("content_compare", kPage);
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  select(dialog, "visitor");
  QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(5, 5), content(dialog).mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(content(dialog).viewport(), &menu);
  auto* opened = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(opened, nullptr);
  QAction* action = opened->actions().back();
  EXPECT_EQ(action->text().remove(QLatin1Char('&')), QStringLiteral("May Vary Here"));
  QTest::mouseClick(opened, Qt::LeftButton, {}, opened->actionGeometry(action).center());
  EXPECT_EQ(rows(dialog), 1);
}

TEST_F(HolesPanelTest, ClassAndLengthAreChangedInTheirPlaces) {
  store("content_compare", kPage);
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  mayVary(dialog, "18,204");
  HoleTable& holes = table(dialog);
  holes.setFocus();
  QTest::keyClick(&holes, Qt::Key_F2);
  auto* choice = holes.viewport()->findChild<QComboBox*>();
  ASSERT_NE(choice, nullptr);
  EXPECT_EQ(choice->currentText().toStdString(), "digits");
  QTest::keyClick(choice, Qt::Key_End);
  QTest::keyClick(choice, Qt::Key_Return);
  ASSERT_TRUE(waitUntil([&] { return holes.viewport()->findChild<QComboBox*>() == nullptr; }));
  EXPECT_EQ(cell(dialog, 0, HoleTableModel::whatColumn), "anything");
  const auto setLength = [&](const QString& text) {
    holes.setCurrentIndex(holes.model()->index(0, HoleTableModel::lengthColumn));
    QTest::keyClick(&holes, Qt::Key_F2);
    auto* length = holes.viewport()->findChild<QLineEdit*>();
    length->selectAll();
    QTest::keyClicks(length, text);
    QTest::keyClick(length, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([&] { return holes.viewport()->findChild<QLineEdit*>() == nullptr; }));
    return cell(dialog, 0, HoleTableModel::lengthColumn);
  };
  EXPECT_EQ(setLength(QStringLiteral("4-20")), "4–20");
  EXPECT_EQ(setLength(QStringLiteral("many")), "4–20");
  EXPECT_EQ(setLength(QStringLiteral("6")), "6");
  press(dialog, "btnOk");
  ASSERT_EQ(rules().holes.size(), 1U);
  EXPECT_EQ(rules().holes[0].kind, HoleClass::anything);
  EXPECT_EQ(rules().holes[0].most, 6U);
}

TEST_F(HolesPanelTest, ARowShowsItsPlaceAndCanBeRemoved) {
  std::string page = kPage;
  for (int i = 0; i < 300; ++i) {
    page += "<p>another line</p>\n";
  }
  store("content_compare", page + "<p>at last 77</p>\n");
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  mayVary(dialog, "04:10:12");
  mayVary(dialog, "77");
  chooseRow(dialog, 0, HoleTableModel::placeColumn);
  EXPECT_EQ(content(dialog).textCursor().selectedText(), QStringLiteral("04:10:12"));
  EXPECT_TRUE(content(dialog).viewport()->rect().contains(content(dialog).cursorRect()));
  chooseRow(dialog, 1, HoleTableModel::placeColumn);
  EXPECT_EQ(content(dialog).textCursor().selectedText(), QStringLiteral("77"));
  EXPECT_TRUE(content(dialog).viewport()->rect().contains(content(dialog).cursorRect()));
  QTest::keyClick(&table(dialog), Qt::Key_Delete);
  EXPECT_EQ(rows(dialog), 1);
  press(dialog, "btnRemove");
  EXPECT_EQ(rows(dialog), 0);
  EXPECT_FALSE(in<QPushButton>(dialog, "btnRemove").isEnabled());
}

TEST_F(HolesPanelTest, AHoleThatAnEditTookIsStruckThroughAndComesBackByUndo) {
  store("content_compare", kPage);
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  mayVary(dialog, "18,204");
  select(dialog, "<p>by visitor 18,204 of all</p>");
  QTest::keyClick(&content(dialog), Qt::Key_Delete);
  ASSERT_TRUE(waitUntil([&] { return cell(dialog, 0, HoleTableModel::seenColumn) == "place not found"; }));
  const QAbstractItemModel& model = *table(dialog).model();
  EXPECT_TRUE(model.data(model.index(0, 1), Qt::FontRole).value<QFont>().strikeOut());
  QTest::keyClick(&content(dialog), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(waitUntil([&] { return cell(dialog, 0, HoleTableModel::placeColumn) == "Line 2"; }));
  QTest::keyClick(&content(dialog), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  press(dialog, "btnOk");
  EXPECT_TRUE(rules().empty()) << "a hole without a place was stored";
}

TEST_F(HolesPanelTest, HolesOfALoadedPageAreThoseThatItHas) {
  store("content_compare", kPage);
  server.respond("/page", {.body = "<h1>News</h1>\n" + kPage});
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  mayVary(dialog, "18,204");
  load(dialog);
  EXPECT_EQ(cell(dialog, 0, HoleTableModel::placeColumn), "Line 3");
  press(dialog, "btnOk");
  EXPECT_EQ(rules().holes.at(0).begin, kPage.find("18,204") + 14);
}

TEST_F(HolesPanelTest, TellsWhenLittleStaysWatched) {
  store("content_compare", kPage);
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  EXPECT_FALSE(in<QLabel>(dialog, "holesWatched").isVisible());
  mayVary(dialog, std::string(300, 'x'));
  const auto& line = in<QLabel>(dialog, "holesWatched");
  EXPECT_TRUE(line.isVisible());
  EXPECT_EQ(line.text().toStdString(), "Only 17 % stays watched");
  EXPECT_EQ(line.palette().color(QPalette::Window), noticeColours(NoticeTone::amber, false).fill);
  EXPECT_EQ(title(dialog), "What may vary");
}

TEST_F(HolesPanelTest, HolesAreShadedInTheText) {
  store("content_compare", kPage);
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  mayVary(dialog, "18,204");
  const auto shaded = content(dialog).extraSelections();
  ASSERT_EQ(shaded.size(), 1);
  EXPECT_EQ(shaded[0].cursor.selectedText(), QStringLiteral("18,204"));
  EXPECT_EQ(shaded[0].format.background().color(), holeColours(false).fill);
  // Away from the place, and where the place is in sight in any font.
  content(dialog).moveCursor(QTextCursor::Start);
  const QRect row = content(dialog).cursorRect(shaded[0].cursor);
  const QImage picture = content(dialog).viewport()->grab(row.adjusted(-40, -2, 0, 2)).toImage();
  bool hasEdge = false;
  for (int x = 0; x < picture.width(); ++x) {
    for (int y = 0; y < picture.height(); ++y) {
      hasEdge = hasEdge || picture.pixelColor(x, y) == holeColours(false).edge;
    }
  }
  EXPECT_TRUE(hasEdge);
}

TEST_F(HolesPanelTest, APageInUtf16HasItsHolesWhereItsTextIs) {
  std::string page = "\xFF\xFE";
  for (const char c : kPage) {
    page += std::string{c, '\0'};
  }
  store("content_compare", page);
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  const QString shownText = content(dialog).toPlainText();
  const auto begin = shownText.indexOf(QLatin1Char('1'), shownText.indexOf(QLatin1Char('v')));
  QTextCursor cursor(content(dialog).document());
  cursor.setPosition(static_cast<int>(begin));
  cursor.setPosition(static_cast<int>(begin) + 12, QTextCursor::KeepAnchor);
  content(dialog).setTextCursor(cursor);
  press(dialog, "btnMayVary");
  EXPECT_EQ(row(dialog, 0), (std::vector<std::string>{"Line 2", "digits", "1–8", ""}));
  EXPECT_EQ(content(dialog).extraSelections().at(0).cursor.selectionStart(), begin);
  press(dialog, "btnOk");
  EXPECT_EQ(rules().holes.at(0).begin, kPage.find("18,204") + 4) << "its marks";
}

TEST_F(HolesPanelTest, KeyboardReachesAllAndEachHasItsName) {
  store("content_compare", kPage);
  auto& dialog = openContent();
  press(dialog, "btnHoles");
  mayVary(dialog, "18,204");
  content(dialog).setFocus();
  EXPECT_EQ(tabOrder(dialog, content(dialog)),
            (std::vector<std::string>{"tContent", "holes", "btnMayVary", "btnLearn", "btnRules", "btnRemove",
                                      "btnHoles", "btnLoad", "btnOk", "btnCancel"}));
  std::vector<QChar> keys = mnemonics(dialog);
  std::ranges::sort(keys);
  EXPECT_EQ(std::ranges::adjacent_find(keys), keys.end()) << "two controls have the same key";
  EXPECT_EQ(spoken(table(dialog)), QStringLiteral("What may vary"));
  const QAbstractItemModel& model = *table(dialog).model();
  EXPECT_EQ(model.data(model.index(0, 1), Qt::AccessibleTextRole).toString(), QStringLiteral("What: digits"));
}

}  // namespace
}  // namespace tarnwick
