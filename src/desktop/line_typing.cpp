#include "desktop/line_typing.h"

#include <QLineEdit>
#include <QValidator>
#include <algorithm>
#include <cmath>

#include "desktop/make.h"
#include "desktop/readers.h"
#include "desktop/text.h"
#include "screen/field.h"
#include "text_number/text_number.h"

namespace tarvane::desktop {
namespace {

bool IsPartOfNumber(std::string_view typed) {
  return !typed.empty() && typed.find_first_not_of("0123456789.+- ") == std::string_view::npos;
}

// "5" and "5.00"; also "2.345" and "2.35", which is as near as two places come.
bool IsSameNumber(std::string_view typed, std::string_view written) {
  if (!IsPartOfNumber(typed) || !IsNumber(written)) return false;
  const std::size_t point = written.find('.');
  const auto places = point == std::string_view::npos ? 0 : written.size() - point - 1;
  const double nearest = 0.5 * std::pow(10.0, -static_cast<double>(places));
  return std::abs(ParseLeading(typed) - ParseLeading(written)) <= nearest * (1 + 1e-6);
}

// Also where the window isn't in front: the worker comes back to it.
bool HoldsCursor(const QWidget* holder) { return holder->window()->focusWidget() == holder; }

class OneLineValidator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& text, int& cursor) const override {
    if (!text.contains('\n') && !text.contains('\r')) return Acceptable;
    cursor = static_cast<int>(ToQt(OneLine(FromQt(text.left(cursor)))).size());
    text = ToQt(OneLine(FromQt(text)));
    return Acceptable;
  }
};

}  // namespace

void DrawLine(const QWidget* holder, QLineEdit* edit, const TextField& field,
              const std::function<void()>& before) {
  const QString text = ToQt(OneLine(field.text()));
  const QString shown = edit->text();
  if (shown == text && !before) return;
  const bool here = HoldsCursor(holder);
  const bool typed = here && edit->isModified();
  if (typed && shown != text && IsSameNumber(FromQt(shown), FromQt(text))) return;
  const bool all = edit->hasSelectedText() && edit->selectedText() == shown;
  const bool replaced = typed && shown.compare(text, Qt::CaseInsensitive) != 0;
  const int cursor = edit->cursorPosition();
  if (before) before();
  edit->setText(text);
  if (here && (all || replaced)) {
    edit->selectAll();
  } else {
    edit->setCursorPosition(here ? std::min<int>(cursor, static_cast<int>(text.size())) : 0);
  }
}

void KeepOneLine(QLineEdit* edit) { edit->setValidator(Make<OneLineValidator>(edit)); }

void AskForNumber(QWidget* holder, QLineEdit* edit) {
  const auto check = [holder, edit] {
    const QString text = edit->text().trimmed();
    const bool wrong = !text.isEmpty() && !IsNumber(FromQt(text));
    SetFault(holder, wrong ? QString("\u201c%1\u201d is not a number").arg(text) : QString());
  };
  check();
  QObject::connect(edit, &QLineEdit::textChanged, holder, check);
}

}  // namespace tarvane::desktop
