#include "platform/sqlite/sql_rows_translator.h"

#include <optional>

namespace tarnwick {
namespace {

class RowsTranslator {
 public:
  explicit RowsTranslator(const std::vector<SqlToken>& tokens) : tokens_(tokens) {}

  PlainStatement translate() {
    statement_.reusable = true;
    while (position_ < tokens_.size()) {
      step();
    }
    closeTops(-1);
    return std::move(statement_);
  }

 private:
  /// A `top n` read and not yet written as the `limit` that ends its select.
  struct Top {
    int depth;
    std::string_view rows;
  };

  const SqlToken* peek(std::size_t ahead) const {
    return position_ + ahead < tokens_.size() ? &tokens_[position_ + ahead] : nullptr;
  }
  bool isWord(std::size_t ahead, std::string_view lower) const { return peek(ahead) && peek(ahead)->isWord(lower); }
  bool isSymbol(std::size_t ahead, std::string_view symbol) const {
    return peek(ahead) && peek(ahead)->isSymbol(symbol);
  }
  bool isKind(std::size_t ahead, SqlTokenKind kind) const { return peek(ahead) && peek(ahead)->kind == kind; }

  void step() {
    if (takeTop() || takeTruth() || takeNow() || takeDateDiffUnit() || takeColumnDate()) {
      return;
    }
    const SqlToken& token = tokens_[position_];
    if (token.kind == SqlTokenKind::text) {
      writeParameter(token);
    } else if (const auto number = standsAsParameter(token)) {
      writeParameter(*number);
    } else {
      noteClause(token);
      write(token.source);
    }
    ++position_;
  }

  void noteClause(const SqlToken& token) {
    if (token.isSymbol("(")) {
      ++depth_;
    } else if (token.isSymbol(")")) {
      --depth_;
      closeTops(depth_);
    } else if (token.isWord("set")) {
      setDepth_ = depth_;
    } else if (token.isWord("where") || token.isWord("from") || token.isWord("returning")) {
      setDepth_ = depth_ == setDepth_ ? -1 : setDepth_;
    } else if (token.isWord("values")) {
      inValues_ = true;
    }
  }

  /// `select top 5 ...`: the rows are limited where that select ends.
  bool takeTop() {
    if (!isWord(0, "top") || !isKind(1, SqlTokenKind::number) || position_ == 0) {
      return false;
    }
    const SqlToken& before = tokens_[position_ - 1];
    if (!before.isWord("select") && !before.isWord("distinct") && !before.isWord("all")) {
      return false;
    }
    tops_.push_back({depth_, peek(1)->source});
    position_ += 2;
    return true;
  }

  /// Writes the limits of the selects that end where the text comes down to `depth`.
  void closeTops(int depth) {
    while (!tops_.empty() && tops_.back().depth > depth) {
      write("limit");
      write(tops_.back().rows);
      tops_.pop_back();
    }
  }

  /// `x = true` in a condition. In a `set` the same words assign, and SQLite reads them as 1 and 0.
  bool takeTruth() {
    const bool equal = isSymbol(0, "=") || isSymbol(0, "==");
    const bool unequal = isSymbol(0, "<>") || isSymbol(0, "!=");
    const bool literal = (isWord(1, "true") || isWord(1, "false")) && !isSymbol(2, ".") && !isSymbol(2, "(");
    if ((!equal && !unequal) || !literal || setDepth_ == depth_) {
      return false;
    }
    // "is not true" would let Null through, which is neither equal nor unequal to anything.
    write(isWord(1, "true") == equal ? "is true" : "is false");
    position_ += 2;
    return true;
  }

  bool takeNow() {
    if (!isWord(0, "now") || !isSymbol(1, "(") || !isSymbol(2, ")")) {
      return false;
    }
    if (timeNumber_ == 0) {
      statement_.parameters.emplace_back(StatementTime{});
      timeNumber_ = statement_.parameters.size();
    }
    writeReference(timeNumber_);
    position_ += 3;
    return true;
  }

  /// The unit stays as written: SQLite computes an expression once when it stands twice word for word, in the list of
  /// columns and in the order.
  bool takeDateDiffUnit() {
    if (!isWord(0, "datediff") || !isSymbol(1, "(") || !isKind(2, SqlTokenKind::text) ||
        quotedPart(*peek(2)).find('\0') != std::string_view::npos) {
      return false;
    }
    write(tokens_[position_].source);
    write("(");
    write(peek(2)->source);
    ++depth_;
    position_ += 3;
    return true;
  }

  /// A column's date, by a function that SQLite has itself: an index may be made of it without keeping other programs
  /// from writing the table.
  bool takeColumnDate() {
    if (!isWord(0, "datevalue") || !isSymbol(1, "(") || !peek(2) || !peek(2)->isName() || !isSymbol(3, ")")) {
      return false;
    }
    write("date");
    ++position_;
    return true;
  }

  std::optional<std::int64_t> standsAsParameter(const SqlToken& token) const {
    const bool compared = position_ > 0 && tokens_[position_ - 1].isSymbol("=");
    const bool counts = token.kind == SqlTokenKind::number && (compared || inValues_);
    return counts ? wholeNumberIn(token) : std::nullopt;
  }

  template <typename Value>
  void writeParameter(const Value& value) {
    statement_.parameters.emplace_back(value);
    writeReference(statement_.parameters.size());
  }

  void writeReference(std::size_t number) {
    std::string reference = "?";
    reference += std::to_string(number);
    write(reference);
  }

  /// Blanks between all pieces but the ones that stay together by habit; the same statement gives the same text.
  void write(std::string_view piece) {
    std::string& text = statement_.text;
    const bool tight = text.empty() || text.back() == '(' || text.back() == '.' || piece == ")" || piece == "," ||
                       piece == "." || piece == "(";
    if (!tight) {
      text += ' ';
    }
    text += piece;
  }

  const std::vector<SqlToken>& tokens_;
  std::size_t position_ = 0;
  PlainStatement statement_;
  std::vector<Top> tops_;
  std::size_t timeNumber_ = 0;
  int depth_ = 0;
  int setDepth_ = -1;
  bool inValues_ = false;
};

}  // namespace

PlainStatement translateRows(const std::vector<SqlToken>& tokens) { return RowsTranslator(tokens).translate(); }

}  // namespace tarnwick
