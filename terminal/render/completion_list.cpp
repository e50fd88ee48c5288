#include "terminal/render/completion_list.h"

#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QCompleter>

namespace algo::terminal::render {

namespace {

/// Shows text and note of each match; only the text is put into the line.
class TMatches final : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void Set(std::vector<TCompletion> matches) {
    beginResetModel();
    FMatches = std::move(matches);
    endResetModel();
  }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(FMatches.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= FMatches.size()) return {};
    const TCompletion& match = FMatches[row];
    if (role == Qt::EditRole) return ToQt(match.text);
    if (role != Qt::DisplayRole) return {};
    return match.note.empty() ? ToQt(match.text) : ToQt(match.text + "   " + match.note);
  }

 private:
  std::vector<TCompletion> FMatches;
};

}  // namespace

void OfferCompletions(QLineEdit& line, forms::TTextEdit& editor, const TFrameInput& input,
                      const TEditorAssist& assist) {
  auto* completer = new QCompleter(&line);
  auto* matches = new TMatches(completer);
  completer->setModel(matches);
  completer->setCompletionRole(Qt::EditRole);
  // The terminal chose the matches already, also by name; they must not be filtered again.
  completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  completer->setWidget(&line);

  QObject::connect(&line, &QLineEdit::textEdited, completer,
                   [&line, &editor, &input, &assist, completer, matches](const QString& text) {
                     std::vector<TCompletion> found;
                     if (input.Frame() && !text.isEmpty()) found = assist.Completions(editor, FromQt(text));
                     const bool settled =
                         found.empty() || (found.size() == 1 && found.front().text == FromQt(text));
                     matches->Set(std::move(found));
                     if (settled || !line.hasFocus()) {
                       completer->popup()->hide();
                     } else {
                       completer->complete();
                     }
                   });
  QObject::connect(completer, qOverload<const QString&>(&QCompleter::activated), &line,
                   [&editor, &input](const QString& text) { input.Typed(editor, text); });
  line.setProperty("completer", QVariant::fromValue(static_cast<QObject*>(completer)));
}

bool EnterMeansCompletion(QLineEdit& line) {
  auto* completer = qobject_cast<QCompleter*>(line.property("completer").value<QObject*>());
  if (completer == nullptr || !completer->popup()->isVisible()) return false;
  // The list has a current row from the beginning; only a key or the mouse selects one.
  if (completer->popup()->selectionModel()->hasSelection()) return true;
  completer->popup()->hide();
  return false;
}

}  // namespace algo::terminal::render
