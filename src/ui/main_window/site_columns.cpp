// SPDX-License-Identifier: MIT
#include "ui/main_window/site_columns.h"

#include <array>
#include <QCoreApplication>

#include "store/site_table.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {
namespace {

constexpr const char* kTime = "0000-00-00 00:00:00";

// One line a column. The first five stay where they are; a new one comes after them. Counters are numbers to compare,
// so they stand under each other; the rest is read from the left. The number of a site gets the width of a time, and
// "URL", "Up" and "Down" are to each other as 3500 to 500 to 540. The hints are the original ones, two columns off.
constexpr auto kColumns = std::to_array<SiteColumn>({
    {QT_TRANSLATE_NOOP("tarnwick::SiteGridModel", "ID"), nullptr, Qt::AlignLeft, kTime, 0, site_column::idSite},
    {QT_TRANSLATE_NOOP("tarnwick::SiteGridModel", "URL"), nullptr, Qt::AlignLeft, nullptr, 3500, site_column::url},
    {QT_TRANSLATE_NOOP("tarnwick::SiteGridModel", "Up"),
     QT_TRANSLATE_NOOP("tarnwick::SiteGridView", "Method ( get,post )"), Qt::AlignRight, nullptr, 500,
     site_column::success},
    {QT_TRANSLATE_NOOP("tarnwick::SiteGridModel", "Down"),
     QT_TRANSLATE_NOOP("tarnwick::SiteGridView", "Active ( true,false )"), Qt::AlignRight, nullptr, 540,
     site_column::failure},
    {QT_TRANSLATE_NOOP("tarnwick::SiteGridModel", "Time Of Last Test"),
     QT_TRANSLATE_NOOP("tarnwick::SiteGridView", "Minutes Until Next Check"), Qt::AlignLeft, kTime, 0,
     site_column::lastChecked},
});

// What the model itself looks at must be where it looks.
static_assert(kColumns[SiteGridModel::idColumn].field == site_column::idSite);
static_assert(kColumns[SiteGridModel::urlColumn].field == site_column::url);
static_assert(kColumns[SiteGridModel::timeColumn].field == site_column::lastChecked);

}  // namespace

SiteColumns siteColumns() { return kColumns; }

}  // namespace tarnwick
