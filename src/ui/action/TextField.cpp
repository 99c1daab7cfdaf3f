#include "ui/action/TextField.h"

#include <QFocusEvent>
#include <QValidator>

#include "ui/action/CleanText.h"
#include "ui/widgets/FieldUndo.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kWidth = 300;

/// Accepts all text once it is clean.
class Cleaning final : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int& /*position*/) const override {
        text = cleanText(text, Lines::one);
        return Acceptable;
    }
};

}  // namespace

TextField::TextField(const QString& name, Form form, QWidget* parent) : QLineEdit(parent) {
    setAccessibleName(name);
    FieldUndo::setRecorded(*this, true);
    setValidator(new Cleaning(this));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    if (form == Form::code) {
        setLayoutDirection(Qt::LeftToRight);
        setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    }
    connect(this, &QLineEdit::textEdited, this, [this] { Q_EMIT typed(text()); });
}

void TextField::follow(const QString& stored) {
    m_stored = cleanText(stored.left(maxLength()), Lines::one);
    // Text that is being typed stays.
    if (text() != m_stored && !(hasFocus() && isUndoAvailable()))
        setText(m_stored);
}

QSize TextField::sizeHint() const { return {Unit::of(kWidth), QLineEdit::sizeHint().height()}; }

void TextField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason)
        return;
    if (text() != m_stored)
        setText(m_stored);
    Q_EMIT left();
}

}  // namespace kinesta
