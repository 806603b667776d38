// SPDX-License-Identifier: MIT
#include "holes/code_pages.h"

#include <array>
#include <unordered_map>

#include "base/text.h"

namespace tarnwick {
namespace {

// From 0x80 on; a blank for what is no letter.
constexpr std::array<std::u32string_view, 7> kLetters = {
    // Windows-1252 with Latin-1, Windows-1250, ISO 8859-2, Windows-1251, KOI8-U with KOI8-R, Windows-1253,
    // Windows-1254.
    U"   ƒ    ˆ Š Œ Ž           š œ žŸ          ª          µ    º     "
    U"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ ØÙÚÛÜÝÞßàáâãäåæçèéêëìíîïðñòóôõö øùúûüýþÿ",
    U"          Š ŚŤŽŹ          š śťžź ˇ Ł Ą    Ş    Ż   ł µ   ąş Ľ ľż"
    U"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ ŘŮÚŰÜÝŢßŕáâăäĺćçčéęëěíîďđńňóôőö řůúűüýţ ",
    U"                                 Ą Ł ĽŚ  ŠŞŤŹ ŽŻ ą ł ľśˇ šşťź žż"
    U"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ ŘŮÚŰÜÝŢßŕáâăäĺćçčéęëěíîďđńňóôőö řůúűüýţ ",
    U"ЂЃ ѓ      Љ ЊЌЋЏђ         љ њќћџ ЎўЈ Ґ  Ё Є    Ї  Ііґµ  ё є јЅѕї"
    U"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдежзийклмнопрстуфхцчшщъыьэюя",
    U"                                   ёє ії     ґ     ЁЄ ІЇ     Ґ  "
    U"юабцдефгхийклмнопярстужвьызшэщчъЮАБЦДЕФГХИЙКЛМНОПЯРСТУЖВЬЫЗШЭЩЧЪ",
    U"   ƒ                              Ά                  µ  ΈΉΊ Ό ΎΏ"
    U"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ ΣΤΥΦΧΨΩΪΫάέήίΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ ",
    U"   ƒ    ˆ Š Œ             š œ  Ÿ          ª          µ    º     "
    U"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ ØÙÚÛÜİŞßàáâãäåæçèéêëìíîïğñòóôõö øùúûüışÿ",
};

struct EastAsian {
  char32_t character;
  std::array<std::uint16_t, kEastAsianCodes> codes;  ///< Shift-JIS, EUC-JP, GBK, Big5, EUC-KR; 0 for none
};
constexpr std::array kEastAsian = {EastAsian{U'年', {0x944E, 0xC7AF, 0xC4EA, 0xA67E, 0xD2B4}},
                                   EastAsian{U'月', {0x8C8E, 0xB7EE, 0xD4C2, 0xA4EB, 0xEAC5}},
                                   EastAsian{U'日', {0x93FA, 0xC6FC, 0xC8D5, 0xA4E9, 0xECED}},
                                   EastAsian{U'時', {0x8E9E, 0xBBFE, 0x9572, 0xAEC9, 0xE3C1}},
                                   EastAsian{U'分', {0x95AA, 0xCAAC, 0xB7D6, 0xA4C0, 0xDDC2}},
                                   EastAsian{U'秒', {0x9562, 0xC9C3, 0xC3EB, 0xACED, 0xF5A9}},
                                   EastAsian{U'时', {0, 0, 0xCAB1, 0, 0}},
                                   EastAsian{U'点', {0x935F, 0xC5C0, 0xB5E3, 0, 0xEFC3}},
                                   EastAsian{U'号', {0x8D86, 0xB9E6, 0xBAC5, 0, 0}},
                                   EastAsian{U'號', {0xE56A, 0xE9CB, 0xCC96, 0xB8B9, 0xFBDC}},
                                   EastAsian{U'曜', {0x976A, 0xCDCB, 0xEAD7, 0xC260, 0xE8F8}},
                                   EastAsian{U'火', {0x89CE, 0xB2D0, 0xBBF0, 0xA4F5, 0xFBFD}},
                                   EastAsian{U'水', {0x9085, 0xBFE5, 0xCBAE, 0xA4F4, 0xE2A9}},
                                   EastAsian{U'木', {0x96D8, 0xCCDA, 0xC4BE, 0xA4EC, 0xD9CA}},
                                   EastAsian{U'金', {0x8BE0, 0xB6E2, 0xBDF0, 0xAAF7, 0xD1D1}},
                                   EastAsian{U'土', {0x9379, 0xC5DA, 0xCDC1, 0xA467, 0xF7CF}},
                                   EastAsian{U'一', {0x88EA, 0xB0EC, 0xD2BB, 0xA440, 0xECE9}},
                                   EastAsian{U'二', {0x93F1, 0xC6F3, 0xB6FE, 0xA447, 0xECA3}},
                                   EastAsian{U'三', {0x8E4F, 0xBBB0, 0xC8FD, 0xA454, 0xDFB2}},
                                   EastAsian{U'四', {0x8E6C, 0xBBCD, 0xCBC4, 0xA57C, 0xDECC}},
                                   EastAsian{U'五', {0x8CDC, 0xB8DE, 0xCEE5, 0xA4AD, 0xE7E9}},
                                   EastAsian{U'六', {0x985A, 0xCFBB, 0xC1F9, 0xA4BB, 0xD7BF}},
                                   EastAsian{U'七', {0x8EB5, 0xBCB7, 0xC6DF, 0xA443, 0xF6D2}},
                                   EastAsian{U'八', {0x94AA, 0xC8AC, 0xB0CB, 0xA44B, 0xF8A2}},
                                   EastAsian{U'九', {0x8BE3, 0xB6E5, 0xBEC5, 0xA445, 0xCEFA}},
                                   EastAsian{U'十', {0x8F5C, 0xBDBD, 0xCAAE, 0xA451, 0xE4A8}},
                                   EastAsian{U'星', {0x90AF, 0xC0B1, 0xD0C7, 0xAC50, 0xE0F8}},
                                   EastAsian{U'期', {0x8AFA, 0xB4FC, 0xC6DA, 0xB4C1, 0xD1A2}},
                                   EastAsian{U'周', {0x8EFC, 0xBCFE, 0xD6DC, 0xA950, 0xF1B2}},
                                   EastAsian{U'년', {0, 0, 0, 0, 0xB3E2}},
                                   EastAsian{U'월', {0, 0, 0, 0, 0xBFF9}},
                                   EastAsian{U'일', {0, 0, 0, 0, 0xC0CF}},
                                   EastAsian{U'시', {0, 0, 0, 0, 0xBDC3}},
                                   EastAsian{U'분', {0, 0, 0, 0, 0xBAD0}},
                                   EastAsian{U'초', {0, 0, 0, 0, 0xC3CA}},
                                   EastAsian{U'요', {0, 0, 0, 0, 0xBFE4}},
                                   EastAsian{U'화', {0, 0, 0, 0, 0xC8AD}},
                                   EastAsian{U'수', {0, 0, 0, 0, 0xBCF6}},
                                   EastAsian{U'목', {0, 0, 0, 0, 0xB8F1}},
                                   EastAsian{U'금', {0, 0, 0, 0, 0xB1DD}},
                                   EastAsian{U'토', {0, 0, 0, 0, 0xC5E4}}};

const std::unordered_map<std::uint16_t, char32_t>& charactersOf(std::size_t code) {
  static const auto all = [] {
    std::array<std::unordered_map<std::uint16_t, char32_t>, kEastAsianCodes> characters;
    for (const EastAsian& row : kEastAsian) {
      for (std::size_t i = 0; i < kEastAsianCodes; ++i) {
        characters[i].emplace(row.codes[i], row.character);
      }
    }
    return characters;
  }();
  return all[code];
}

}  // namespace

std::vector<std::string> readingsOf(std::string_view word) {
  std::vector<std::string> readings;
  for (const std::u32string_view letters : kLetters) {
    std::string reading;
    for (const char c : word) {
      const auto code = static_cast<unsigned char>(c);
      const char32_t letter = code < 0x80 ? code : letters[code - 0x80U];
      if (letter == U' ') {
        reading.clear();
        break;
      }
      appendUtf8(reading, letter);
    }
    if (!reading.empty()) {
      readings.push_back(std::move(reading));
    }
  }
  return readings;
}

std::optional<char32_t> eastAsianAt(std::string_view text, std::size_t code) {
  if (text.size() < 2 || static_cast<unsigned char>(text.front()) < 0x80) {
    return std::nullopt;
  }
  const auto bytes =
      static_cast<std::uint16_t>(static_cast<unsigned char>(text[0]) << 8U | static_cast<unsigned char>(text[1]));
  const auto& characters = charactersOf(code);
  const auto found = characters.find(bytes);
  return found != characters.end() ? std::optional(found->second) : std::nullopt;
}

}  // namespace tarnwick
