#include "ui/display_text.h"

#include <array>
#include <QStringDecoder>

namespace tarnwick {
namespace {

// Windows-1252 is Latin-1 but for these 32 characters; 0 marks the five codes without one, shown as Latin-1 does.
constexpr std::array<char16_t, 32> kFrom80To9F = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                  0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

QString fromWindows1252(QByteArrayView bytes) {
  QString text = QString::fromLatin1(bytes);
  for (QChar& character : text) {
    const char16_t code = character.unicode();
    if (code >= 0x80 && code <= 0x9F && kFrom80To9F[code - 0x80U] != 0) {
      character = QChar(kFrom80To9F[code - 0x80U]);
    }
  }
  return text;
}

}  // namespace

QString displayText(std::string_view bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = utf8(view);
  return utf8.hasError() ? fromWindows1252(view) : text;
}

QString plainToolTip(const QString& text) {
  return text.isEmpty() ? text : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

}  // namespace tarnwick
