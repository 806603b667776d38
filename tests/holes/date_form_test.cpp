// SPDX-License-Identifier: MIT
#include "holes/date_form.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

struct Written {
  std::string text;
  std::string form;
  /// The same form at other moments.
  std::vector<std::string> later;
};

void PrintTo(const Written& written, std::ostream* out) { *out << written.text; }

class FormsOfDates : public testing::TestWithParam<Written> {};

TEST_P(FormsOfDates, AreKnownWholeAndReadAtOtherTimes) {
  const Written& written = GetParam();
  const std::string page = "<p>Seen: " + written.text + "</p>";
  const auto found = dateOver(page, 9 + written.text.size() / 2, 9 + written.text.size() / 2);
  ASSERT_TRUE(found) << written.text;
  EXPECT_EQ(page.substr(found->begin, found->length), written.text);
  EXPECT_EQ(found->form, written.form);
  for (const std::string& later : written.later) {
    const auto read = readDate(later, found->form);
    ASSERT_TRUE(read) << later << " by " << found->form;
    EXPECT_EQ(read->length, later.size()) << later;
  }
}

INSTANTIATE_TEST_SUITE_P(
    , FormsOfDates,
    testing::Values(
        Written{"18:40:10", "%H:%M:%S", {"04:00:00", "23:59:60"}}, Written{"6:05 PM", "%H:%M %p", {"11:59 AM"}},
        Written{"2026-11-22", "%Y-%m-%d", {"2027-01-01"}},
        Written{"2026-11-22T18:40:10Z", "%Y-%m-%dT%H:%M:%S%z", {"2027-01-01T00:00:00Z"}},
        Written{"2026-11-22T18:40:10.123+01:00", "%Y-%m-%dT%H:%M:%S.%f%z", {"2027-01-01T00:00:00.5+02:00"}},
        Written{"20261122T184010Z", "%Y%m%dT%H%M%S%z", {"20270101T000000Z"}},
        Written{"2026:11:22 18:40:10", "%Y:%m:%d %H:%M:%S", {"2027:01:01 00:00:00"}},
        Written{"11/22/2026 06:40 PM", "%m/%d/%Y %H:%M %p", {"1/1/2027 12:00 AM"}},
        Written{"05/06/2026", "%e/%e/%Y", {"22/11/2026", "11/22/2026"}},
        Written{"22.11.2026, 18:40:10", "%d.%m.%Y, %H:%M:%S", {"1.1.2027, 0:00:00"}},
        Written{"22.11.2026 18:40", "%d.%m.%Y %H:%M", {"1.1.2027 00:00"}},
        Written{"Sun, 22 Nov 2026 18:40:10 GMT", "%A, %d %B %Y %H:%M:%S %z", {"Fri, 01 Jan 2027 00:00:00 +0100"}},
        Written{"Sun Nov 22 18:40:10 UTC 2026", "%A %B %d %H:%M:%S %z %Y", {"Fri Jan  1 00:00:00 CET 2027"}},
        Written{"Sunday, November 22nd, 2026 at 6:40 pm",
                "%A, %B %d, %Y at %H:%M %p",
                {"Friday, January 1st, 2027 at 12:00 am"}},
        Written{"Sonntag, 22. November 2026 um 18:40:10",
                "%A, %d. %B %Y um %H:%M:%S",
                {"Mittwoch, 3. März 2027 um 00:00:00"}},
        Written{"dimanche 22 novembre 2026 à 18h40", "%A %d %B %Y à %Hh%M", {"dimanche 1er août 2027 à 00h00"}},
        Written{"domingo, 22 de noviembre de 2026, 18:40:10",
                "%A, %d de %B de %Y, %H:%M:%S",
                {"miércoles, 1 de enero de 2027, 00:00:00"}},
        Written{"22 novembre 2026 alle 18:40", "%d %B %Y alle %H:%M", {"1 gennaio 2027 alle 00:00"}},
        Written{"domingo, 22 de novembro de 2026", "%A, %d de %B de %Y", {"segunda-feira, 1 de março de 2027"}},
        Written{"zondag 22 november 2026 om 18:40", "%A %d %B %Y om %H:%M", {"maandag 1 maart 2027 om 00:00"}},
        Written{"niedziela, 22 listopada 2026, 18:40:10",
                "%A, %d %B %Y, %H:%M:%S",
                {"środa, 6 października 2027, 00:00:00"}},
        Written{"22 ноября 2026 г. в 18:40", "%d %B %Y г. в %H:%M", {"1 мая 2027 г. в 00:00"}},
        Written{"воскресенье, 22 ноя 2026", "%A, %d %B %Y", {"среда, 6 окт 2027"}},
        Written{"2026年11月22日 18:40:10", "%Y年%m月%d日 %H:%M:%S", {"2027年1月1日 00:00:00"}},
        Written{"2026年11月22日(日) 18時40分10秒", "%Y年%m月%d日(%A) %H時%M分%S秒", {"2027年1月1日(金) 0時00分00秒"}},
        Written{"2026年11月22日星期日 下午6:40", "%Y年%m月%d日%A %p%H:%M", {"2027年1月1日星期五 上午12:00"}},
        Written{"22-Nov-2026", "%d-%B-%Y", {"1-Jan-2027"}}, Written{"Nov 22", "%B %d", {"Jan 1"}},
        Written{"November 2026", "%B %Y", {"January 2027"}},
        Written{"22/Nov/2026:18:40:10 +0000", "%d/%B/%Y:%H:%M:%S %z", {"01/Jan/2027:00:00:00 +0100"}},
        Written{"mar. 14 juil. 2026, 16h29", "%A %d %B %Y, %Hh%M", {"mer. 1 août 2027, 00h00"}},
        Written{"mar 3 nov 2026 - 00.21", "%A %d %B %Y - %H.%M", {"dom 1 gen 2027 - 23.59"}},
        Written{"So 15.02. 12:31:57", "%A %d.%m. %H:%M:%S", {"Mo 1.1. 0:00:00"}},
        Written{"22/11 18:40", "%d/%m %H:%M", {"01/01 00:00"}},
        Written{"samedi 7 février 2026 à 15 h 03 min 57 s",
                "%A %d %B %Y à %H h %M min %S s",
                {"dimanche 1er août 2027 à 0 h 00 min 00 s"}},
        Written{"jueves 25 de junio del 2026 a las 10:29:57",
                "%A %d de %B del %Y a las %H:%M:%S",
                {"lunes 1 de enero del 2027 a las 00:00:00"}},
        Written{"22 Nov 2026, 5.31pm", "%d %B %Y, %H.%M%p", {"1 Jan 2027, 12.00am"}},
        Written{"22.11.26 18:40", "%d.%m.%y %H:%M", {"01.01.27 00:00"}},
        Written{"2026年十一月22日 周日 18:40:10", "%Y年%B%d日 %A %H:%M:%S", {"2027年一月1日 周五 00:00:00"}},
        Written{"2026年06月29日（月）15:53", "%Y年%m月%d日（%A）%H:%M", {"2027年1月1日（金）0:00"}},
        Written{"20261122-184010", "%Y%m%d-%H%M%S", {"20270101-000000"}},
        Written{"20261122184010Z", "%Y%m%d%H%M%S%z", {"20270101000000+01:00"}},
        Written{"215 days, 04:10:58", "%N, %H:%M:%S", {"1 day, 00:00:00", "1024 days, 23:59:59"}},
        // In Latin-1, KOI8, Windows-1251 and Shift-JIS.
        Written{"3. M\xE4rz 2026", "%d. %B %Y", {"22. November 2027"}},
        Written{"22 \xCE\xCF\xD1 2026", "%d %B %Y", {"1 \xC6\xC5\xD7 2027"}},
        Written{"22 \xED\xEE\xFF\xE1\xF0\xFF 2026", "%d %B %Y", {"1 \xEC\xE0\xFF 2027"}},
        Written{"2026\x94\x4E\x31\x31\x8C\x8E\x32\x32\x93\xFA(\x93\xFA) 18:40",
                "%Y\x94\x4E%m\x8C\x8E%d\x93\xFA(%A) %H:%M",
                {"2027\x94\x4E\x31\x8C\x8E\x31\x93\xFA(\x8B\xE0) 0:00"}}));

TEST(WhatIsNoDate, IsNotTakenForOne) {
  for (const char* text : {"18,204", "3.14", "1.2.3", "192.168.1.17", "Monday", "may", "20", "2026", "12/5", "99:99",
                           "13.13.2026", "deadbeef", "mars attacks"}) {
    EXPECT_FALSE(nextDate(text, 0)) << text << ": " << nextDate(text, 0)->form;
  }
}

TEST(AFormOfADate, RefusesWhatCannotBe) {
  EXPECT_FALSE(readDate("32 November 2026", "%d %B %Y"));
  EXPECT_FALSE(readDate("22 Foovember 2026", "%d %B %Y"));
  EXPECT_FALSE(readDate("25:00", "%H:%M"));
  EXPECT_FALSE(readDate("2026-13-01", "%Y-%m-%d"));
  EXPECT_FALSE(readDate("<script>", "%Y-%m-%d"));
  EXPECT_FALSE(readDate("", "%H:%M"));
  EXPECT_FALSE(readDate("30.02.2027", "%d.%m.%Y"));
  EXPECT_FALSE(readDate("29.02.2027", "%d.%m.%Y"));
  EXPECT_TRUE(readDate("29.02.2028", "%d.%m.%Y"));
  EXPECT_FALSE(readDate("13/21/2027", "%e/%e/%Y"));
}

TEST(TheNextDate, IsFoundBetweenOtherWords) {
  const std::string page = "Version 3.2 of 7 pieces, last change 22 November 2026 by somebody, at 18:40 there.";
  const auto first = nextDate(page, 0);
  ASSERT_TRUE(first);
  EXPECT_EQ(page.substr(first->begin, first->length), "22 November 2026");
  const auto second = nextDate(page, first->end());
  ASSERT_TRUE(second);
  EXPECT_EQ(page.substr(second->begin, second->length), "18:40");
}

}  // namespace
}  // namespace tarnwick
