// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "holes/hole.h"
#include "platform/clock.h"

/// Pages as the web has them, of which it is known by their making what varies in them and what does not.
namespace tarnwick::generated {

/// The same numbers on every machine, which the distributions of the standard library do not promise.
class Rng {
 public:
  explicit Rng(std::uint64_t seed) : state_(seed) {}
  explicit Rng(std::string_view seed);

  std::uint64_t next();
  /// From 0 up to but without the limit, which must not be 0.
  std::size_t below(std::size_t limit);
  /// Both ends are among them.
  int between(int least, int most);
  /// That many characters out of those.
  std::string text(std::size_t length, std::string_view characters);

  template <typename List>
  const auto& oneOf(const List& list) {
    return list[below(std::size(list))];
  }
  template <typename List>
  void shuffle(List& list) {
    for (std::size_t left = std::size(list); left > 1; --left) {
      std::swap(list[left - 1], list[below(left)]);
    }
  }

 private:
  std::uint64_t state_;
};

inline constexpr std::string_view kHex = "0123456789abcdef";
inline constexpr std::string_view kUpperHex = "0123456789ABCDEF";
inline constexpr std::string_view kBase36 = "0123456789abcdefghijklmnopqrstuvwxyz";
inline constexpr std::string_view kBase64 = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
inline constexpr std::string_view kBase64Url = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

/// When a page is fetched.
struct Moment {
  LocalTime time;
  int millisecond = 0;
  std::uint64_t fetch = 0;   ///< how many fetches of it there were before
  std::uint64_t visits = 0;  ///< how often others had seen it by then since the first fetch; grows
};

/// What stands at a place that varies, and what a careful person would say of it.
struct Value {
  std::string bytes{};
  HoleClass kind = HoleClass::anything;
  /// What looks alike but breaks the class: an impossible date, letters in a number.
  std::vector<std::string> breaks{};
};

/// Values by what a careful person calls them, each with what breaks it.
Value number(std::string digits);
Value hexNumber(std::string digits);
Value token(std::string characters);
Value choice(std::string word);
Value words(std::string line);
Value bytes(std::string anything);

/// A place of a page that varies by its making.
struct Volatile {
  std::size_t begin = 0;
  std::size_t length = 0;
  HoleClass kind = HoleClass::anything;
  std::vector<std::string> breaks{};  ///< as bytes of the page

  std::size_t end() const { return begin + length; }
};

/// How the characters of a page are written.
enum class Encoding { utf8, utf16le, utf16be, shiftJis, windows1252, windows1251, koi8r };

/// The bytes of a text; it must have nothing that the encoding has not.
std::string encoded(std::string_view utf8, Encoding encoding);

/// A page as one fetch gives it.
struct Made {
  std::string bytes{};
  std::vector<Volatile> parts{};  ///< in their order
  Encoding encoding = Encoding::utf8;

  void fixed(std::string_view piece) { bytes += piece; }
  void varying(const Value& value);
};

enum class Hope {
  learnable,   ///< a careful person could tell from five fetches what varies
  unknowable,  ///< nobody could
};

struct Generator {
  std::string name;
  std::function<Made(const Moment&, Rng&)> page;
  Hope hope = Hope::learnable;
  std::size_t furtherFetches = 1000;
};

using Slot = std::function<Value(const Moment&, Rng&)>;
/// By the names that stand for them in a text, as {{name}}. One that stands there more than once has the same value at
/// all its places.
using Slots = std::map<std::string, Slot, std::less<>>;

/// A page by its text, with the encoding's mark of byte order when it has one.
Generator page(std::string name, std::string_view text, Slots slots, Encoding encoding = Encoding::utf8);

/// The 92 that can be learnt and the 8 that cannot.
const std::vector<Generator>& allGenerators();

std::vector<Generator> tokenPages();
std::vector<Generator> counterPages();
std::vector<Generator> westernDatePages();
std::vector<Generator> otherDatePages();
std::vector<Generator> clockPages();
std::vector<Generator> shuffledPages();
std::vector<Generator> advertisementPages();
std::vector<Generator> linkPages();
std::vector<Generator> jsonPages();
std::vector<Generator> feedPages();
std::vector<Generator> encodingPages();
std::vector<Generator> binaryPages();
std::vector<Generator> rotatingPages();
std::vector<Generator> mixedPages();
std::vector<Generator> unknowablePages();
/// Shapes beyond these, for looking at alone.
std::vector<Generator> furtherPages();

}  // namespace tarnwick::generated
