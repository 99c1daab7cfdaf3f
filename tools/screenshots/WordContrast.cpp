#include "WordContrast.h"

#include <QAbstractButton>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <cmath>

namespace kinesta {
namespace {

constexpr double kEnough = 4.5;

double luminance(QRgb colour) {
    const auto linear = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

/// Of what differs most from the ground, which is the most frequent colour.
double contrastIn(const QImage& image) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    QRgb ground = 0;
    int most = 0;
    for (auto [colour, count] : counts.asKeyValueRange())
        if (count > std::exchange(most, std::max(most, count)))
            ground = colour;
    double best = 1;
    for (const QRgb colour : counts.keys()) {
        const auto [low, high] = std::minmax({luminance(colour), luminance(ground)});
        best = std::max(best, (high + 0.05) / (low + 0.05));
    }
    return best;
}

QString wordsOf(const QWidget* widget) {
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->text();
    const auto* field = qobject_cast<const QLineEdit*>(widget);
    return field == nullptr ? QString() : field->text().isEmpty() ? field->placeholderText() : field->text();
}

}  // namespace

std::vector<PaleWords> paleWordsIn(QWidget& window) {
    std::vector<PaleWords> result;
    const QImage image = window.grab().toImage();
    const double ratio = image.devicePixelRatio();
    const auto widgets = window.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (widget->window() != &window)
            continue;
        const QRect seen = widget->visibleRegion().boundingRect();
        const QString words = wordsOf(widget);
        // What is cut at an edge shows only a part of its strokes.
        if (words.trimmed().isEmpty() || !widget->isEnabled() || seen != widget->rect())
            continue;
        const QPointF at = QPointF(widget->mapTo(&window, seen.topLeft())) * ratio;
        const QImage part = image.copy(QRect(at.toPoint(), (QSizeF(seen.size()) * ratio).toSize()));
        if (const double contrast = contrastIn(part); contrast < kEnough)
            result.push_back({words, contrast});
    }
    return result;
}

}  // namespace kinesta
