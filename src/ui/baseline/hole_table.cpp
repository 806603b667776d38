// SPDX-License-Identifier: MIT
#include "ui/baseline/hole_table.h"

#include <algorithm>
#include <QComboBox>
#include <QHeaderView>
#include <QRegularExpression>
#include <QStyledItemDelegate>

#include "base/visible_text.h"
#include "holes/hole_words.h"
#include "ui/controls/display_text.h"
#include "ui/controls/row_table.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestSeen = 200;

QString lengthWords(std::size_t least, std::size_t most) {
  return least == most ? QString::number(most) : QStringLiteral("%1–%2").arg(least).arg(most);
}

QString lengthOf(const Hole& hole) {
  if (hole.kind == HoleClass::date) {
    return QString::number(hole.length);
  }
  if (hole.kind != HoleClass::list || hole.choices.empty()) {
    return lengthWords(hole.least, hole.most);
  }
  const auto [least, most] = std::ranges::minmax(hole.choices, {}, &std::string::size);
  return lengthWords(least.size(), most.size());
}

/// Chooses the class of a hole among those that are possible.
class ClassDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
    auto* choice = new QComboBox(parent);
    choice->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    const auto& model = static_cast<const HoleTableModel&>(*index.model());
    for (const HoleClass kind : model.draft().classesOf(static_cast<std::size_t>(index.row()))) {
      choice->addItem(holeWords(kind), static_cast<int>(kind));
    }
    connect(choice, &QComboBox::activated, this, [this, choice] {
      auto* self = const_cast<ClassDelegate*>(this);
      Q_EMIT self->commitData(choice);
    });
    return choice;
  }
  void setEditorData(QWidget* editor, const QModelIndex& index) const override {
    auto& choice = static_cast<QComboBox&>(*editor);
    choice.setCurrentIndex(choice.findData(index.data(Qt::EditRole)));
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    model->setData(index, static_cast<QComboBox&>(*editor).currentData(), Qt::EditRole);
  }
};

}  // namespace

QString holeWords(HoleClass kind) {
  switch (kind) {
    case HoleClass::digits:
      return HoleTableModel::tr("digits");
    case HoleClass::hex:
      return HoleTableModel::tr("hex");
    case HoleClass::base64:
      return HoleTableModel::tr("base64");
    case HoleClass::letters:
      return HoleTableModel::tr("letters");
    case HoleClass::date:
      return HoleTableModel::tr("time or date");
    case HoleClass::list:
      return HoleTableModel::tr("one of a list");
    case HoleClass::text:
      return HoleTableModel::tr("words");
    default:
      return HoleTableModel::tr("anything");
  }
}

void HoleTableModel::refresh() {
  beginResetModel();
  lines_.clear();
  std::size_t line = 1;
  std::size_t from = 0;
  const std::string& text = draft_.baseline();
  for (const HoleDraft::Entry& entry : draft_.entries()) {
    if (!entry.isLost) {
      const auto to = text.begin() + static_cast<std::ptrdiff_t>(entry.hole.begin);
      line += static_cast<std::size_t>(std::count(text.begin() + static_cast<std::ptrdiff_t>(from), to, '\n'));
      from = entry.hole.begin;
    }
    lines_.push_back(entry.isLost ? 0 : line);
  }
  endResetModel();
}

int HoleTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int HoleTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns; }

QString HoleTableModel::textOf(int row, int column) const {
  const HoleDraft::Entry& entry = draft_.entries()[static_cast<std::size_t>(row)];
  switch (column) {
    case placeColumn: {
      const std::size_t line = lines_[static_cast<std::size_t>(row)];
      return line == 0 ? tr("nowhere") : tr("Line %1").arg(line);
    }
    case whatColumn:
      return holeWords(entry.hole.kind);
    case lengthColumn:
      return lengthOf(entry.hole);
    default:
      if (entry.isLost) {
        return tr("place not found");
      }
      return entry.seen ? displayText(visibleText(*entry.seen, kLongestSeen)) : QString();
  }
}

QString HoleTableModel::toolTipOf(int row, int column) const {
  const HoleDraft::Entry& entry = draft_.entries()[static_cast<std::size_t>(row)];
  if (entry.isLost) {
    return tr("The text around it is not in the baseline any more. OK drops it; it comes back if you undo the edit.");
  }
  if (column == seenColumn) {
    return entry.seen ? textOf(row, column)
                      : tr("Not known: there is no page yet, or it differs from the baseline before this place.");
  }
  const QString kind = displayMessage(describe(entry.hole));
  const QString words = entry.isProposed ? tr("%1: proposed. OK stores it, Remove drops it.").arg(kind) : kind;
  return column == lengthColumn && entry.hole.kind == HoleClass::digits ? tr("%1; separators do not count").arg(words)
                                                                        : words;
}

QVariant HoleTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  const HoleDraft::Entry& entry = draft_.entries()[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::AccessibleTextRole: {
      const QString text = textOf(index.row(), index.column());
      return QStringLiteral("%1: %2").arg(
          headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString(),
          entry.isProposed && index.column() == placeColumn ? tr("%1, proposed").arg(text) : text);
    }
    case Qt::EditRole:
      return index.column() == whatColumn ? QVariant(static_cast<int>(entry.hole.kind))
                                          : QVariant(textOf(index.row(), index.column()));
    case Qt::DisplayRole:
      return textOf(index.row(), index.column());
    case Qt::ToolTipRole:
      return plainToolTip(toolTipOf(index.row(), index.column()));
    case Qt::FontRole: {
      // What is left to say of it stays readable.
      QFont font;
      font.setStrikeOut(entry.isLost && index.column() != seenColumn);
      font.setBold(entry.isProposed);
      return font;
    }
    default:
      return {};
  }
}

bool HoleTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !mayBeEdited(index)) {
    return false;
  }
  const auto row = static_cast<std::size_t>(index.row());
  bool isChanged = false;
  if (index.column() == whatColumn) {
    isChanged = draft_.setClass(row, static_cast<HoleClass>(value.toInt()));
  } else {
    static const QRegularExpression kLengths(QStringLiteral("^\\s*(\\d{1,9})\\s*(?:[-–]\\s*(\\d{1,9})\\s*)?$"));
    const QRegularExpressionMatch match = kLengths.match(value.toString());
    const std::size_t least = match.captured(1).toULongLong();
    const std::size_t most = match.captured(2).isEmpty() ? least : match.captured(2).toULongLong();
    isChanged = match.hasMatch() && draft_.setLengths(row, least, most);
  }
  if (isChanged) {
    // What was seen last may be known of other rows as well now.
    Q_EMIT dataChanged(this->index(0, 0), this->index(rowCount() - 1, columns - 1));
    Q_EMIT edited();
  }
  return isChanged;
}

bool HoleTableModel::mayBeEdited(const QModelIndex& index) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return false;
  }
  const HoleDraft::Entry& entry = draft_.entries()[static_cast<std::size_t>(index.row())];
  const bool hasLengths = entry.hole.kind != HoleClass::date && entry.hole.kind != HoleClass::list;
  return !entry.isLost && (index.column() == whatColumn || (index.column() == lengthColumn && hasLengths));
}

Qt::ItemFlags HoleTableModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return mayBeEdited(index) ? flags | Qt::ItemIsEditable : flags;
}

QVariant HoleTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  switch (section) {
    case placeColumn:
      return tr("Place");
    case whatColumn:
      return tr("What");
    case lengthColumn:
      return tr("Length");
    default:
      return tr("Last seen");
  }
}

HoleTable::HoleTable(QWidget* parent) : QTableView(parent) { setUpRows(*this); }

void HoleTable::setHoles(HoleTableModel& model) {
  setModel(&model);
  setItemDelegateForColumn(HoleTableModel::whatColumn, new ClassDelegate(this));
  QHeaderView& header = *horizontalHeader();
  header.setSectionResizeMode(HoleTableModel::seenColumn, QHeaderView::Stretch);
  const auto widthFor = [&](const QString& longest, int more) {
    return fontMetrics().horizontalAdvance(longest) + more;
  };
  constexpr int kPadding = 16;
  constexpr int kArrow = 24;
  int what = 0;
  for (int kind = 0; kind <= static_cast<int>(HoleClass::anything); ++kind) {
    what = std::max(what, widthFor(holeWords(static_cast<HoleClass>(kind)), kPadding + kArrow));
  }
  header.resizeSection(HoleTableModel::placeColumn, widthFor(HoleTableModel::tr("Line %1").arg(88888), kPadding));
  header.resizeSection(HoleTableModel::whatColumn, what);
  header.resizeSection(HoleTableModel::lengthColumn, std::max(widthFor(QStringLiteral("88–8888"), kPadding),
                                                              widthFor(HoleTableModel::tr("Length"), kPadding)));
}

QSize HoleTable::minimumSizeHint() const {
  // Its columns, with what of the last one has to be seen.
  const int seen = fontMetrics().horizontalAdvance(HoleTableModel::tr("Last seen") + QStringLiteral("888"));
  return {std::max(columnViewportPosition(HoleTableModel::seenColumn), 0) + seen + 2 * frameWidth(),
          fontMetrics().height() * 6};
}

}  // namespace tarnwick
