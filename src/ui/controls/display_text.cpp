// SPDX-License-Identifier: MIT
#include "ui/controls/display_text.h"

#include <algorithm>
#include <QCoreApplication>
#include <QStringDecoder>

#include "base/windows_1252.h"
#include "base/wording.h"

namespace tarnwick {
namespace {

QString fromWindows1252(QByteArrayView bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  std::ranges::transform(bytes, text.begin(), [](char byte) {
    return QChar(static_cast<char16_t>(characterOfWindows1252(static_cast<unsigned char>(byte))));
  });
  return text;
}

}  // namespace

QString displayText(std::string_view bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = utf8(view);
  return utf8.hasError() ? fromWindows1252(view) : text;
}

QString displayMessage(std::string_view message) {
  const QString text = displayText(message);
  // A NUL would be its end.
  return text.contains(QChar::Null) ? text : QCoreApplication::translate(kMessages, text.toUtf8().constData());
}

QString plainToolTip(const QString& text) {
  return text.isEmpty() ? text : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

void explain(QWidget& control, const QString& text) {
  control.setToolTip(plainToolTip(text));
  control.setAccessibleDescription(text);
}

}  // namespace tarnwick
