#pragma once

#include <QVBoxLayout>
#include <QWidget>

namespace kinesta {

/// A framed column of rows with hairlines between them. Notices in it lie on a ground of their own.
class Card : public QWidget {
    Q_OBJECT

  public:
    explicit Card(QWidget* parent = nullptr);

    /// Takes the widget in below the others: a Row, a Notice or a part of a page.
    void add(QWidget* part) { insert(m_column->count(), part); }
    /// Takes it in above the one at `index`.
    void insert(int index, QWidget* part);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QVBoxLayout* m_column;
};

}  // namespace kinesta
