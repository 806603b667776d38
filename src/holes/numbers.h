// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// How many bytes of a mark that may stand between two digits of a number stand there: . , ' blanks of any width; 0 for
/// none. What is an ordinary blank may stand there as well.
std::size_t numberMarkAt(std::string_view text);

/// Whether the digits with marks between them are one number: thousands in groups of three, or of two but the last, and
/// at most one fraction. An address of four numbers is none.
bool isOneNumber(std::string_view digits);

/// A text with numbers in it.
struct NumbersIn {
  struct Part {
    std::size_t begin = 0;
    std::size_t end = 0;
  };
  std::vector<Part> numbers;
  std::string skeleton;  ///< the text with a zero byte for each number
};
/// `isWhole` says whether digits with marks between them count as one number where they can be one; else each digit
/// run is one.
NumbersIn numbersIn(std::string_view text, bool isWhole);

/// Where a number ends that goes on at `at`, and where one begins that goes on before it, marks and sign included.
std::size_t numberEnd(std::string_view text, std::size_t at);
std::size_t numberBegin(std::string_view text, std::size_t at);

}  // namespace tarnwick
