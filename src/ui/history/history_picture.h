// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>
#include <QImage>
#include <QString>
#include <QWidget>

#include "program/program.h"
#include "ui/history/stripe.h"

namespace tarnwick {

/// A stripe with what stands before it.
struct NamedStripe {
  QString name;
  Stripe stripe;
};

/// A picture of stripes, one below the other, under a title; on a light ground, twice as fine as on the screen.
QImage pictureOf(const QString& title, const std::vector<NamedStripe>& stripes);

/// Asks for a file, whose name ends in .svg or .png, and writes them into it. `parent` is the window that waits.
void saveHistoryPicture(Program& program, QWidget& parent, const QString& title, std::vector<NamedStripe> stripes);

}  // namespace tarnwick
