#include "ui/window/ResetQuestion.h"

#include <QPushButton>
#include <utility>

#include "app/Desktop.h"

namespace kinesta {

ResetQuestion::ResetQuestion(const WindowParts& parts, RuleHistory& history, WindowCommands& commands,
                             std::function<void()> onChange, QWidget* window)
    : QObject(window),
      m_history(history),
      m_commands(commands),
      m_onChange(std::move(onChange)),
      m_window(window),
      m_settings(parts.desktop.defaults(), parts.updates, parts.desktop.platformSettings()) {}

void ResetQuestion::ask() {
    if (m_box)
        return;
    m_box = new QMessageBox(m_window);
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    m_box->setWindowModality(Qt::WindowModal);
    m_box->setWindowTitle(QStringLiteral("Kinesta"));
    m_box->setTextFormat(Qt::PlainText);
    m_box->setText(tr("Put all settings back as they were at first?"));
    m_box->setInformativeText(tr("Rules and the start at login stay. This can be undone."));
    QPushButton* cancel = m_box->addButton(tr("Cancel"), QMessageBox::RejectRole);
    QPushButton* confirm = m_box->addButton(tr("Reset"), QMessageBox::AcceptRole);
    confirm->setProperty("destructive", true);
    m_box->setDefaultButton(cancel);
    m_box->setEscapeButton(cancel);
    connect(confirm, &QPushButton::clicked, this, &ResetQuestion::reset);
    m_box->open();
}

void ResetQuestion::reset() {
    const auto again = [this] {
        m_backup = m_settings.reset();
        m_onChange();
    };
    again();
    m_history.recordOther(
        [this] {
            m_settings.restore(m_backup);
            m_onChange();
        },
        again);
    m_commands.showToast(tr("The settings are as they were at first"), tr("Undo"), [this] { m_commands.undo(); });
}

}  // namespace kinesta
