// SPDX-License-Identifier: MIT
#include "ui/settings/channel_trial.h"

#include <utility>
#include <QHBoxLayout>
#include <QPointer>

#include "delivery/refusal_advice.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr int kAnswerLines = 4;

}  // namespace

ChannelTrial::ChannelTrial(Program& program, std::function<ChannelDraft()> draft, QWidget* parent)
    : QWidget(parent),
      program_(program),
      draft_(std::move(draft)),
      btnTest_(addButton(*this, "channelTest", tr("Test"),
                         tr("Send a test message with what stands in the fields, stored or not"))),
      answer_(named(new QPlainTextEdit(this), "channelAnswer", tr("Answer to the test"))) {
  answer_->setReadOnly(true);
  answer_->setTabChangesFocus(true);
  answer_->setFixedHeight(answer_->fontMetrics().lineSpacing() * kAnswerLines +
                          2 * (answer_->frameWidth() + static_cast<int>(answer_->document()->documentMargin())));
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins({});
  line->addWidget(btnTest_, 0, Qt::AlignTop);
  line->addWidget(answer_, 1);
  onClick(*btnTest_, program_.faults(), [this] { test(); });
}

void ChannelTrial::begin(bool isThere) {
  ++trial_;
  answer_->clear();
  btnTest_->setEnabled(isThere);
  answer_->setEnabled(isThere);
}

void ChannelTrial::test() {
  const ChannelDraft draft = draft_();
  const Channel channel = checkedChannel(draft.channel);
  if (channel.id == 0 && !draft.secret && needsSecret(channel)) {
    answer_->setPlainText(tr("Enter the password or token first."));
    return;
  }
  answer_->setPlainText(tr("Testing …"));
  program_.data().delivery().test(channel, draft.secret,
                                  [me = QPointer<ChannelTrial>(this), trial = trial_](const SendReply& reply) {
                                    if (me != nullptr && me->trial_ == trial) {
                                      me->tell(reply);
                                    }
                                  });
}

void ChannelTrial::tell(const SendReply& reply) {
  const QString words = displayMessage(reply.words);
  const QString advice = displayMessage(std::string(adviceOn(reply.words)));
  answer_->setPlainText(reply.sent         ? tr("Sent. Look whether it has arrived.") + QLatin1Char('\n') + words
                        : advice.isEmpty() ? words
                                           : advice + QLatin1Char('\n') + words);
  Q_EMIT tried(reply.sent);
}

}  // namespace tarnwick
