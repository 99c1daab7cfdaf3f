#pragma once

#include <QScrollArea>
#include <QVBoxLayout>

namespace kinesta {

/// A column of cards, centred at any width, that scrolls upward and downward.
class Page : public QScrollArea {
    Q_OBJECT

  public:
    explicit Page(QWidget* parent = nullptr);

    /// Takes the widget in below the others.
    void add(QWidget* part);
    /// The heading above the next card, with a link or button at its end.
    void addHeading(const QString& text, QWidget* atEnd = nullptr);

    /// The way back to the list, in a window of one pane: at the beginning of the page.
    virtual void setBackButton(QWidget* button);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void measure();

    QWidget* m_ground;
    QVBoxLayout* m_column;
    QSpacerItem* m_belowBack = nullptr;
};

}  // namespace kinesta
