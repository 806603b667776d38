// SPDX-License-Identifier: MIT
#include "uucode/uu_decoder.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/decode_error.h"
#include "uucode/uu_record.h"

namespace tarnwick {
namespace {

constexpr std::string_view kBegin = "begin ";
constexpr std::string_view kEnd = "end";
constexpr std::string_view kRemedy = " The text is damaged; get it again.";
/// A data line has at most 85 characters; more than this is kept of none.
constexpr std::size_t kMostKept = 512;
constexpr std::size_t kMostLineBytes = 63;

std::string_view withoutTrailing(std::string_view text, std::string_view characters) {
  const std::size_t last = text.find_last_not_of(characters);
  return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

bool isOctal(char character) { return character >= '0' && character <= '7'; }

/// The length of a permission mode and the blank after it at the start of a header's text; 0 when there is none.
std::size_t modeLength(std::string_view text) {
  const auto blank = std::min(text.find(' '), text.size());
  const bool mode = (blank == 3 || blank == 4) && std::all_of(text.begin(), text.begin() + blank, isOctal);
  return mode && blank + 1 < text.size() ? blank + 1 : 0;
}

std::string foreignCharacter(std::string_view characters) {
  const auto foreign = std::find_if(characters.begin(), characters.end(), [](char c) { return uuValue(c) < 0; });
  // The first character of a line is its length, and people count from 1.
  return "character " + std::to_string(foreign - characters.begin() + 2) + " does not belong to uuencoded text.";
}

}  // namespace

UuDecoder::UuDecoder(Form form, std::string file)
    : form_(form), file_(std::move(file)), state_(form == Form::file ? State::seeking : State::data) {}

void UuDecoder::feed(std::string_view text, std::string& bytes) {
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view piece = text.substr(0, end);
    if (end == std::string_view::npos) {
      keep(piece);
      return;
    }
    if (pending_.empty()) {
      takeLine(piece.substr(0, kMostKept), piece.size() > kMostKept, bytes);
    } else {
      keep(piece);
      const std::string line = std::exchange(pending_, {});
      takeLine(line, std::exchange(pendingCut_, false), bytes);
    }
    text.remove_prefix(end + 1);
  }
}

void UuDecoder::keep(std::string_view text) {
  const std::size_t room = kMostKept - pending_.size();
  pending_ += text.substr(0, room);
  pendingCut_ = pendingCut_ || text.size() > room;
}

void UuDecoder::finish(std::string& bytes) {
  if (!pending_.empty()) {
    const std::string line = std::exchange(pending_, {});
    takeLine(line, pendingCut_, bytes);
  }
  if (state_ == State::seeking && doubtLine_ != 0) {
    fail(doubtLine_ + 1, doubtCause_);
  }
  if (state_ == State::seeking) {
    fail(0, "No line begins with \"begin \": this is no uuencoded text.");
  }
  if (form_ == Form::file && state_ != State::done) {
    fail(line_ + 1, "The text stops before its \"end\" line.");
  }
  // Blanks are stripped at line ends on many ways, and then mean zeros. But where zeros are written as grave accents
  // there was nothing to strip: characters have been lost.
  if (incompleteLine_ != 0 && graves_ && !blanks_) {
    fail(incompleteLine_, "The line is too short for its length.");
  }
}

void UuDecoder::takeLine(std::string_view text, bool cut, std::string& bytes) {
  ++line_;
  const Line line{cut ? text : withoutTrailing(text, "\r"), cut};
  switch (state_) {
    case State::seeking:
      takeHeader(line);
      break;
    case State::doubting:
      takeAfterDoubt(line, bytes);
      break;
    case State::data:
      takeData(line, bytes);
      break;
    case State::ending:
      takeEnding(line);
      break;
    case State::done:
      break;
  }
}

void UuDecoder::takeHeader(const Line& line) {
  if (!line.text.starts_with(kBegin) || line.text.find_first_not_of(' ', kBegin.size()) == std::string_view::npos) {
    return;
  }
  const std::string_view text = line.text.substr(kBegin.size());
  const std::size_t mode = modeLength(text);
  // A sentence of a letter may begin with this word, but hardly with a mode after it.
  state_ = mode > 0 ? State::data : State::doubting;
  name_ = text.substr(mode);
}

void UuDecoder::takeAfterDoubt(const Line& line, std::string& bytes) {
  std::string cause;
  const int size = line.text.empty() || line.cut ? -1 : uuValue(line.text.front());
  if (size < 0) {
    cause = "The line after \"begin " + name_ + "\" is no uuencoded data.";
  } else {
    std::array<char, kMostLineBytes> ignored{};
    const auto marks = decodeUuLine(line.text.substr(1), static_cast<std::size_t>(size), ignored.data());
    if (marks.foreign) {
      cause = "In the line after \"begin " + name_ + "\", " + foreignCharacter(line.text.substr(1));
    } else if (marks.incomplete || marks.surplus) {
      cause = "The line after \"begin " + name_ + "\" does not have the length that its first character says.";
    }
  }
  if (cause.empty()) {
    state_ = State::data;
    takeData(line, bytes);
    return;
  }
  if (doubtLine_ == 0) {
    doubtLine_ = line_ - 1;
    doubtCause_ = cause;
  }
  state_ = State::seeking;
  name_.clear();
  takeHeader(line);
}

void UuDecoder::takeData(const Line& line, std::string& bytes) {
  const std::string_view text = line.text;
  if (withoutTrailing(text, " \t") == kEnd) {
    state_ = State::done;
    return;
  }
  if (text.empty()) {
    state_ = State::ending;  // a line of length zero whose blank was stripped
    return;
  }
  if (line.cut) {
    fail(line_, "The line is too long for uuencoded text.");
  }
  const int size = uuValue(text.front());
  if (size < 0) {
    fail(line_, "The first character is no line length.");
  }
  decodeLine(text, static_cast<std::size_t>(size), bytes);
  if (size == 0) {
    graves_ = graves_ || text.front() == kUuZero;
    blanks_ = blanks_ || text.front() == ' ';
    state_ = State::ending;
  }
}

void UuDecoder::decodeLine(std::string_view text, std::size_t size, std::string& bytes) {
  std::array<char, kMostLineBytes> decoded{};
  const UuMarks marks = decodeUuLine(text.substr(1), size, decoded.data());
  if (marks.foreign) {
    fail(line_, "In this line, " + foreignCharacter(text.substr(1)));
  }
  if (marks.surplus) {
    fail(line_, "The line is too long for its length.");
  }
  if (marks.incomplete && incompleteLine_ == 0) {
    incompleteLine_ = line_;
  }
  blanks_ = blanks_ || marks.blank;
  graves_ = graves_ || marks.grave;
  bytes.append(decoded.data(), size);
}

void UuDecoder::takeEnding(const Line& line) {
  const std::string_view text = withoutTrailing(line.text, " \t");
  if (text == kEnd) {
    state_ = State::done;
  } else if (!text.empty()) {
    fail(line_, "The \"end\" line was expected here.");
  }
}

void UuDecoder::fail(std::size_t line, const std::string& cause) const {
  throw DecodeError(file_, line, cause + std::string(kRemedy));
}

}  // namespace tarnwick
