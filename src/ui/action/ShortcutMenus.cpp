#include "ui/action/ShortcutMenus.h"

#include <QWidgetAction>
#include <algorithm>

#include "app/Desktop.h"
#include "rules/ShortcutKey.h"
#include "ui/models/ShortcutPresets.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kGap = 8;
constexpr double kPadding = 4;
constexpr double kKeyHeight = 28;
constexpr double kKeysWidth = 140;
constexpr int kKeysShown = 10;
constexpr int kKeyCodeRole = Qt::UserRole;

/// In menus & marks a letter.
QString inMenu(const std::string& text) {
    return QString::fromStdString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

ShortcutMenus::ShortcutMenus(Desktop& desktop, QWidget* parent)
    : QWidget(parent),
      m_desktop(desktop),
      m_presets(new QMenu(this)),
      m_keys(new QMenu(this)),
      m_keyList(new QListWidget),
      m_presetButton(new QPushButton(tr("Common shortcuts"))),
      m_keyButton(new QPushButton(tr("Other keys"))),
      m_line(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    m_presetButton->setMenu(m_presets);
    m_keyButton->setMenu(m_keys);
    m_line->setContentsMargins(0, 0, 0, 0);
    m_line->setSpacing(Unit::of(kGap));
    m_line->addWidget(m_presetButton);
    m_line->addWidget(m_keyButton);
    m_line->addStretch();
    addKeys();
    connect(m_presets, &QMenu::aboutToShow, this, &ShortcutMenus::fillPresets);
    connect(m_keys, &QMenu::aboutToShow, this, &ShortcutMenus::showKeys);
}

void ShortcutMenus::setShortcut(std::optional<std::uint16_t> keyCode, ShortcutModifiers modifiers) {
    m_keyCode = keyCode;
    m_modifiers = modifiers;
}

QSize ShortcutMenus::minimumSizeHint() const {
    const int widest = std::max(m_presetButton->sizeHint().width(), m_keyButton->sizeHint().width());
    return {widest, m_line->minimumSize().height()};
}

void ShortcutMenus::resizeEvent(QResizeEvent* /*event*/) {
    const int wanted = m_presetButton->sizeHint().width() + m_line->spacing() + m_keyButton->sizeHint().width();
    m_line->setDirection(wanted <= width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void ShortcutMenus::fillPresets() {
    // Made each time it opens: the window manager and what ⌘ stands for may have changed.
    qDeleteAll(m_presets->findChildren<QMenu*>(Qt::FindDirectChildrenOnly));
    for (const ShortcutPresetGroup& group : shortcutPresets(m_desktop)) {
        QMenu* menu = m_presets->addMenu(inMenu(group.title));
        for (const ShortcutPreset& preset : group.presets) {
            // Labels stand left to right in every language.
            const QString label = QChar(0x2066) + QString::fromStdString(preset.label) + QChar(0x2069);
            QAction* action = menu->addAction(inMenu(preset.title) + QLatin1Char('\t') + label);
            connect(action, &QAction::triggered, this,
                    [this, shortcut = preset.shortcut] { Q_EMIT chosen(shortcut.keyCode, shortcut.modifiers); });
        }
    }
}

void ShortcutMenus::addKeys() {
    m_keyList->setFrameShape(QFrame::NoFrame);
    m_keyList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_keyList->setUniformItemSizes(true);
    m_keyList->setAccessibleName(tr("Other keys"));
    for (const ShortcutKey& key : ShortcutKey::choices()) {
        auto* item = new QListWidgetItem(QString::fromStdString(ShortcutKey::shownName(key.keyCode)));
        item->setData(kKeyCodeRole, key.keyCode);
        m_keyList->addItem(item);
    }
    // A press outside or Escape closes the menu around the list.
    connect(m_keyList, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { chooseKey(*item); });
    connect(m_keyList, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) { chooseKey(*item); });
    auto* frame = new QWidget;
    auto* inside = new QVBoxLayout(frame);
    const int padding = Unit::of(kPadding);
    inside->setContentsMargins(padding, padding, padding, padding);
    inside->addWidget(m_keyList);
    auto* action = new QWidgetAction(m_keys);
    action->setDefaultWidget(frame);
    m_keys->addAction(action);
}

void ShortcutMenus::showKeys() {
    m_keyList->setFixedSize(Unit::of(kKeysWidth, kKeysShown * kKeyHeight));
    QListWidgetItem* present = nullptr;
    for (int row = 0; row < m_keyList->count(); ++row) {
        QListWidgetItem* item = m_keyList->item(row);
        item->setSizeHint(Unit::of(kKeysWidth, kKeyHeight));
        if (m_keyCode && item->data(kKeyCodeRole).toUInt() == *m_keyCode)
            present = item;
    }
    m_keyList->setCurrentItem(present != nullptr ? present : m_keyList->item(0));
    // Once the menu is there.
    QMetaObject::invokeMethod(
        m_keyList,
        [this] {
            m_keyList->scrollToItem(m_keyList->currentItem(), QAbstractItemView::PositionAtCenter);
            m_keyList->setFocus(Qt::PopupFocusReason);
        },
        Qt::QueuedConnection);
}

void ShortcutMenus::chooseKey(const QListWidgetItem& item) {
    // A click may come as a click and an activation.
    if (!m_keys->isVisible())
        return;
    m_keys->close();
    const auto shortcut = withKey(static_cast<std::uint16_t>(item.data(kKeyCodeRole).toUInt()), m_modifiers, m_desktop);
    Q_EMIT chosen(shortcut.keyCode, shortcut.modifiers);
}

}  // namespace kinesta
