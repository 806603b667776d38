// SPDX-License-Identifier: MIT
#include "ui/site/site_editor_fields.h"

#include <algorithm>

#include "ui/controls/dialog_parts.h"

namespace tarnwick {
namespace {

const FieldControl& controlOf(const SiteEditorControls& controls, const SiteField& field) {
  return *std::ranges::find(controls.fields, field.name, &FieldControl::field);
}

}  // namespace

void bindFields(SiteEditorControls& controls, const std::vector<SiteField>& fields, QGridLayout& lines) {
  controls.fields = {bindField("url", *controls.tUrl),
                     bindField("method", {{"get", controls.tGet}, {"post", controls.tPost}}),
                     bindField("active", *controls.tActive),
                     bindField("tInterval", *controls.lbInterval),
                     bindField("alertEmail", *controls.cEmail),
                     bindField("email", *controls.tEmail),
                     bindField("sUserName", *controls.tUsername),
                     bindField("sPassWord", *controls.tPassword)};
  // The last line is empty, so that the others stand at the top.
  int line = lines.rowCount() - 1;
  QWidget* before = controls.tActive;
  for (const SiteField& field : fields) {
    if (std::ranges::none_of(controls.fields, [&](const FieldControl& bound) { return bound.field == field.name; })) {
      const FieldLook look = usualLook(field);
      controls.fields.push_back(makeField(*controls.Frame1, look));
      QWidget* made = controls.fields.back().widget;
      if (look.kind != FieldKind::flag) {
        lines.addWidget(addLabel(look.caption, *made), line, 0);
      }
      lines.addWidget(made, line++, 1);
      QWidget::setTabOrder(before, made);
      before = made;
    }
  }
  lines.setRowStretch(line, 1);
}

void showSite(const SiteEditorControls& controls, const std::vector<SiteField>& fields, const SiteDraft& site) {
  for (const SiteField& field : fields) {
    controlOf(controls, field).show(valueOf(field, site));
  }
}

SiteDraft shownSite(const SiteEditorControls& controls, const std::vector<SiteField>& fields, const SiteDraft& stored) {
  SiteDraft site = stored;
  for (const SiteField& field : fields) {
    if (const auto value = controlOf(controls, field).value()) {
      setValue(field, site, *value);
    }
  }
  return site;
}

}  // namespace tarnwick
