// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>
#include <QImage>
#include <QString>
#include <QWidget>

#include "program/program.h"
#include "ui/history/stripe.h"

namespace tarnwick {

/// A picture of stripes, one below the other, under a title; on a light ground, twice as fine as on the screen.
QImage pictureOf(const QString& title, const std::vector<Stripe>& stripes);

/// Asks for a file, whose name ends in .svg or .png, and writes them into it. `parent` is the window that waits.
void saveHistoryPicture(Program& program, QWidget& parent, std::int16_t idSite, std::vector<Stripe> stripes);

}  // namespace tarnwick
