// SPDX-License-Identifier: MIT
#include "ui/site/one_site_editor.h"

#include <functional>
#include <memory>
#include <QPointer>

#include "ui/baseline/content_dialog.h"
#include "ui/site/site_editor.h"

namespace tarnwick {
namespace {

void openContent(Program& program, QWidget& parent, const std::function<void(ContentDialog&)>& fill) {
  auto content = std::make_unique<ContentDialog>(program, &parent);
  content->setAttribute(Qt::WA_DeleteOnClose);
  fill(*content);
  content->open();
  content.release()->activateWindow();
}

}  // namespace

SiteEditing siteEditorOf(Program& program, QWidget& parent) {
  // The one that is shown stays until its site may be left; one that has been closed may not have been taken down yet.
  const auto editing = [&program, &parent, shown = std::make_shared<QPointer<SiteEditor>>()](
                           const std::function<void(SiteEditor&)>& edit) {
    if (*shown != nullptr && (*shown)->isVisible()) {
      edit(**shown);
      return;
    }
    auto fresh = std::make_unique<SiteEditor>(program, &parent);
    edit(*fresh);
    *shown = fresh.release();
  };
  return {
      .open = [editing](std::int16_t idSite) { editing([&](SiteEditor& editor) { editor.editSite(idSite); }); },
      .openAlarm = [editing](std::int16_t idSite) { editing([&](SiteEditor& editor) { editor.editAlarm(idSite); }); },
      .openNew =
          [editing](const std::function<std::int16_t()>& add) {
            editing([&](SiteEditor& editor) { editor.editNew(add); });
          },
      .propose =
          [&program, &parent](std::int16_t idSite) {
            openContent(program, parent, [idSite](ContentDialog& content) { content.proposeChanges(idSite); });
          }};
}

}  // namespace tarnwick
