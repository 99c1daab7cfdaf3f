#pragma once

#include <QHBoxLayout>
#include <functional>

#include "app/AppTheme.h"
#include "support/Picture.h"
#include "ui/widgets/Words.h"

class QPainter;

namespace kinesta {

/// Words with a small picture before their first line.
class MarkedWords final : public QWidget {
    Q_OBJECT

  public:
    using Mark = std::function<void(QPainter&, const QRectF&, const AppTheme&)>;

    /// `side` of the mark and `gap` after it in units.
    MarkedWords(Words::Size size, double side, double gap);

    /// A symbol in a colour of the theme.
    static Mark symbol(const Picture& picture, Rgb AppTheme::*ink);

    void setMark(Mark mark);
    Words& words() { return *m_words; }

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void measure();

    double m_side;
    double m_gap;
    Mark m_mark;
    Words* m_words;
    QHBoxLayout* m_line;
};

}  // namespace kinesta
