#include "ui/widgets/Words.h"

#include <QEvent>
#include <QStyle>

#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

struct Type {
    double factor;
    QFont::Weight weight;
};

Type typeOf(Words::Size size) {
    switch (size) {
        case Words::Size::headline:
            return {1.7, QFont::DemiBold};
        case Words::Size::result:
            return {1.38, QFont::DemiBold};
        case Words::Size::heading:
            return {1.3, QFont::DemiBold};
        case Words::Size::title:
            return {1.15, QFont::DemiBold};
        case Words::Size::section:
            return {1, QFont::DemiBold};
        case Words::Size::body:
            return {1, QFont::Normal};
        case Words::Size::rowTitle:
            return {1, QFont::Medium};
        case Words::Size::detail:
            return {0.92, QFont::Normal};
        case Words::Size::caption:
            return {0.92, QFont::DemiBold};
    }
    return {1, QFont::Normal};
}

}  // namespace

Words::Words(const QString& text, Size size, QWidget* parent) : QLabel(text, parent), m_size(size) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    if (size == Size::detail || size == Size::caption)
        setForegroundRole(QPalette::PlaceholderText);
    applyFont();
    align();
    followParent();
}

void Words::alignTo(Qt::Alignment alignment) {
    m_alignment = alignment;
    align();
}

void Words::align() { setAlignment(QStyle::visualAlignment(layoutDirection(), m_alignment) | Qt::AlignAbsolute); }

bool Words::event(QEvent* event) {
    if (event->type() == QEvent::ParentChange)
        followParent();
    if (event->type() == QEvent::LayoutDirectionChange)
        align();
    return QLabel::event(event);
}

/// A widget with a size of its own hears nothing when the application's font changes, but its parent does.
void Words::followParent() {
    if (parentWidget() != nullptr)
        parentWidget()->installEventFilter(this);
}

bool Words::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FontChange)
        applyFont();
    return QLabel::eventFilter(watched, event);
}

void Words::applyFont() {
    const Type type = typeOf(m_size);
    setFont(Unit::font(type.factor, type.weight));
}

}  // namespace kinesta
