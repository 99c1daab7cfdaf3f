#include "ui/overview/TerminalCommand.h"

#include <QClipboard>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>

#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kMonoFactor = 0.92;
constexpr double kGap = 8;

}  // namespace

TerminalCommand::TerminalCommand(const QString& command, WindowCommands& commands, QWidget* parent)
    : QWidget(parent),
      m_field(new QLineEdit(command)),
      m_copy(new QPushButton(SymbolIcon::of(windowSymbol(WindowSymbol::copy)), tr("Copy"))) {
    m_field->setReadOnly(true);
    m_field->setCursorPosition(0);
    // Commands read from left to right in every language.
    m_field->setLayoutDirection(Qt::LeftToRight);
    m_field->setToolTip(command);
    m_field->setAccessibleName(tr("Command for a terminal"));
    m_copy->setAccessibleName(tr("Copy the command"));
    connect(m_copy, &QPushButton::clicked, this, [command, &commands] {
        QGuiApplication::clipboard()->setText(command);
        commands.showToast(tr("Command copied"), {}, {});
    });
    auto* line = new QHBoxLayout(this);
    line->addWidget(m_field, 1);
    line->addWidget(m_copy);
    measure();
}

void TerminalCommand::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void TerminalCommand::measure() {
    QFont mono = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    mono.setPixelSize(Unit::font(kMonoFactor).pixelSize());
    m_field->setFont(mono);
    layout()->setContentsMargins(0, Unit::of(kGap), 0, 0);
    layout()->setSpacing(Unit::of(kGap));
}

}  // namespace kinesta
