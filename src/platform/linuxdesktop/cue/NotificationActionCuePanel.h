#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <utility>

#include "feedback/ActionCuePanel.h"

namespace kinesta {

/// The cue as a notification of the desktop, where no program may place a window. The desktop decides on its place and
/// its looks. Never waits.
class NotificationActionCuePanel final : public QObject, public ActionCuePanel {
    Q_OBJECT

  public:
    explicit NotificationActionCuePanel(QDBusConnection bus) : m_bus(std::move(bus)) {}

    void setContent(const ActionCueContent& content) override;
    void setBackgroundOpacity(double /*opacity*/) override {}
    void setOrigin(Point /*origin*/) override {}
    bool isVisible() const override { return m_isVisible; }
    double alpha() const override { return m_isVisible ? 1 : 0; }
    void setAlpha(double /*alpha*/) override {}
    void orderFront() override;
    void orderOut() override;
    void animateAlpha(double alpha, Seconds duration, std::function<void()> done) override;

  private:
    void update();
    void notify();
    void close();

    QDBusConnection m_bus;
    QString m_label;
    bool m_isVisible = false;
    /// Whether the desktop does not show what it should.
    bool m_isOutdated = false;
    /// Only the answer to a notification has the number to replace it, so the next one waits for it.
    bool m_isUnanswered = false;
    uint m_shown = 0;
};

}  // namespace kinesta
