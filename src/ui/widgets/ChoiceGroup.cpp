#include "ui/widgets/ChoiceGroup.h"

#include <QAccessible>
#include <QKeyEvent>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <limits>

#include "ui/widgets/AccessibleParts.h"

namespace kinesta {
namespace {

/// So long the pointer rests on a choice before it is meant.
constexpr std::chrono::milliseconds kPointing{300};

/// What people read on it, or hear of it.
QString wordOf(const QAbstractButton& button) {
    return button.text().isEmpty() ? button.accessibleName() : button.text();
}

}  // namespace

ChoiceGroup::ChoiceGroup(const QString& name, QWidget* parent) : QWidget(parent) {
    AccessibleParts::install();
    setAccessibleName(name);
    m_pointing.setSingleShot(true);
    m_pointing.setInterval(kPointing);
    connect(&m_pointing, &QTimer::timeout, this, [this] {
        if (m_pointed)
            Q_EMIT pointedAt(m_values[*m_pointed]);
    });
}

void ChoiceGroup::add(int value, QAbstractButton* button) {
    const std::size_t index = m_buttons.size();
    button->setCheckable(true);
    button->setAutoExclusive(true);
    button->installEventFilter(this);
    connect(button, &QAbstractButton::clicked, this, [this, index] { choose(index); });
    m_buttons.push_back(button);
    m_values.push_back(value);
    keepOneTabStop();
}

void ChoiceGroup::setChosen(std::optional<int> value) {
    m_chosen = value;
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        // A button that excludes others cannot be switched off while it does.
        m_buttons[i]->setAutoExclusive(false);
        m_buttons[i]->setChecked(value == m_values[i]);
        m_buttons[i]->setAutoExclusive(true);
    }
    keepOneTabStop();
}

void ChoiceGroup::choose(std::size_t index) {
    const bool isNew = m_chosen != m_values[index];
    setChosen(m_values[index]);
    if (isNew)
        Q_EMIT chose(m_values[index]);
}

void ChoiceGroup::keepOneTabStop() {
    const auto chosen =
        std::find_if(m_buttons.begin(), m_buttons.end(), [](auto* button) { return button->isChecked(); });
    const auto* stop = chosen != m_buttons.end() ? *chosen : m_buttons.front();
    for (QAbstractButton* button : m_buttons)
        button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

bool ChoiceGroup::eventFilter(QObject* watched, QEvent* event) {
    const auto found = std::find(m_buttons.begin(), m_buttons.end(), watched);
    if (found == m_buttons.end())
        return QWidget::eventFilter(watched, event);
    const auto index = static_cast<std::size_t>(found - m_buttons.begin());
    switch (event->type()) {
        case QEvent::KeyPress:
            return takeKey(index, *static_cast<QKeyEvent*>(event));
        case QEvent::Enter:
        case QEvent::FocusIn:
            m_pointed = index;
            m_pointing.start();
            break;
        case QEvent::Leave:
        case QEvent::FocusOut:
            if (m_pointed == index) {
                m_pointed.reset();
                m_pointing.stop();
                Q_EMIT pointedAway();
            }
            break;
        default:
            break;
    }
    return false;
}

bool ChoiceGroup::takeKey(std::size_t from, const QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    std::optional<std::size_t> target = next(from, event.key());
    const QString letter = event.text();
    // The focus may be on a button that is not chosen: then it is the first that the letter can mean.
    const std::size_t first = m_buttons[from]->isChecked() ? from + 1 : from;
    for (std::size_t i = 0; !target && !letter.trimmed().isEmpty() && i < m_buttons.size(); ++i) {
        const std::size_t index = (first + i) % m_buttons.size();
        if (wordOf(*m_buttons[index]).startsWith(letter, Qt::CaseInsensitive))
            target = index;
    }
    if (!target)
        return false;
    m_buttons[*target]->setFocus(Qt::TabFocusReason);
    choose(*target);
    return true;
}

/// The nearest button in the direction of an arrow key. At an end the arrow is taken and changes nothing.
std::optional<std::size_t> ChoiceGroup::next(std::size_t from, int key) const {
    if (key == Qt::Key_Home)
        return 0;
    if (key == Qt::Key_End)
        return m_buttons.size() - 1;
    const bool isAcross = key == Qt::Key_Left || key == Qt::Key_Right;
    if (!isAcross && key != Qt::Key_Up && key != Qt::Key_Down)
        return std::nullopt;
    const int sign = key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 1;
    const QPoint start = m_buttons[from]->geometry().center();
    std::size_t best = from;
    int shortest = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        const QPoint way = m_buttons[i]->geometry().center() - start;
        const int ahead = sign * (isAcross ? way.x() : way.y());
        const int aside = std::abs(isAcross ? way.y() : way.x());
        // More aside than ahead is another direction.
        if (ahead > 0 && aside <= ahead && ahead + 2 * aside < shortest) {
            shortest = ahead + 2 * aside;
            best = i;
        }
    }
    return best;
}

}  // namespace kinesta
