// SPDX-License-Identifier: MIT
#include "ui/settings/channels_page.h"

#include <algorithm>
#include <utility>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

#include "ui/controls/boxes.h"
#include "ui/controls/delivery_words.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/row_table.h"
#include "ui/settings/channel_menu.h"

namespace tarnwick {
namespace {

constexpr int kHintLines = 3;

void setUp(QTableView& table) {
  setUpList(table);
  QHeaderView& header = *table.horizontalHeader();
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(ChannelList::name, QHeaderView::Stretch);
}

}  // namespace

ChannelsPage::ChannelsPage(Program& program, QWidget* parent)
    : QWidget(parent), program_(program), list_(new ChannelList(this)) {
  auto* sides = new QHBoxLayout;
  sides->addWidget(makeList(), 5);
  sides->addWidget(makeChannel(), 7);
  life_ = new LifeForm(program, this);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins({});
  all->addLayout(sides, 1);
  all->addWidget(life_);
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { program_.faults().run([this] { showChannel(); }); });
  // Where the box is, which Space ticks.
  connect(table_->selectionModel(), &QItemSelectionModel::currentColumnChanged, this,
          [this] { chooseRow(currentRow()); });
}

QWidget* ChannelsPage::makeList() {
  auto* side = new QWidget(this);
  table_ = named(new QTableView(side), "channelList", tr("Channels"));
  table_->setModel(list_);
  setUp(*table_);
  QPushButton* add = makeAdd(*side);
  btnRemove_ = addButton(*side, "channelRemove", tr("Remove"), tr("Take the chosen channel away; stored with OK"));
  forAll_ = named(new QCheckBox(tr("Default for all sites"), side), "channelForAll");
  explain(*forAll_, tr("It tells of all sites that name no channels of their own"));
  mailNow_ = named(new QLabel(side), "channelMailNow");
  mailNow_->setWordWrap(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(add);
  buttons->addWidget(btnRemove_);
  buttons->addStretch();
  auto* lines = new QVBoxLayout(side);
  lines->setContentsMargins({});
  lines->addWidget(table_, 1);
  lines->addLayout(buttons);
  lines->addWidget(forAll_);
  lines->addWidget(mailNow_);
  onClick(*btnRemove_, program_.faults(), [this] { remove(); });
  connect(forAll_, &QCheckBox::clicked, this, [this](bool isForAll) {
    ChannelDraft draft = list_->at(currentRow());
    draft.channel.forAll = isForAll;
    list_->change(currentRow(), std::move(draft));
  });
  return side;
}

QPushButton* ChannelsPage::makeAdd(QWidget& parent) {
  QPushButton* button = addButton(parent, "channelAdd", tr("Add"), tr("Another way by which alerts leave"));
  button->setMenu(new ChannelMenu(
      program_, [this](Channel channel, const QString& hint) { add(std::move(channel), hint); }, button));
  return button;
}

QWidget* ChannelsPage::makeChannel() {
  auto* side = new QWidget(this);
  place_ = new QScrollArea(side);
  place_->setWidgetResizable(true);
  place_->setFrameShape(QFrame::StyledPanel);
  place_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  place_->setFocusPolicy(Qt::NoFocus);
  hint_ = new QLabel(side);
  hint_->setObjectName(QStringLiteral("channelHint"));
  hint_->setWordWrap(true);
  hint_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  hint_->setFixedHeight(hint_->fontMetrics().lineSpacing() * kHintLines);
  trial_ = new ChannelTrial(
      program_, [this] { return list_->at(currentRow()); }, side);
  auto* lines = new QVBoxLayout(side);
  lines->setContentsMargins({});
  lines->addWidget(place_, 1);
  lines->addWidget(hint_);
  lines->addWidget(trial_);
  connect(trial_, &ChannelTrial::tried, this, &ChannelsPage::tellTried);
  return side;
}

void ChannelsPage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!loaded_) {
    program_.faults().run([this] { load(); });
  }
}

void ChannelsPage::load() {
  // What could not be read cannot be changed either.
  setEnabled(false);
  list_->setChannels(program_.data().channels(), program_.data().lastTries(), program_.services().clock.localNow());
  removed_.clear();
  tellWhatMailDoes();
  life_->load();
  setEnabled(true);
  loaded_ = true;
  chooseRow(0);
  showChannel();
}

void ChannelsPage::tellWhatMailDoes() {
  mailNow_->setText(program_.data().delivery().replacesMail()
                        ? tr("Mail now goes by: the channels of the kind mail. The original exchange is not used.")
                        : tr("Mail now goes by: the original exchange, port 25. A channel of the kind mail replaces "
                             "it."));
}

int ChannelsPage::currentRow() const {
  const QModelIndex current = table_->currentIndex();
  return current.isValid() ? current.row() : -1;
}

void ChannelsPage::chooseRow(int row) { table_->setCurrentIndex(list_->index(row, ChannelList::name)); }

void ChannelsPage::choose(std::int64_t idChannel) {
  if (!loaded_) {
    load();
  }
  const auto& drafts = list_->drafts();
  const auto found = std::ranges::find(drafts, idChannel, [](const ChannelDraft& draft) { return draft.channel.id; });
  if (found != drafts.end()) {
    chooseRow(static_cast<int>(found - drafts.begin()));
  }
  table_->setFocus();
}

void ChannelsPage::add(Channel channel, const QString& hint) {
  channel.name = list_->freeName(channel.name);
  chooseRow(list_->add({.channel = std::move(channel), .lastTry = lastTryWords(nullptr, {})}));
  form_->name().setFocus();
  form_->name().selectAll();
  if (!hint.isEmpty()) {
    hint_->setText(hint);
  }
}

void ChannelsPage::remove() {
  const ChannelDraft draft = list_->at(currentRow());
  const std::int64_t naming = draft.channel.id == 0 ? 0 : program_.data().sitesNaming(draft.stored.name);
  QString question =
      tr("Do You Want To Remove The Channel %1?").arg(displayText(draft.channel.name)) + QStringLiteral("\n\n") +
      tr("Alerts that wait for it are not delivered, and sites that name it tell nothing through it any more.");
  if (naming > 0) {
    question += QLatin1Char('\n') + (naming == 1 ? tr("1 site names it.") : tr("%1 sites name it.").arg(naming));
  }
  ask(*this, program_, {.text = question.toStdString(), .destroys = true}, [this, id = draft.channel.id](bool yes) {
    if (!yes) {
      return;
    }
    if (id != 0) {
      removed_.push_back(id);
    }
    list_->remove(currentRow());
    showChannel();
  });
}

void ChannelsPage::showChannel() {
  const int row = currentRow();
  const bool isThere = row >= 0;
  trial_->begin(isThere);
  delete place_->takeWidget();
  form_ = nullptr;
  btnRemove_->setEnabled(isThere);
  forAll_->setEnabled(isThere);
  if (!isThere) {
    forAll_->setChecked(false);
    hint_->setText(
        tr("Add a way by which alerts shall reach you: a mail through your provider, a web hook of a "
           "service for phones or a chat, a notice on this desktop."));
    return;
  }
  const ChannelDraft& draft = list_->at(row);
  forAll_->setChecked(draft.channel.forAll);
  hint_->setText(QObject::tr(channelKind(draft.channel.kind).meaning.c_str()) + QLatin1Char('.'));
  form_ = named(new ChannelForm(draft.channel, draft.secret, program_.data().delivery().secrets().inKeyRing()),
                "channelForm", displayText(draft.channel.name));
  place_->setWidget(form_);
  form_->setAutoFillBackground(false);
  place_->viewport()->setAutoFillBackground(false);
  connect(form_, &ChannelForm::edited, this, &ChannelsPage::takeForm);
  connect(form_, &ChannelForm::browse, this, &ChannelsPage::chooseFile);
  connect(form_, &ChannelForm::hint, hint_, &QLabel::setText);
}

void ChannelsPage::takeForm() {
  ChannelDraft draft = list_->at(currentRow());
  form_->take(draft.channel);
  draft.secret = form_->secret();
  list_->change(currentRow(), std::move(draft));
}

void ChannelsPage::tellTried(bool isSent) {
  const LocalTime now = program_.services().clock.localNow();
  const LastTry last{isSent, now};
  ChannelDraft draft = list_->at(currentRow());
  draft.lastTry = lastTryWords(&last, now);
  list_->change(currentRow(), std::move(draft));
}

void ChannelsPage::chooseFile(ByteLineEdit& into, const QString& filter) {
  program_.services().prompts.chooseFile(
      {.folder = program_.programFolder(), .filter = filter.toStdString(), .owner = this},
      [this, form = QPointer<ChannelForm>(form_), box = QPointer<ByteLineEdit>(&into)](const std::string& path) {
        if (box != nullptr && form == form_) {
          box->setBytes(path);
          box->setFocus();
          takeForm();
        }
      });
}

bool ChannelsPage::isChanged() const {
  return life_->isChanged() || !removed_.empty() || std::ranges::any_of(list_->drafts(), &ChannelDraft::isChanged);
}

void ChannelsPage::store() {
  secrets_.clear();
  life_->store();
  for (const std::int64_t id : removed_) {
    program_.data().removeChannel(id);
  }
  for (int row = 0; row < list_->rowCount(); ++row) {
    const ChannelDraft& draft = list_->at(row);
    if (!draft.isChanged()) {
      continue;
    }
    try {
      const std::int64_t id = program_.data().storeChannel(draft.channel);
      if (draft.secret) {
        secrets_.emplace_back(id, *draft.secret);
      }
    } catch (...) {
      chooseRow(row);
      turnTo(form_ == nullptr ? *static_cast<QWidget*>(table_) : form_->name());
      throw;
    }
  }
}

void ChannelsPage::settle() {
  if (!isChanged()) {
    return;
  }
  Delivery& delivery = program_.data().delivery();
  for (const std::int64_t id : removed_) {
    delivery.secrets().remove(secretName(id), [] {});
  }
  for (const auto& [id, secret] : secrets_) {
    delivery.secrets().store(secretName(id), secret, [&program = program_](const std::string& why) {
      if (!why.empty()) {
        program.faults().show(why);
      }
    });
  }
  delivery.deliver();
}

}  // namespace tarnwick
