#include "ui/widgets/Announcer.h"

#include <QAccessible>
#include <QTimer>
#include <chrono>
#include <utility>

#include "ui/widgets/AccessibleParts.h"

namespace kinesta {
namespace {

constexpr std::chrono::milliseconds kMoment{50};

}  // namespace

Announcer::Announcer(QWidget* window) : QWidget(window) {
    AccessibleParts::install();
    hide();
}

void Announcer::announce(const QWidget& speaker, const QString& text) {
    QWidget* window = speaker.window();
    auto* announcer = window->findChild<Announcer*>(QString(), Qt::FindDirectChildrenOnly);
    if (announcer == nullptr)
        announcer = new Announcer(window);
    announcer->add(text);
}

void Announcer::add(const QString& text) {
    if (m_texts.isEmpty())
        QTimer::singleShot(kMoment, this, &Announcer::speak);
    if (!m_texts.contains(text))
        m_texts.append(text);
}

// Qt 6.4 sends no QAccessible::Alert to screen readers on Linux. They do speak notifications that appear.
void Announcer::speak() {
    setAccessibleName(std::exchange(m_texts, {}).join(u'\n'));
    QAccessibleEvent appearance(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appearance);
}

}  // namespace kinesta
