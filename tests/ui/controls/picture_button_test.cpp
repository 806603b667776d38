// SPDX-License-Identifier: MIT
#include "ui/controls/picture_button.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace tarnwick {
namespace {

const QColor kReleasedColour(10, 200, 30);
const QColor kPressedColour(200, 10, 30);

class PictureButtonTest : public ::testing::Test {
 protected:
  PictureButtonTest() {
    writeBitmap(released(), kReleasedColour);
    writeBitmap(pressed(), kPressedColour);
    button.loadPictures(released(), pressed());
    button.resize(button.sizeHint());
    button.show();
  }

  QString released() const { return folder_.filePath(QStringLiteral("start.bmp")); }
  QString pressed() const { return folder_.filePath(QStringLiteral("starth.bmp")); }

  QColor shownColour() { return button.grab().toImage().pixelColor(8, 8); }

  static void writeBitmap(const QString& file, const QColor& colour) {
    QImage picture(144, 112, QImage::Format_RGB32);
    picture.fill(colour);
    ASSERT_TRUE(picture.save(file));
  }

 private:
  QTemporaryDir folder_;

 protected:
  PictureButton button{QStringLiteral("Start")};
};

TEST_F(PictureButtonTest, IsShownAtHalfTheSizeOfItsBitmap) { EXPECT_EQ(button.sizeHint(), QSize(72, 56)); }

TEST_F(PictureButtonTest, WritesItsWordIntoAPictureWithoutOne) {
  const QImage without = button.grab().toImage();
  button.loadPictures(released(), pressed(), true);
  const QImage with = button.grab().toImage();
  EXPECT_NE(with, without);
  const auto whiteIn = [&](const QRect& part) {
    int white = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
      for (int x = part.left(); x <= part.right(); ++x) {
        white += with.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
      }
    }
    return white;
  };
  EXPECT_GT(whiteIn(QRect(3, 36, 66, 14)), 10) << "where the other pictures have it";
  EXPECT_EQ(whiteIn(QRect(0, 0, 72, 36)), 0);
  button.setText(QStringLiteral("Einrichten und mehr"));
  EXPECT_EQ(button.sizeHint(), QSize(72, 56)) << "a longer word is written smaller: nothing moves";
}

TEST_F(PictureButtonTest, TheMouseButtonSwapsThePictures) {
  EXPECT_EQ(shownColour(), kReleasedColour);
  QTest::mousePress(&button, Qt::LeftButton);
  EXPECT_EQ(shownColour(), kPressedColour);
  QTest::mouseRelease(&button, Qt::LeftButton);
  EXPECT_EQ(shownColour(), kReleasedColour);
}

TEST_F(PictureButtonTest, TheSpaceKeySwapsThePicturesAndActs) {
  QSignalSpy clicks(&button, &PictureButton::clicked);
  QTest::keyPress(&button, Qt::Key_Space);
  EXPECT_EQ(shownColour(), kPressedColour);
  EXPECT_EQ(clicks.size(), 0);
  QTest::keyRelease(&button, Qt::Key_Space);
  EXPECT_EQ(shownColour(), kReleasedColour);
  EXPECT_EQ(clicks.size(), 1);
}

TEST_F(PictureButtonTest, TheEnterKeyActs) {
  QSignalSpy clicks(&button, &PictureButton::clicked);
  QTest::keyClick(&button, Qt::Key_Return);
  QTest::keyClick(&button, Qt::Key_Enter);
  EXPECT_EQ(clicks.size(), 2);
}

TEST_F(PictureButtonTest, IsReleasedBeforeAnActionThatPumpsEventsForLong) {
  QColor duringAction;
  QObject::connect(&button, &PictureButton::clicked, [&] {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
      duringAction = shownColour();
      loop.quit();
    });
    loop.exec();
  });
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(duringAction, kReleasedColour);

  duringAction = QColor();
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_EQ(duringAction, kReleasedColour);
}

TEST_F(PictureButtonTest, ReleasingTheMouseElsewhereRestoresThePictureAndDoesNotAct) {
  QSignalSpy clicks(&button, &PictureButton::clicked);
  QTest::mousePress(&button, Qt::LeftButton);
  QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(500, 500));
  EXPECT_EQ(shownColour(), kReleasedColour);
  EXPECT_EQ(clicks.size(), 0);
}

TEST_F(PictureButtonTest, AMissingPressedPictureShowsTheReleasedOne) {
  button.loadPictures(released(), QStringLiteral("/nowhere/starth.bmp"));
  QTest::mousePress(&button, Qt::LeftButton);
  EXPECT_EQ(shownColour(), kReleasedColour);
  QTest::mouseRelease(&button, Qt::LeftButton);
}

TEST_F(PictureButtonTest, WithoutPicturesItIsAButtonWithItsText) {
  button.loadPictures(QStringLiteral("/nowhere/start.bmp"), QStringLiteral("/nowhere/starth.bmp"));
  QSignalSpy clicks(&button, &PictureButton::clicked);
  EXPECT_TRUE(button.picture().isNull());
  EXPECT_GE(button.sizeHint().width(), 72);
  const QImage withText = button.grab().toImage();
  button.setText(QString());
  EXPECT_NE(button.grab().toImage(), withText);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks.size(), 1);
}

TEST_F(PictureButtonTest, ADamagedPictureIsAMissingOne) {
  QFile file(released());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no bitmap at all");
  file.close();
  button.loadPictures(released(), pressed());
  EXPECT_TRUE(button.picture().isNull());
  EXPECT_FALSE(button.grab().isNull());
}

TEST_F(PictureButtonTest, ADisabledButtonLooksDisabled) {
  button.setEnabled(false);
  EXPECT_NE(shownColour(), kReleasedColour);
}

}  // namespace
}  // namespace tarnwick
