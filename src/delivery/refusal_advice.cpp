// SPDX-License-Identifier: MIT
#include "delivery/refusal_advice.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::string_view kWhoSends = "Check User, Password and Encryption: the server wants to know who sends.";
constexpr std::string_view kToken = "Check the token.";

struct Advice {
  std::string_view begin;  ///< how the words begin
  std::string_view held;   ///< what stands in them; empty: anything
  std::string_view words;
};

// The first that fits counts.
constexpr std::array<Advice, 9> kAdvice{{
    {"AUTH: 5", "", "Check the user and the password; some providers want a password made for programs."},
    {"MAIL FROM: 530", "", kWhoSends},
    {"MAIL FROM: 5", "offers no log-in", kWhoSends},
    {"MAIL FROM: 5", "", "Check From: most servers take the address of the account alone."},
    {"RCPT TO: 5", "", "Check the address in To."},
    {"The certificate of the server", "",
     "Check the name of the server; where its certificate is your own, name the CA file."},
    {"401", "", kToken},
    {"403", "", kToken},
    {"404", "", "Check the address."},
}};

}  // namespace

std::string_view adviceOn(std::string_view words) {
  const auto* advice = std::ranges::find_if(kAdvice, [words](const Advice& each) {
    return words.starts_with(each.begin) && words.find(each.held) != std::string_view::npos;
  });
  return advice == kAdvice.end() ? std::string_view() : advice->words;
}

}  // namespace tarnwick
