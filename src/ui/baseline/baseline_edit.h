// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>
#include <QPlainTextEdit>
#include <QTextCursor>

#include "ui/baseline/baseline_text.h"

namespace tarnwick {

/// A text box for a page of any bytes and any length: what is not edited keeps every byte. Undo and redo are its own,
/// since the document's would bring back what was shown instead of the bytes behind it.
class BaselineEdit final : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit BaselineEdit(QWidget* parent = nullptr);

  /// Shows `page` for editing, in place of what was shown and of any notice.
  void setPage(std::string page);
  /// The page with the edits made since; a notice is not part of it.
  std::string page();

  /// Whether the page that was set has been edited.
  bool isEdited() const { return text_.canUndo(); }

  /// Shows `notice` instead of the page, which cannot be edited meanwhile; `endNotice` shows the page again.
  void showNotice(const QString& notice);
  void endNotice();

  /// The first character that the page's character set does not have, now selected; nothing when all are in it.
  std::optional<QString> selectForeign();

  /// A part of the page, by its bytes.
  struct Part {
    std::size_t begin = 0;
    std::size_t end = 0;
  };
  /// What is selected.
  Part selectedPart() const;
  /// Shades these parts of the page, in their order, instead of others. They go along with edits of the text.
  void markParts(const std::vector<Part>& parts);
  /// Selects one of them, to be seen. REQUIRES: one that has been marked.
  void showMark(std::size_t mark);

  void undoEdit();
  void redoEdit();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  /// Offers the actions of the widget as well.
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  struct Range {
    std::size_t position;
    std::size_t length;
  };

  Range selection() const;
  void select(Range range);
  void showPage();
  void estimateRows();
  void shadeMarks();
  void followDocument(int position, int removed, int added);
  void apply(const TextChange& change);
  void insertLineEnd();
  void stepOverRowBreak(const QKeyEvent& event);
  QString contentFormat() const;

  BaselineText text_{std::string()};
  std::vector<QTextCursor> marks_;
  bool showing_ = false;  // the document is being changed from here, not by the user
  bool notice_ = false;
};

}  // namespace tarnwick
