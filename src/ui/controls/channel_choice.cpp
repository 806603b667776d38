// SPDX-License-Identifier: MIT
#include "ui/controls/channel_choice.h"

#include <algorithm>
#include <utility>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QVBoxLayout>

#include "base/text.h"
#include "store/alarm_values.h"
#include "store/option_table.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr const char* kNone = "none";
constexpr int kLettersOfButton = 26;

bool names(const std::vector<std::string>& list, const std::string& name) {
  return std::ranges::any_of(list, [&](const std::string& one) { return equalsIgnoringCase(one, name); });
}

/// The menu stays open while channels are ticked, so that several are chosen at once.
class TickMenu final : public QMenu {
 public:
  using QMenu::QMenu;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (QAction* action = activeAction(); action != nullptr && action->isCheckable() && action->isEnabled()) {
      action->trigger();
      return;
    }
    QMenu::mouseReleaseEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (QAction* action = activeAction(); event->key() == Qt::Key_Space && action != nullptr && action->isEnabled()) {
      action->trigger();
      return;
    }
    QMenu::keyPressEvent(event);
  }
};

}  // namespace

ChannelChoice::ChannelChoice(Program& program, bool ofAll, QWidget* parent)
    : QGroupBox(tr("Through"), parent), program_(program), ofAll_(ofAll) {
  setObjectName(QStringLiteral("alarmThrough"));
  button_ = addButton(*this, "alarmChannels", QString(), {});
  menu_ = new TickMenu(button_);
  button_->setMenu(menu_);
  button_->setMinimumWidth(button_->fontMetrics().averageCharWidth() * kLettersOfButton);
  button_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  btnTest_ = addButton(*this, "alarmChannelsTest", tr("Test"), tr("Send a test message through these channels"));
  btnTest_->setAccessibleName(tr("Test: send a test message through these channels"));
  answer_ = new QLabel(this);
  answer_->setObjectName(QStringLiteral("alarmChannelsAnswer"));
  answer_->setTextFormat(Qt::PlainText);
  answer_->setWordWrap(true);
  answer_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  answer_->hide();
  auto* line = new QHBoxLayout;
  line->addWidget(button_, 1);
  line->addWidget(btnTest_);
  auto* lines = new QVBoxLayout(this);
  lines->addLayout(line);
  lines->addWidget(answer_);
  connect(btnTest_, &QPushButton::clicked, this, [this] { program_.faults().run([this] { test(); }); });
}

void ChannelChoice::setValues(const OptionEdit& options) {
  own_ = options.ownOf(option_name::channels);
  default_ = options.defaultOf(option_name::channels);
  channels_ = program_.data().channels();
  answer_->hide();
  makeMenu();
  showChosen();
}

void ChannelChoice::makeMenu() {
  menu_->clear();
  QAction* usual = menu_->addAction(ofAll_ ? tr("All that are default for all sites") : tr("As in Defaults"));
  usual->setObjectName(QStringLiteral("alarmChannelsUsual"));
  usual->setCheckable(true);
  connect(usual, &QAction::triggered, this, [this] {
    own_.reset();
    showChosen();
    Q_EMIT chosen({});
  });
  menu_->addSeparator();
  for (std::size_t index = 0; index < channels_.size(); ++index) {
    // An ampersand would be the mark of a key.
    const QString caption = displayText(channels_[index].name).replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction* action = menu_->addAction(caption, this, &ChannelChoice::choose);
    action->setObjectName(QStringLiteral("alarmChannel%1").arg(index));
    action->setData(static_cast<int>(index));
    action->setCheckable(true);
  }
  if (channels_.empty()) {
    menu_->addAction(tr("No channel is set up: see Channels in the settings"))->setEnabled(false);
  }
}

// What is ticked becomes the site's own choice, in which also nothing can be ticked.
void ChannelChoice::choose() {
  std::vector<std::string> list;
  for (const QAction* action : menu_->actions()) {
    if (action->isChecked() && action->data().isValid()) {
      list.push_back(channels_.at(static_cast<std::size_t>(action->data().toInt())).name);
    }
  }
  own_ = list.empty() ? kNone : namesText(list);
  showChosen();
  Q_EMIT chosen(QString::fromStdString(*own_));
}

std::vector<Channel> ChannelChoice::throughNow() const {
  const std::optional<std::string>& list = own_ ? own_ : default_;
  std::vector<Channel> through;
  std::ranges::copy_if(channels_, std::back_inserter(through), [&](const Channel& channel) {
    return channel.on &&
           (list ? names(readNames(*list).value_or(std::vector<std::string>()), channel.name) : channel.forAll);
  });
  return through;
}

QString ChannelChoice::namesOf(const std::vector<Channel>& channels) const {
  QStringList list;
  for (const Channel& channel : channels) {
    list << displayText(channel.name);
  }
  return list.isEmpty() ? tr("none") : list.join(QStringLiteral(", "));
}

void ChannelChoice::showChosen() {
  const std::vector<Channel> through = throughNow();
  for (QAction* action : menu_->actions()) {
    if (action->data().isValid()) {
      const Channel& channel = channels_.at(static_cast<std::size_t>(action->data().toInt()));
      action->setChecked(std::ranges::find(through, channel.id, &Channel::id) != through.end());
    } else if (action->isCheckable()) {
      action->setChecked(!own_);
    }
  }
  const QString list = namesOf(through);
  whole_ = own_ ? list : tr("Defaults: %1").arg(list);
  elide();
  button_->setAccessibleName(QStringLiteral("%1: %2").arg(whole_, tr("Through")));
  explain(*button_, tr("The channels by which the alerts leave: %1").arg(list));
  btnTest_->setEnabled(!through.empty());
}

void ChannelChoice::resizeEvent(QResizeEvent* event) {
  QGroupBox::resizeEvent(event);
  // The button gets its width with the frame.
  QMetaObject::invokeMethod(this, &ChannelChoice::elide, Qt::QueuedConnection);
}

void ChannelChoice::elide() {
  constexpr int kAroundText = 36;
  const QString shown =
      button_->fontMetrics().elidedText(whole_, Qt::ElideRight, std::max(button_->width() - kAroundText, 0));
  button_->setText(QString(shown).replace(QLatin1Char('&'), QLatin1String("&&")));
}

void ChannelChoice::test() {
  answer_->setText(tr("Testing …"));
  answer_->show();
  testNext(throughNow(), {});
}

// One after the other: a test ends the one before.
void ChannelChoice::testNext(std::vector<Channel> left, QStringList answers) {
  if (left.empty()) {
    answer_->setText(answers.join(QLatin1Char('\n')));
    return;
  }
  const Channel channel = left.front();
  left.erase(left.begin());
  program_.data().delivery().test(
      channel, std::nullopt,
      [self = QPointer<ChannelChoice>(this), channel, left = std::move(left), answers](const SendReply& reply) mutable {
        if (self == nullptr) {
          return;
        }
        const QString words = displayMessage(reply.words);
        answers << tr("%1: %2").arg(displayText(channel.name), reply.sent ? tr("ok: %1").arg(words) : words);
        // Not from within the test that has just ended.
        QMetaObject::invokeMethod(
            self, [self, left = std::move(left), answers] { self->testNext(left, answers); }, Qt::QueuedConnection);
      });
}

}  // namespace tarnwick
