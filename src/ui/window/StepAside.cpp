#include "ui/window/StepAside.h"

#include <QGuiApplication>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <utility>

namespace kinesta {
namespace {

/// A window manager gives the focus to the next window within this time, or there is none.
constexpr int kLongestWait = 400;
/// After we have lost the focus, another window gets it.
constexpr int kSettling = 60;
/// Long enough to see what happened.
constexpr int kAway = 1200;

void comeBack(QWidget& window) {
    if (window.isVisible())
        return;
    // What Qt::WA_ShowWithoutActivating sets, but for a window that exists already.
    constexpr const char* kWithoutActivating = "_q_showWithoutActivating";
    window.windowHandle()->setProperty(kWithoutActivating, true);
    window.show();
    window.windowHandle()->setProperty(kWithoutActivating, false);
}

}  // namespace

void stepAside(QWidget& window, std::function<void()> act) {
    auto* wait = new QTimer(&window);
    wait->setSingleShot(true);
    QObject::connect(wait, &QTimer::timeout, &window, [&window, wait, act = std::move(act)] {
        wait->deleteLater();
        const QPointer<QWidget> still(&window);
        act();
        if (still)
            QTimer::singleShot(kAway, &window, [&window] { comeBack(window); });
    });
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, wait, [wait](Qt::ApplicationState state) {
        if (state == Qt::ApplicationInactive)
            wait->start(kSettling);
    });
    wait->start(kLongestWait);
    window.hide();
}

}  // namespace kinesta
