#pragma once

#include <QPainter>
#include <QVBoxLayout>
#include <QWidget>

#include "app/AppTheme.h"

namespace kinesta {

/// A framed column of rows with hairlines between them. Notices in it lie on a ground of their own.
class Card : public QWidget {
    Q_OBJECT

  public:
    /// The property of a part whose line above it begins where its words do, as above a Row.
    static constexpr const char* kInsetLine = "insetLine";

    explicit Card(QWidget* parent = nullptr);

    /// Takes the widget in below the others: a Row, a Notice or a part of a page.
    void add(QWidget* part) { insert(m_column->count(), part); }
    /// Takes it in above the one at `index`.
    void insert(int index, QWidget* part);
    int indexOf(QWidget* part) const { return m_column->indexOf(part); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Paints below the parts, inside the shape of the card.
    virtual void paintGround(QPainter& /*painter*/, const AppTheme& /*theme*/) {}

  private:
    QVBoxLayout* m_column;
};

}  // namespace kinesta
