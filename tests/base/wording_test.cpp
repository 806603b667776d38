// SPDX-License-Identifier: MIT
#include "base/wording.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnwick::testing {
namespace {

using Entries = std::vector<Wording::Entry>;

TEST(WordingTest, WithoutACatalogueEveryByteStays) {
  const std::string text("a\0b \xff %1\r\n\nc.", 13);
  EXPECT_EQ(Wording()(text), text);
}

TEST(WordingTest, ATextIsFoundWholeAndWithBlanksAroundIt) {
  const Wording wording(Entries{{"Ready ...", "Bereit ..."}});
  EXPECT_EQ(wording("Ready ..."), "Bereit ...");
  EXPECT_EQ(wording("  Ready ... \r\nReady"), "  Bereit ... \r\nReady");
}

TEST(WordingTest, ValuesGoWhereTheTranslationHasThem) {
  const Wording wording(Entries{{"The file %1 belongs to %2.", "Zu %2 gehört %1."}});
  EXPECT_EQ(wording("The file a.txt belongs to b."), "Zu b gehört a.txt.");
  EXPECT_EQ(wording("The file a belongs to "), "The file a belongs to ") << "no value is empty";
  EXPECT_EQ(wording("The file belongs to b."), "The file belongs to b.");
}

TEST(WordingTest, ValuesThatAreMessagesAreTranslatedAndThoseInQuotesAreNot) {
  const Wording wording(
      Entries{{"Failed: %1.", "Gescheitert: %1."}, {"no room", "kein Platz"}, {"\"no room\"", "falsch"}});
  EXPECT_EQ(wording("Failed: no room."), "Gescheitert: kein Platz.");
  EXPECT_EQ(wording("Failed: \"no room\"."), "Gescheitert: \"no room\".");
}

TEST(WordingTest, TheTemplateThatExplainsMostIsTaken) {
  const Wording wording(Entries{{"%1: %2", "%1: %2"},
                                {"No connection to %1 could be made: %2.", "Keine Verbindung zu %1: %2."},
                                {"the server closed it", "der Server schloss sie"}});
  EXPECT_EQ(wording("down 3: No connection to x: y could be made: the server closed it."),
            "down 3: Keine Verbindung zu x: y: der Server schloss sie.");
}

TEST(WordingTest, SentencesAreTranslatedOneByOne) {
  const Wording wording(Entries{{"The file %1 is full. Remove it.", "Die Datei %1 ist voll. Löschen Sie sie."},
                                {"Nothing was stored.", "Nichts wurde gespeichert."}});
  EXPECT_EQ(wording("The file a. b is full. Remove it. Nothing was stored. No more! Nothing was stored."),
            "Die Datei a. b ist voll. Löschen Sie sie. Nichts wurde gespeichert. No more! Nichts wurde gespeichert.");
}

TEST(WordingTest, APercentSignIsWrittenTwice) {
  const Wording wording(Entries{{"%1 at 100 %%, not %%25 or %3", "%1 bei 100 %%, nicht %%25 oder %3"}});
  EXPECT_EQ(wording("x at 100 %, not %25 or %3"), "x bei 100 %, nicht %25 oder %3");
}

TEST(WordingTest, BytesThatAreNoTextPassThrough) {
  const Wording wording(Entries{{"The name %1 is long.", "Lang ist %1."}});
  EXPECT_EQ(wording("The name \xff\xfe is long."), "Lang ist \xff\xfe.");
}

TEST(WordingTest, ALongLineOfManySentencesTakesNoTime) {
  const Wording wording(Entries{{"%1 is %2.", "%1 ist %2."}, {"%1. %2.", "%2. %1."}, {"%1: %2", "%1: %2"}});
  std::string line;
  while (line.size() < 1900) {
    line += "It is: so. ";
  }
  EXPECT_FALSE(wording(line).empty());
}

}  // namespace
}  // namespace tarnwick::testing
