#include "ui/site/site_editor_fields.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::array<int, 9> kIntervals = {1, 5, 10, 15, 30, 45, 60, 90, 120};

QString lowerCase(const std::string& text) { return QString::fromLatin1(text).toLower(); }

}  // namespace

void offerIntervals(const SiteEditorControls& controls) {
  for (const int minutes : kIntervals) {
    controls.lbInterval->addItem(QString::number(minutes));
  }
}

void fillFields(const SiteEditorControls& controls, const SiteDraft& site) {
  controls.tUrl->setBytes(site.url);
  controls.tUsername->setBytes(site.sUserName);
  controls.tPassword->setBytes(site.sPassWord);
  controls.tEmail->setBytes(site.email);
  controls.cEmail->setChecked(site.alertEmail);
  // Any other method selects neither, also when one is selected from the site shown before.
  const QString method = lowerCase(site.method);
  for (QRadioButton* button : {controls.tGet, controls.tPost}) {
    button->setAutoExclusive(false);
    button->setChecked(false);
  }
  controls.tGet->setChecked(method == QLatin1String("get"));
  controls.tPost->setChecked(method == QLatin1String("post"));
  for (QRadioButton* button : {controls.tGet, controls.tPost}) {
    button->setAutoExclusive(true);
  }
  controls.tActive->setChecked(site.active);

  const auto stored = std::ranges::find(kIntervals, QString::fromStdString(site.tInterval).toInt());
  controls.lbInterval->setCurrentRow(stored == kIntervals.end() ? -1 : static_cast<int>(stored - kIntervals.begin()));
}

SiteDraft fieldsOf(const SiteEditorControls& controls, const SiteDraft& stored) {
  // What is selected and not what is current: the Tab key makes an item current on its way through the list.
  const auto selected = controls.lbInterval->selectedItems();
  return {controls.tUrl->bytes(),        controls.tPost->isChecked() ? "post" : "get",
          controls.tActive->isChecked(), selected.isEmpty() ? stored.tInterval : selected.front()->text().toStdString(),
          controls.cEmail->isChecked(),  controls.tEmail->bytes(),
          controls.tUsername->bytes(),   controls.tPassword->bytes()};
}

}  // namespace tarnwick
