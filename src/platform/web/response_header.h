// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// What is wrong with the header of an HTTP answer.
enum class HeaderFault {
  none,
  /// It announces no length that can be relied on: several that differ, or none in decimal digits.
  unclearLength,
  /// It announces a page larger than any number that this machine can count to.
  endlessPage,
  /// It leaves HTTP for a protocol that was not asked for.
  otherProtocol,
};

/// Follows the header lines of one answer after the other, and finds what the transfer library lets pass.
class ResponseHeader {
 public:
  /// Takes the next line, its line end included. Lines outside of a header (trailers, the replies of an FTP server) do
  /// not count. A fault of lengths is found at the header's end: chunks overrule every length (RFC 9112, section 6.3).
  HeaderFault add(std::string_view line);

  /// The page comes in chunks, without a length of the whole.
  bool chunked() const { return chunked_; }
  /// The page has neither a length nor chunks, so that it ends where its connection does.
  bool endsWithConnection() const { return mayHavePage_ && !chunked_ && !length_; }
  /// How its page is compressed, in the order in which that was done: those of the content, then those of the way.
  const std::vector<std::string>& codings() const { return codings_; }
  /// True from an answer's first line until its empty line: a connection that ends here ends inside a header.
  bool open() const { return open_; }

 private:
  HeaderFault begin(std::string_view line);
  HeaderFault end();
  void addLengths(std::string_view values);
  void addLength(std::string_view value);
  void addCodings(std::string_view names, bool ofTheWay);

  bool open_ = false;
  bool mayHavePage_ = false;
  bool chunked_ = false;
  bool unclear_ = false;
  bool endless_ = false;
  std::optional<std::size_t> length_;
  std::vector<std::string> codings_;
  std::ptrdiff_t codingsOfContent_ = 0;
};

/// The status of an HTTP answer's first line, "HTTP/1.1 303 See Other"; 0 when it has none.
int statusOf(std::string_view firstLine);

}  // namespace tarnwick
