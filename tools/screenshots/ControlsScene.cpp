#include "ControlsScene.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

#include "feedback/ActionCueSymbol.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Switch.h"
#include "ui/widgets/Segments.h"

namespace kinesta {
namespace {

QString word(const char* text) { return QString::fromUtf8(text); }

QIcon icon(WindowSymbol symbol) { return SymbolIcon::of(windowSymbol(symbol)); }

QPushButton* button(const char* text, const char* property = nullptr, const QIcon& picture = {}) {
    auto* result = new QPushButton(word(text));
    result->setAutoDefault(false);
    if (property != nullptr)
        result->setProperty(property, true);
    result->setIcon(picture);
    return result;
}

QLineEdit* field(const char* text, const char* placeholder) {
    auto* result = new QLineEdit(word(text));
    result->setPlaceholderText(word(placeholder));
    return result;
}

QComboBox* combo() {
    auto* result = new QComboBox;
    for (const auto& [text, kind] : {std::pair("Keyboard shortcut", ActionKind::keyboardShortcut),
                                     std::pair("Close window", ActionKind::closeWindow),
                                     std::pair("Run shell command", ActionKind::shellCommand)})
        result->addItem(SymbolIcon::of(actionCueSymbol(kind)), word(text));
    return result;
}

QSlider* slider() {
    auto* result = new QSlider(Qt::Horizontal);
    result->setRange(0, 100);
    result->setValue(40);
    return result;
}

QToolButton* tool(WindowSymbol symbol, bool isBare) {
    auto* result = new QToolButton;
    result->setIcon(icon(symbol));
    result->setAutoRaise(isBare);
    return result;
}

QWidget* disabled(QWidget* widget) {
    widget->setEnabled(false);
    return widget;
}

}  // namespace

ControlsScene::ControlsScene() {
    auto* grid = new QGridLayout(this);
    int row = 0;
    const auto add = [&](const char* name, const QList<QWidget*>& widgets) {
        grid->addWidget(new QLabel(word(name)), row, 0);
        auto* line = new QHBoxLayout;
        for (QWidget* widget : widgets)
            line->addWidget(widget);
        line->addStretch();
        grid->addLayout(line, row++, 1);
    };
    auto* menu = new QMenu(this);
    menu->addAction(word("New Tab\tCtrl+T"));
    menu->addAction(icon(WindowSymbol::copy), word("Reopen Closed Tab\tCtrl+Shift+T"));
    menu->addSeparator();
    for (const bool isOn : {true, false}) {
        QAction* entry = menu->addAction(word(isOn ? "Gestures &enabled" : "Launch at Login"));
        entry->setCheckable(true);
        entry->setChecked(isOn);
    }
    menu->addAction(word("Trackpad listening"))->setEnabled(false);
    QMenu* inner = menu->addMenu(word("Web & Tabs"));
    inner->addAction(word("Back"));
    inner->addAction(word("Forward"));
    auto* withMenu = button("Common shortcuts");
    withMenu->setMenu(menu);
    auto* held = button("Held");
    held->setDown(true);
    auto* standard = button("Default");
    standard->setDefault(true);
    add("Buttons", {button("Run action now", nullptr, icon(WindowSymbol::run)), button("Add a gesture", "primary", icon(WindowSymbol::add)),
                    button("Reset…", "destructive"), button("Show rule", "link"), held, standard});
    add("Disabled", {disabled(button("Run action now", nullptr, icon(WindowSymbol::run))), disabled(button("Try a gesture", "primary")),
                     disabled(button("Show rule", "link"))});
    auto* more = tool(WindowSymbol::more, true);
    more->setToolTip(word("Enable or disable all rules"));
    auto* worded = tool(WindowSymbol::copy, false);
    worded->setText(word("Copy"));
    worded->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    add("Tool buttons", {tool(WindowSymbol::add, true), disabled(tool(WindowSymbol::add, true)), more, tool(WindowSymbol::copy, false), worded, withMenu});
    auto* wrong = field("ftp://files.example.org", "");
    wrong->setProperty("error", true);
    auto* filter = field("volime", "Filter gestures");
    filter->addAction(icon(WindowSymbol::search), QLineEdit::LeadingPosition);
    filter->setClearButtonEnabled(true);
    add("Fields", {field("Close window", ""), field("", "Untitled gesture"), wrong, filter, disabled(field("Off", ""))});
    add("Combos", {combo(), disabled(combo())});
    auto* box = new QCheckBox(word("I have read this command and want Kinesta to run it."));
    box->setChecked(true);
    auto* partly = new QCheckBox(word("Some"));
    partly->setTristate();
    partly->setCheckState(Qt::PartiallyChecked);
    auto* off = new QCheckBox(word("Off"));
    auto* offDisabled = new QCheckBox(word("Off"));
    auto* onDisabled = new QCheckBox(word("On"));
    onDisabled->setChecked(true);
    add("Check boxes", {box, partly, off, disabled(onDisabled), disabled(offDisabled)});
    auto* on = new Switch(word("On"));
    on->setChecked(true);
    auto* segments = new Segments(word("Interval"));
    for (const int value : {150, 200, 250})
        segments->addSegment(value, QString::number(value) + word(" ms"));
    segments->setChosen(200);
    add("Ours", {on, new Switch(word("Off")), segments});
    auto* progress = new QProgressBar;
    progress->setValue(40);
    add("Sliders", {slider(), disabled(slider()), progress});
    auto* command = new QPlainTextEdit(word("#!/bin/sh\nset -eu\nfor file in *.png; do\n    echo \"$file\"\ndone\necho done\nexit 0"));
    command->setFixedHeight(90);
    auto* list = new QListWidget;
    for (int i = 1; i < 12; ++i)
        list->addItem(word("--argument-") + QString::number(i));
    list->setCurrentRow(1);
    list->setFixedHeight(90);
    add("Scrolling", {command, list});
}

}  // namespace kinesta
