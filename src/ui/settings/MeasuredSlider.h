#pragma once

#include <QLabel>
#include <QSlider>
#include <QTimer>
#include <functional>

#include "ui/models/SettingsModel.h"

namespace kinesta {

/// A slider that settles: it reports each step while it moves, and the final value once it rests, so that not every
/// pixel of a movement is stored. Hiding it reports a value that still waits.
class MeasuredSlider final : public QWidget {
    Q_OBJECT

  public:
    /// How its value reads.
    using Format = std::function<QString(int)>;

    /// Whether the value stands at its end. Screen readers have it in any case.
    enum class Value { shown, spoken };

    MeasuredSlider(const QString& name, SettingsModel::Range range, int page, Value value, Format format);

    QSlider& slider() { return *m_slider; }
    /// Shows a value, unless the person is just choosing another one.
    void setValue(int value);
    /// Reports a value that still waits.
    void settle();

  Q_SIGNALS:
    void moved(int value);
    void settled(int value);

  protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void measure();
    void describe();

    Format m_format;
    QSlider* m_slider;
    QLabel* m_value;
    QTimer m_rest;
};

}  // namespace kinesta
