#include "platform/qt/QtConfigurationWindow.h"

#include <QApplication>
#include <QEvent>

namespace kinesta {

void QtConfigurationWindow::open() {
    m_widget = m_make();
    m_widget->setWindowTitle(QStringLiteral("Kinesta"));
    m_widget->installEventFilter(this);
}

void QtConfigurationWindow::makeKeyAndOrderFront() {
    if (!m_widget)
        return;
    // Keeps it maximized or full screen.
    m_widget->setWindowState(m_widget->windowState() & ~Qt::WindowMinimized);
    m_widget->show();
    // A sheet that is open takes the keyboard for the window behind it.
    QWidget* sheet = QApplication::activeModalWidget();
    QWidget* front = sheet != nullptr && sheet->isVisible() ? sheet : m_widget.get();
    front->raise();
    front->activateWindow();
}

void QtConfigurationWindow::orderOut() {
    if (m_widget)
        m_widget->hide();
}

void QtConfigurationWindow::performClose() {
    if (m_widget)
        m_widget->close();
}

bool QtConfigurationWindow::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Close:
            m_events.post(ApplicationEvent::windowWillClose);
            break;
        case QEvent::WindowActivate:
            m_events.post(ApplicationEvent::windowDidBecomeKey);
            m_events.post(ApplicationEvent::didBecomeActive);  // an application here is active with its window
            break;
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::WindowStateChange:
            m_events.post(ApplicationEvent::windowDidChangeVisibility);
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace kinesta
