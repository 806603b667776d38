// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "ui/rows/chosen_sites.h"

namespace tarnwick {

/// The sites by number and address, a line each, as many as a box has room for.
QString listOf(const ChosenSites& sites);

/// One of two texts, by whether it is about one site, with the number in place of %1.
QString counted(std::size_t count, const QString& one, const QString& several);

/// "2 of 5 are up and stay as they are." for those of `all` that are left out; empty where none is. The texts are the
/// sentence for one and for several, with the two numbers in place of %1 and %2.
QString remainderText(std::size_t all, std::size_t taken, const QString& one, const QString& several);

/// The texts of a question, those that are not empty, each in a paragraph of its own.
std::string paragraphs(const QStringList& texts);

}  // namespace tarnwick
