#pragma once

#include <QAbstractButton>
#include <functional>

#include "app/AppTheme.h"
#include "ui/pictures/PadGesture.h"
#include "ui/widgets/FocusRing.h"

namespace kinesta {

/// A choice with a picture and a word.
class Tile final : public QAbstractButton {
    Q_OBJECT

  public:
    /// Paints the picture with its corner at the point.
    using Paint = std::function<void(QPainter&, QPointF, const AppTheme&)>;

    enum class Form {
        /// The picture above at least two lines of small words.
        tall,
        /// The picture above one word, as wide as a card of its own.
        card,
        /// The picture beside the word.
        flat
    };

    /// `picture` is the size of the picture in units. `title` is the name for screen readers and the tool tip.
    Tile(Form form, const QString& word, const QString& title, QSizeF picture, Paint paint);

    /// A picture of `width` units with a pad.
    static Tile* ofGesture(Form form, const QString& word, const QString& title, double width,
                           const PadGesture& gesture);
    void setPaint(Paint paint);
    void setGesture(double width, const PadGesture& gesture);

    /// How wide a flat tile must be for its picture beside the word.
    int widthBeside() const;
    /// Lines of words below the picture of a tile of this width.
    int linesIn(int width) const;
    /// Room for so many lines below the picture, which a flat tile has beside its word otherwise.
    void setPictureAbove(bool isAbove, int lines);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    bool isPictureAbove() const;
    QSize pictureSize() const;
    int side() const;
    QFont wordFont(bool isChosen) const;

    Form m_form;
    QSizeF m_picture;
    Paint m_paint;
    bool m_isAbove = false;
    int m_lines = 1;
    FocusRing m_ring;
};

}  // namespace kinesta
