#pragma once

#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

namespace kinesta {

/// A sentence that appears for some seconds below a row of the list. Screen readers say it.
class CautionLine final : public QWidget {
    Q_OBJECT

  public:
    explicit CautionLine(QWidget* parent = nullptr);

    /// Appears with this sentence.
    void tell(const QString& sentence);
    void dismiss();
    bool isTelling() const { return m_staying.isActive(); }
    /// The height that it takes now in a list of this width.
    int room(int width) const;
    /// Lies in `line`, shown only where that is inside of `clip`.
    void place(const QRect& line, const QRect& clip);

  Q_SIGNALS:
    /// It takes another height.
    void roomChanged();
    void dismissed();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect wordsIn(const QRect& line) const;

    QRect m_line;
    QTimer m_staying;
    QVariantAnimation m_motion;
};

}  // namespace kinesta
