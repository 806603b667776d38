// SPDX-License-Identifier: MIT
#include "ui/exchange/export_list.h"

#include <stdexcept>
#include <string>
#include <vector>
#include <QDir>

#include "exchange/list/site_export.h"
#include "ui/controls/boxes.h"

namespace tarnwick {
namespace {

QString shown(const std::string& file) { return QDir::toNativeSeparators(QString::fromStdString(file)); }

// Their passwords and tokens stay where they are kept.
std::vector<ListedChannel> channelsOf(m& data, ListFormat format) {
  std::vector<ListedChannel> listed;
  if (format == ListFormat::json) {
    for (Channel& channel : data.channels()) {
      listed.push_back({std::move(channel), std::nullopt});
    }
  }
  return listed;
}

void writeTo(Program& program, const std::string& file, ListFormat format) {
  m& data = program.data();
  std::size_t count = 0;
  const std::vector<ListedChannel> channels = channelsOf(data, format);
  program.services().files.writePrivately(
      file, [&](const ByteSink& sink) { count = writeSiteList(data, format, {}, channels, sink); });
  const QString told = count == 1 ? QObject::tr("Exported 1 site to %1").arg(shown(file))
                                  : QObject::tr("Exported %1 sites to %2").arg(QString::number(count), shown(file));
  program.services().prompts.inform({.text = told.toStdString(), .icon = PromptIcon::information});
}

void exportTo(Program& program, const std::string& file) {
  const auto format = listFormatOf(file);
  FileSystem& files = program.services().files;
  if (!format) {
    throw std::runtime_error("The name of the file " + file +
                             " ends neither in .csv nor in .json, so its format is not known. Give it one of them.");
  }
  if (files.isSameFile(file, program.data().database().dbPath())) {
    throw std::runtime_error("The file \"" + file + "\" is the list itself. Export to a file of another name.");
  }
  putFile(program, file, [&program, file, format = *format] { writeTo(program, file, format); });
}

}  // namespace

std::function<void()> exportOf(Program& program, QWidget& parent) {
  return [&program, &parent] {
    const QString filter = QObject::tr("CSV, for a spreadsheet") + QStringLiteral(" (*.csv)|*.csv|") +
                           QObject::tr("JSON, with all that is set") + QStringLiteral(" (*.json)|*.json");
    program.services().prompts.chooseFile(
        {.folder = QDir::homePath().toStdString(), .filter = filter.toStdString(), .owner = &parent, .isNew = true},
        [&program](const std::string& file) { program.faults().run([&] { exportTo(program, file); }); });
  };
}

}  // namespace tarnwick
