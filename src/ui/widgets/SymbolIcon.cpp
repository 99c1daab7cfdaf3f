#include "ui/widgets/SymbolIcon.h"

#include <QIconEngine>
#include <utility>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

QColor colourOf(QIcon::Mode mode) {
    const AppTheme& theme = WindowTheme::current();
    switch (mode) {
        case QIcon::Disabled:
            return asQColor(theme.line);
        case QIcon::Selected:
            return asQColor(theme.onAccent);
        case QIcon::Normal:
        case QIcon::Active:
            break;
    }
    return asQColor(theme.text);
}

class SymbolEngine final : public QIconEngine {
  public:
    explicit SymbolEngine(Picture picture) : m_picture(std::move(picture)) {}

    void paint(QPainter* painter, const QRect& box, QIcon::Mode mode, QIcon::State /*state*/) override {
        PicturePainter::paint(*painter, box, m_picture, colourOf(mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
        return QPixmap::fromImage(PicturePainter::image(m_picture, size, colourOf(mode)));
    }

    bool isNull() override { return m_picture.shapes.empty(); }
    QIconEngine* clone() const override { return new SymbolEngine(m_picture); }

  private:
    Picture m_picture;
};

}  // namespace

QIcon SymbolIcon::of(const Picture& picture) {
    QIcon icon(new SymbolEngine(picture));
    icon.setIsMask(true);
    return icon;
}

}  // namespace kinesta
