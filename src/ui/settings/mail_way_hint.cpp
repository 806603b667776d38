// SPDX-License-Identifier: MIT
#include "ui/settings/mail_way_hint.h"

#include <QHBoxLayout>
#include <QLabel>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/link_button.h"

namespace tarnwick {

MailWayHint::MailWayHint(Program& program, QWidget* parent) : QWidget(parent), program_(program) {
  auto* text = named(new QLabel(this), "mailWay");
  auto* link = named(new LinkButton(tr("Channels…"), this), "mailWayChannels", tr("Channels…"));
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins({});
  line->addWidget(text);
  line->addWidget(link);
  line->addStretch(1);
  connect(link, &QAbstractButton::clicked, this, &MailWayHint::followed);
}

void MailWayHint::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  program_.faults().run([this] {
    findChild<QLabel*>(QStringLiteral("mailWay"))
        ->setText(program_.data().delivery().replacesMail() ? tr("This server is not used; mail goes by:")
                                                            : tr("With a log-in, to a phone or to a chat:"));
  });
}

}  // namespace tarnwick
