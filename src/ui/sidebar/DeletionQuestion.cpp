#include "ui/sidebar/DeletionQuestion.h"

#include <utility>

namespace kinesta {

DeletionQuestion::DeletionQuestion(RuleListModel& rules, QWidget* parent)
    : QObject(parent),
      m_rules(rules),
      m_parent(parent),
      m_observer(rules.pendingDeletion().observe([this](const auto& pending) { follow(pending); })) {}

void DeletionQuestion::follow(const std::optional<GestureDeletionRequest>& pending) {
    if (!pending) {
        // Answered, or the rules are gone.
        if (QMessageBox* box = std::exchange(m_box, nullptr))
            box->close();
        return;
    }
    const bool isOpen = !m_box.isNull();
    if (!isOpen)
        make();
    m_box->setText(QString::fromStdString(pending->title()));
    if (!isOpen)
        m_box->open();
}

void DeletionQuestion::make() {
    m_box = new QMessageBox(m_parent->window());
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    m_box->setWindowModality(Qt::WindowModal);
    m_box->setWindowTitle(QStringLiteral("Kinesta"));
    m_box->setIcon(QMessageBox::NoIcon);
    m_box->setTextFormat(Qt::PlainText);
    m_box->setInformativeText(QString::fromStdString(GestureDeletionRequest::message()));
    QPushButton* cancel = m_box->addButton(tr("Cancel"), QMessageBox::RejectRole);
    m_delete = m_box->addButton(tr("Delete"), QMessageBox::AcceptRole);
    m_delete->setProperty("destructive", true);
    m_box->setDefaultButton(cancel);
    m_box->setEscapeButton(cancel);
    connect(m_box, &QDialog::finished, this, &DeletionQuestion::answer);
}

void DeletionQuestion::answer() {
    const QMessageBox* box = std::exchange(m_box, nullptr);
    if (box == nullptr)
        return;  // closed by follow()
    // As it is now: rules that went meanwhile are no longer in it.
    const std::optional<GestureDeletionRequest> pending = m_rules.pendingDeletion().value();
    if (pending && box->clickedButton() == m_delete)
        m_rules.confirmDeletion(*pending);
    else
        m_rules.cancelDeletion();
}

}  // namespace kinesta
