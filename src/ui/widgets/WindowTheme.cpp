#include "ui/widgets/WindowTheme.h"

#include <QApplication>
#include <QWidget>

namespace kinesta {
namespace {

AppTheme& stored() {
    static AppTheme theme = AppTheme::of(NamedAppearance::aqua, ThemeContrast::standard);
    return theme;
}

bool& storedMotion() {
    static bool isReduced = false;
    return isReduced;
}

}  // namespace

const AppTheme& WindowTheme::current() { return stored(); }

bool WindowTheme::reducesMotion() { return storedMotion(); }

void WindowTheme::setReducesMotion(bool isReduced) { storedMotion() = isReduced; }

void WindowTheme::set(const AppTheme& theme) {
    if (theme == stored())
        return;
    stored() = theme;
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets)
        widget->update();
}

}  // namespace kinesta
