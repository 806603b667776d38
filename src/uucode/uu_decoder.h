// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

/// Decodes uuencoded text that comes in pieces of any size; little more than a line is kept of it.
///
/// Text of other encoders is understood: a mode in the header, blanks for grave accents, blanks stripped at line ends,
/// LF alone as a line end, text before the header and after the end, an end without a line of length zero.
///
/// Every fault raises DecodeError with its line; what was decoded until then is worth nothing.
class UuDecoder {
 public:
  enum class Form {
    file,  ///< a header line, data lines, a line of length zero, "end"
    lines  ///< data lines alone
  };

  /// `file` is named in errors; empty for a text in memory.
  explicit UuDecoder(Form form, std::string file = {});

  /// Takes the next piece of the text and appends to `bytes` what is complete.
  void feed(std::string_view text, std::string& bytes);

  /// Says that the text is over: appends to `bytes` what is left, and raises DecodeError when something is missing.
  void finish(std::string& bytes);

  /// Whether the header line has been passed.
  bool headerFound() const { return state_ != State::seeking && state_ != State::doubting; }

  /// The name that the header line gives, without a mode; empty before it is found. Where bytes are written is not
  /// for a received text to say: this is for comparing only.
  const std::string& name() const { return name_; }

 private:
  enum class State {
    seeking,   ///< before the header
    doubting,  ///< after a line that is a header if data follows, and ordinary text if not
    data,
    ending,  ///< after the line of length zero
    done
  };
  struct Line {
    std::string_view text;
    bool cut;  ///< longer than what is kept of it
  };

  void keep(std::string_view text);
  void takeLine(std::string_view text, bool cut, std::string& bytes);
  void takeHeader(const Line& line);
  void takeAfterDoubt(const Line& line, std::string& bytes);
  void takeData(const Line& line, std::string& bytes);
  void takeEnding(const Line& line);
  void decodeLine(std::string_view text, std::size_t size, std::string& bytes);
  [[noreturn]] void fail(std::size_t line, const std::string& cause) const;

  Form form_;
  std::string file_;
  State state_;
  std::string name_;
  std::string pending_;  ///< the beginning of a line whose end has not come yet
  bool pendingCut_ = false;
  std::size_t line_ = 0;
  /// The first doubtful header that no data followed, and what was wrong with the line after it.
  std::size_t doubtLine_ = 0;
  std::string doubtCause_;
  /// How zero bits are written here, and the first line that lacks characters: see finish().
  bool blanks_ = false;
  bool graves_ = false;
  std::size_t incompleteLine_ = 0;
};

}  // namespace tarnwick
