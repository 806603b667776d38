// SPDX-License-Identifier: MIT
#include "ui/settings/mail_way_hint.h"

#include <QHBoxLayout>
#include <QLabel>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/link_button.h"

namespace tarnwick {

MailWayHint::MailWayHint(Program& program, QWidget* parent) : QWidget(parent), program_(program) {
  auto* text = named(new QLabel(this), "mailWay");
  text->setWordWrap(true);
  auto* link = named(new LinkButton(tr("Channels…"), this), "mailWayChannels", tr("Channels…"));
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins({});
  line->addWidget(text, 1);
  line->addWidget(link);
  connect(link, &QAbstractButton::clicked, this, &MailWayHint::followed);
}

void MailWayHint::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  program_.faults().run([this] {
    findChild<QLabel*>(QStringLiteral("mailWay"))
        ->setText(program_.data().delivery().replacesMail()
                      ? tr("Mail goes by the channels of the kind mail; this server is not used.")
                      : tr("For a mail server with a log-in, a phone or a chat add a channel."));
  });
}

}  // namespace tarnwick
