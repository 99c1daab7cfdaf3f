#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>
#include <functional>

namespace kinesta {

/// Says for a moment at the lower edge of the page what was done, with one button. Stays as long as the pointer or the
/// focus rests on it.
class Toast final : public QWidget {
    Q_OBJECT

  public:
    static constexpr int lifetime = 6000;  // milliseconds

    /// Lies over the lower edge of `page`, or of the window while that is hidden. Belongs to the window: a stack shows
    /// screen readers its pages alone.
    Toast(QWidget* page, QWidget* window);

    /// Shows the text in place of the one before. `action` is the word on the button; empty for no button.
    void tell(const QString& text, const QString& action, std::function<void()> onAction);
    /// For pages that are made later.
    void takeLastTabStop();
    void dismiss();
    /// Takes back what the button offers: it would do something else by now.
    void dismissOffer() {
        if (m_onAction)
            dismiss();
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void place();
    void wait();
    void fade(bool isAppearing);

    QWidget* m_page;
    QLabel* m_text;
    QPushButton* m_button;
    std::function<void()> m_onAction;
    QTimer m_lifetime;
    QVariantAnimation m_fade;
    double m_opacity = 1;
};

}  // namespace kinesta
