#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <memory>

#include "app/ApplicationEvents.h"
#include "app/ConfigurationWindow.h"

namespace kinesta {

/// The configuration window as a widget, made when it is first opened. Posts what happens to it.
class QtConfigurationWindow final : public QObject, public ConfigurationWindow {
  public:
    using Make = std::function<std::unique_ptr<QWidget>()>;

    /// `events` must outlive this.
    QtConfigurationWindow(const ApplicationEvents& events, Make make) : m_events(events), m_make(std::move(make)) {}

    /// Makes it without showing it.
    void open();
    /// Ends it, before what it shows goes.
    void discard() { m_widget.reset(); }
    QWidget* widget() const { return m_widget.get(); }

    bool exists() const override { return m_widget != nullptr; }
    bool isVisible() const override { return m_widget && m_widget->isVisible(); }
    bool isMiniaturized() const override { return m_widget && m_widget->isMinimized(); }
    bool isKey() const override { return m_widget && m_widget->isActiveWindow(); }
    void makeKeyAndOrderFront() override;
    void orderOut() override;
    void performClose() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    const ApplicationEvents& m_events;
    Make m_make;
    std::unique_ptr<QWidget> m_widget;
};

}  // namespace kinesta
