#pragma once

#include <QGridLayout>

#include "ui/widgets/ChoiceGroup.h"
#include "ui/widgets/Tile.h"

namespace kinesta {

/// Tiles of equal width in rows. Flat tiles have their pictures above the words as soon as one of them does not fit
/// beside its word.
class TileGroup final : public ChoiceGroup {
    Q_OBJECT

  public:
    /// `columns` in a row; half as many, and half of that, as soon as a tile would be narrower than its longest word.
    TileGroup(const QString& name, int columns, QWidget* parent = nullptr);

    void addTile(int value, Tile* tile);
    Tile* tile(std::size_t index) const { return static_cast<Tile*>(buttons().at(index)); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void arrange(int columns);
    int widthFor(int columns) const;
    void fit();

    int m_columns;
    int m_arranged;
    bool m_isAbove = false;
    int m_lines = 1;
    QGridLayout* m_grid;
};

}  // namespace kinesta
