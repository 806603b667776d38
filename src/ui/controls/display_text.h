// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <QString>
#include <QWidget>

namespace tarnwick {

/// Bytes as they are shown: read as UTF-8 when they are valid UTF-8, otherwise as Windows-1252.
QString displayText(std::string_view bytes);

/// A message of the rooms that know no language, in the user's: all that the window shows of their texts comes through
/// here.
QString displayMessage(std::string_view message);

/// A tooltip that shows `text` as it stands: a tooltip would take a text that looks like HTML for a page.
QString plainToolTip(const QString& text);

/// Gives `control` that tooltip; a screen reader speaks the text itself. An empty text takes both away.
void explain(QWidget& control, const QString& text);

}  // namespace tarnwick
