#pragma once

#include <QToolButton>
#include <QWidget>

#include "ui/widgets/Words.h"

namespace kinesta {

/// The heading above the list with its two buttons.
class ListHeading final : public QWidget {
    Q_OBJECT

  public:
    explicit ListHeading(QWidget* parent = nullptr);

    /// Whether a rule can be added, and the help for it or the reason against it.
    void setAdding(bool isPossible, const QString& help);
    /// Shows help or reason at the button.
    void showAddHelp();
    QToolButton& add() { return *m_add; }
    QToolButton& more() { return *m_more; }

  Q_SIGNALS:
    void addWanted();
    /// With the corner of the button, on the screen.
    void menuWanted(const QPoint& corner);

  protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    void measure();

    Words* m_words;
    QToolButton* m_add;
    QToolButton* m_more;
};

}  // namespace kinesta
