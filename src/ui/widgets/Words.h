#pragma once

#include <QLabel>

namespace kinesta {

/// A label in one of the type sizes of the window. Wraps, and follows the application's font.
class Words final : public QLabel {
    Q_OBJECT

  public:
    enum class Size { headline, result, heading, title, section, body, rowTitle, detail, caption };

    Words(const QString& text, Size size, QWidget* parent = nullptr);

    /// Leading, trailing or centred, by the direction of the window and not by the language of the words: a path or a
    /// name in another script stands below its title.
    void alignTo(Qt::Alignment alignment);

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void followParent();
    void applyFont();
    void align();

    Size m_size;
    Qt::Alignment m_alignment = Qt::AlignLeading | Qt::AlignVCenter;
};

}  // namespace kinesta
