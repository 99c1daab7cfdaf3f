#include "ui/action/CommandField.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QMimeData>
#include <QTextBlock>
#include <algorithm>
#include <cmath>

#include "ui/action/CleanText.h"
#include "ui/widgets/FieldUndo.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr int kFewestLines = 2;
constexpr int kMostLines = 8;
constexpr double kPaddingX = 6;
constexpr double kPaddingY = 2;
constexpr double kSize = 0.92;
/// Of a longer command only the beginning is shown: it cannot run, and the layout of megabytes takes minutes.
constexpr qsizetype kShownOfTooLong = 2'000;

}  // namespace

CommandField::CommandField(const QString& name, QWidget* parent) : QPlainTextEdit(parent) {
    setAccessibleName(name);
    FieldUndo::setRecorded(*this, true);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    setLayoutDirection(Qt::LeftToRight);
    setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase | Qt::ImhMultiLine);
    QFont mono = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    mono.setPixelSize(Unit::font(kSize).pixelSize());
    setFont(mono);
    document()->setDocumentMargin(4);
    setViewportMargins(Unit::of(kPaddingX), Unit::of(kPaddingY), Unit::of(kPaddingX), Unit::of(kPaddingY));
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        fitHeight();
        if (!m_isFollowing)
            Q_EMIT typed(toPlainText());
    });
    fitHeight();
}

void CommandField::follow(const QString& stored) {
    QString text = stored.size() > longest ? stored.left(kShownOfTooLong) : stored;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QChar::Nbsp, QLatin1Char(' '));
    m_stored = cleanText(text, Lines::many);
    // Text that is being typed stays.
    if (toPlainText() != m_stored && !(hasFocus() && document()->isUndoAvailable()))
        show(m_stored);
}

void CommandField::show(const QString& text) {
    m_isFollowing = true;
    setPlainText(text);
    m_isFollowing = false;
}

void CommandField::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason)
        return;
    if (toPlainText() != m_stored)
        show(m_stored);
    Q_EMIT left();
}

void CommandField::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    fitHeight();
}

void CommandField::insertFromMimeData(const QMimeData* source) {
    QString text = source->text();
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text = cleanText(text, Lines::many);
    // Part of a command can do something else, so nothing is cut off.
    const qsizetype remaining = document()->characterCount() - textCursor().selectedText().size();
    if (text.size() + remaining > longest || text.toUtf8().size() + remaining > longest)
        Q_EMIT refused();
    else
        textCursor().insertText(text);
}

void CommandField::fitHeight() {
    // The layout of plain text counts in lines.
    const int lines = std::clamp(static_cast<int>(std::ceil(document()->size().height())), kFewestLines, kMostLines);
    const QMargins margins = viewportMargins();
    const double line = std::ceil(QFontMetricsF(font()).lineSpacing());
    const double words = lines * line + 2 * document()->documentMargin();
    // Without the last pixel it would scroll.
    setFixedHeight(static_cast<int>(std::ceil(words)) + margins.top() + margins.bottom() + 1);
}

}  // namespace kinesta
