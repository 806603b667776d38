// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>
#include <system_error>

#include "base/visible_text.h"
#include "base/wording.h"
#include "platform/terminal.h"

namespace tarnwick {

/// Where the tool writes: data on one stream, complaints on the other, and on a terminal one line that is written over
/// again and again while something is going on. All texts are UTF-8 or raw bytes of a page.
class Console {
 public:
  enum class Colour { plain, red, green, cyan, bold };

  /// `width` tells how many characters a line of the terminal holds.
  Console(
      std::ostream& out, std::ostream& err, TerminalFacts facts,
      std::function<std::size_t()> width = [] { return kUsualTerminalWidth; }, Wording wording = {})
      : written_(out),
        out_(&written_),
        err_(err),
        facts_(facts),
        width_(std::move(width)),
        wording_(std::move(wording)) {}

  /// The stream of the data, with the live line out of the way.
  std::ostream& out();
  /// Writes a line of data and hands it on at once: who reads a pipe sees it now.
  void say(std::string_view line);
  /// Writes a line of words about a result, in the user's language.
  void tell(std::string_view line) { say(worded(line)); }
  /// Writes a line about what went wrong, or about what is being done: never data. In the user's language.
  void complain(std::string_view line);
  /// Shows `text` on the live line, cut to the terminal's width; nothing when the output is no terminal.
  void live(const std::string& text);
  /// Takes the live line away.
  void endLive();

  /// Asks on the stream of the complaints, in the user's language, and returns the line that the user types; empty at
  /// the end of the input.
  std::string ask(std::string_view question);
  /// The same for a secret: what is typed is not shown.
  std::string askSecret(std::string_view question);

  /// A text in the user's language; what is for other programs to read does not come through here.
  std::string worded(std::string_view text) const { return wording_(text); }
  const Wording& wording() const { return wording_; }

  bool isTerminal() const { return facts_.isTerminal; }
  /// Whether there is a live line.
  bool canRewrite() const { return facts_.isTerminal && !facts_.isDumb; }
  /// A line as it may be written to people: on a terminal nothing in it is obeyed, elsewhere every byte stays.
  std::string shown(std::string_view line) const { return isTerminal() ? visibleText(line) : std::string(line); }
  /// Whether somebody is there to be asked.
  bool canAsk() const { return facts_.canAsk; }
  bool hasColour() const { return facts_.colour; }
  /// `text` in a colour, where colours are wanted.
  std::string coloured(Colour colour, std::string_view text) const;
  /// False once something could not be written, for instance since the reader of a pipe has gone.
  bool good() const;
  /// Hands on all data that was written, and tells why that cannot be done; no error when it is all out.
  std::error_code flush();
  /// Why something could not be written; no error when all could.
  std::error_code failure() const { return {written_.cause, std::generic_category()}; }
  /// Lets what follows be written again after a failure.
  void writeOn();
  /// Whether there has been something to complain of.
  bool hasComplained() const { return hasComplained_; }

 private:
  /// Hands on what is written, and keeps the reason of the first failure: only the attempt itself tells it, and not for
  /// long.
  class Written final : public std::streambuf {
   public:
    explicit Written(std::ostream& target) : target_(target) {}
    /// The system's number; 0 before a failure.
    int cause = 0;
    void clear();

   protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* bytes, std::streamsize count) override;
    int sync() override;

   private:
    bool note(bool done);
    std::ostream& target_;
  };

  Written written_;
  std::ostream out_;
  std::ostream& err_;
  TerminalFacts facts_;
  std::function<std::size_t()> width_;
  Wording wording_;
  std::string live_;
  bool hasComplained_ = false;
};

/// How many characters a UTF-8 text has.
std::size_t characterCount(std::string_view text);

}  // namespace tarnwick
