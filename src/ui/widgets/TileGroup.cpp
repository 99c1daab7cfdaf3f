#include "ui/widgets/TileGroup.h"

#include <QEvent>
#include <algorithm>
#include <utility>

#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kGap = 6;

}  // namespace

TileGroup::TileGroup(const QString& name, int columns, QWidget* parent)
    : ChoiceGroup(name, parent), m_columns(columns), m_arranged(columns), m_grid(new QGridLayout(this)) {
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(Unit::of(kGap));
    // The group itself says how narrow it may become.
    m_grid->setSizeConstraint(QLayout::SetNoConstraint);
}

void TileGroup::addTile(int value, Tile* tile) {
    tile->setParent(this);
    add(value, tile);
    arrange(m_arranged);
}

void TileGroup::arrange(int columns) {
    m_arranged = columns;
    for (int column = 0; column < m_columns; ++column)
        m_grid->setColumnStretch(column, column < columns ? 1 : 0);
    int index = 0;
    for (QAbstractButton* button : buttons()) {
        m_grid->removeWidget(button);
        m_grid->addWidget(button, index / columns, index % columns);
        ++index;
    }
    updateGeometry();
}

int TileGroup::widthFor(int columns) const {
    int widest = 0;
    for (const QAbstractButton* button : buttons())
        widest = std::max(widest, button->minimumSizeHint().width());
    return columns * widest + (columns - 1) * m_grid->spacing();
}

QSize TileGroup::sizeHint() const {
    // All columns, also while there is no room for them: the room may come back.
    int widest = 0;
    for (const QAbstractButton* button : buttons())
        widest = std::max(widest, button->sizeHint().width());
    return {m_columns * widest + (m_columns - 1) * m_grid->spacing(), m_grid->sizeHint().height()};
}

QSize TileGroup::minimumSizeHint() const { return {widthFor(1), m_grid->minimumSize().height()}; }

void TileGroup::changeEvent(QEvent* event) {
    ChoiceGroup::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    m_grid->setSpacing(Unit::of(kGap));
    fit();
}

void TileGroup::resizeEvent(QResizeEvent* event) {
    ChoiceGroup::resizeEvent(event);
    fit();
}

void TileGroup::fit() {
    if (width() == 0)
        return;  // not laid out yet: one column would be seen for a moment
    int columns = m_columns;
    while (columns > 1 && width() < widthFor(columns))
        columns = (columns + 1) / 2;
    if (columns != m_arranged)
        arrange(columns);
    const int each = (width() - (columns - 1) * m_grid->spacing()) / columns;
    bool isAbove = false;
    int lines = 1;
    for (std::size_t i = 0; i < buttons().size(); ++i) {
        isAbove = isAbove || tile(i)->widthBeside() > each;
        lines = std::max(lines, tile(i)->linesIn(each));
    }
    if (std::exchange(m_isAbove, isAbove) == isAbove && m_lines == lines)
        return;
    m_lines = lines;
    for (std::size_t i = 0; i < buttons().size(); ++i)
        tile(i)->setPictureAbove(isAbove, lines);
    updateGeometry();
}

}  // namespace kinesta
