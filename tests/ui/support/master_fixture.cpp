// SPDX-License-Identifier: MIT
#include "ui/support/master_fixture.h"

#include <filesystem>

namespace tarnwick::testing {

MasterTest::MasterTest() = default;

MasterTest::~MasterTest() = default;

void MasterTest::addSite(int id, const std::string& url, const std::string& more, const std::string& values) {
  folder.execute("insert into sites (idSite,url,method,active,tInterval" + more + ") values (" + std::to_string(id) +
                 ",'" + url + "','GET',1,10" + values + ")");
}

void MasterTest::layImages() {
  std::filesystem::copy(TARNWICK_IMAGES, folder.file("images"), std::filesystem::copy_options::recursive);
}

void MasterTest::open() {
  master = std::make_unique<Master>(folder.path(), machine.services(), *fields);
  ASSERT_TRUE(master->load());
  master->show();
  // Shortcuts belong to the active window.
  ASSERT_TRUE(QTest::qWaitForWindowActive(master.get()));
}

QString MasterTest::cell(int row, int column) {
  const QAbstractItemModel& model = *find<QTableView>("grid1").model();
  return model.index(row, column).data().toString();
}

QColor MasterTest::colour(int row, int column) {
  const QAbstractItemModel& model = *find<QTableView>("grid1").model();
  return model.index(row, column).data(Qt::BackgroundRole).value<QColor>();
}

int MasterTest::rows() { return find<QTableView>("grid1").model()->rowCount(); }

}  // namespace tarnwick::testing
