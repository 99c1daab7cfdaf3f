#pragma once

#include <QSplitter>
#include <QStackedWidget>

namespace kinesta {

/// The sidebar beside the pages. In a narrow window only one of them is shown.
class Panes final : public QSplitter {
    Q_OBJECT

  public:
    /// Takes both.
    Panes(QWidget* sidebar, QStackedWidget* pages);

    bool isOnePane() const { return m_isOnePane; }
    bool isListShown() const { return !m_isOnePane || !m_isPageInFront; }
    /// In one pane: the page in place of the list, or the list again.
    void setPageInFront(bool isInFront);

    int sidebarWidth() const { return m_sidebarWidth; }
    void setSidebarWidth(int width);

  Q_SIGNALS:
    /// One pane or two, list or page: what is shown has changed.
    void arranged();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void arrange();

    QWidget* m_sidebar;
    QStackedWidget* m_pages;
    bool m_isOnePane = false;
    bool m_isPageInFront = false;
    int m_sidebarWidth;
};

}  // namespace kinesta
