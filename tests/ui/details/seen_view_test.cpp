// SPDX-License-Identifier: MIT
#include "ui/details/seen_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>

#include "support/http_server.h"
#include "support/wait_until.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

std::string pngOf(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "png");
  return bytes.toStdString();
}

struct SeenViewTest : ::testing::Test {
  SeenViewTest() {
    view.resize(600, 400);
    view.show();
  }
  std::string note() { return view.findChild<QLabel*>(QStringLiteral("seenNote"))->text().toStdString(); }
  std::string text(const char* name) {
    return view.findChild<QTextBrowser*>(QString::fromLatin1(name))->toPlainText().toStdString();
  }

  SeenView view;
};

TEST_F(SeenViewTest, APageIsDrawnWithoutTheNetworkAndWithoutItsScripts) {
  HttpServer server;
  const std::string page = "<html><body><h1>Shop</h1><script>document.write('run')</script><img src='" +
                           server.url("/p.png") + "' alt='kettle'><link rel=stylesheet href='" + server.url("/s.css") +
                           "'><p>29.00</p></body></html>";
  view.showPages({page, page});
  view.grab();
  EXPECT_THAT(text("seenAfter"), HasSubstr("Shop"));
  EXPECT_THAT(text("seenAfter"), HasSubstr("29.00"));
  EXPECT_THAT(text("seenAfter"), Not(HasSubstr("run")));
  EXPECT_THAT(note(), HasSubstr("Simplified"));
  EXPECT_EQ(server.connections(), 0);
}

TEST_F(SeenViewTest, OfPicturesItTellsHowManyPixelsDiffer) {
  QImage before(20, 10, QImage::Format_ARGB32);
  before.fill(Qt::white);
  QImage after = before;
  after.setPixelColor(3, 4, Qt::black);
  after.setPixelColor(4, 4, Qt::black);
  view.showPages({pngOf(before), pngOf(after)});
  EXPECT_EQ(note(), "2 of 200 pixels differ (1 %).");
  view.showPages({pngOf(before), pngOf(before)});
  EXPECT_EQ(note(), "Each pixel is the same.");
  view.showPages({pngOf(before), pngOf(before.scaled(30, 10))});
  EXPECT_EQ(note(), "20 × 10 pixels became 30 × 10.");
}

TEST_F(SeenViewTest, ADamagedPictureAndAHugeOneAreSaidToBe) {
  const std::string whole = pngOf(QImage(20, 10, QImage::Format_ARGB32));
  view.showPages({whole, whole.substr(0, 20)});
  EXPECT_EQ(note(), "The picture cannot be drawn: it is damaged.");
  std::string huge = whole;
  huge.replace(16, 8, std::string("\0\1\0\0\0\1\0\0", 8));  // its head says 65,536 x 65,536
  view.showPages({whole, huge});
  EXPECT_THAT(note(), ::testing::AnyOf(HasSubstr("too large to be drawn"), HasSubstr("cannot be drawn")));
}

}  // namespace
}  // namespace tarnwick::testing
