#pragma once

#include <QLabel>

namespace kinesta {

/// A label in one of the type sizes of the window. Wraps, and follows the application's font.
class Words final : public QLabel {
    Q_OBJECT

  public:
    enum class Size { headline, result, heading, title, section, body, rowTitle, detail, caption };

    Words(const QString& text, Size size, QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void followParent();
    void applyFont();

    Size m_size;
};

}  // namespace kinesta
