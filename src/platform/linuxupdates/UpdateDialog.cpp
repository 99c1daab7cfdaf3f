#include "platform/linuxupdates/UpdateDialog.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLocale>
#include <QUrl>
#include <QVBoxLayout>

namespace kinesta {
namespace {

QString text(const std::string& bytes) { return QString::fromStdString(bytes); }

QString sizeText(std::uint64_t bytes) { return QLocale().formattedDataSize(static_cast<qint64>(bytes)); }

}  // namespace

UpdateDialog::UpdateDialog(UpdateCheck& check, UpdateTrigger trigger) : m_check(check), m_trigger(trigger) {
    setWindowTitle(tr("Software Update"));
    setMinimumWidth(420);
    QFont headline = font();
    headline.setPointSizeF(headline.pointSizeF() * 1.3);
    headline.setWeight(QFont::DemiBold);
    m_headline.setFont(headline);
    m_headline.setWordWrap(true);
    m_detail.setWordWrap(true);
    m_detail.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_detail.setTextFormat(Qt::PlainText);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(&m_close);
    buttons->addWidget(&m_action);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 24);
    column->setSpacing(12);
    column->addWidget(&m_headline);
    column->addWidget(&m_detail);
    column->addWidget(&m_bar);
    column->addStretch();
    column->addLayout(buttons);

    m_close.setAutoDefault(false);  // Enter is for the action; Escape closes
    m_action.setDefault(true);
    connect(&m_action, &QPushButton::clicked, this, [this] { act(); });
    connect(&m_close, &QPushButton::clicked, this, [this] { reject(); });
    m_observation = check.progress().observe([this](const UpdateProgress& progress) { show(progress); });
}

void UpdateDialog::reject() {
    m_check.cancel();
    QDialog::reject();
}

void UpdateDialog::act() {
    const UpdateProgress& progress = m_check.progress().value();
    if (progress.stage == Stage::found) {
        m_check.download();
    } else if (progress.stage == Stage::finished) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(text(progress.file)).path()));
        accept();
    } else if (progress.stage == Stage::failed) {
        m_check.check();
    }
}

void UpdateDialog::show(const UpdateProgress& progress) {
    const bool isLoading = progress.stage == Stage::downloading;
    const bool isBusy = progress.isBusy();
    m_bar.setVisible(isBusy);
    // Thousands, because a length in bytes may not fit; the same ends stand for "unknown".
    m_bar.setRange(0, isLoading ? 1000 : 0);
    if (isLoading)
        m_bar.setValue(static_cast<int>(progress.received * 1000 / progress.release.length));
    m_bar.setTextVisible(isLoading);
    m_close.setText(isBusy ? tr("Cancel") : tr("Close"));
    m_close.setEnabled(progress.stage != Stage::verifying);

    QString action;
    const QString version = text(progress.release.version);
    switch (progress.stage) {
        case Stage::idle:
            return hide();
        case Stage::checking:
            m_headline.setText(tr("Checking for updates…"));
            m_detail.clear();
            break;
        case Stage::upToDate:
            m_headline.setText(tr("Kinesta is up to date"));
            m_detail.setText(tr("There is no newer version for this system."));
            break;
        case Stage::found:
            m_headline.setText(tr("Kinesta %1 is available").arg(version));
            m_detail.setText(tr("The download has %1. Kinesta checks its signature and installs nothing by itself.")
                                 .arg(sizeText(progress.release.length)));
            action = tr("Download");
            break;
        case Stage::downloading:
            m_headline.setText(tr("Downloading Kinesta %1…").arg(version));
            m_detail.setText(tr("%1 of %2").arg(sizeText(progress.received), sizeText(progress.release.length)));
            break;
        case Stage::verifying:
            m_headline.setText(tr("Checking the signature…"));
            m_detail.clear();
            break;
        case Stage::finished:
            m_headline.setText(tr("Kinesta %1 is ready to install").arg(version));
            m_detail.setText(tr("Its signature is genuine. The file is here:\n%1").arg(text(progress.file)));
            action = tr("Show in Folder");
            break;
        case Stage::failed:
            m_headline.setText(tr("Kinesta could not be updated"));
            m_detail.setText(text(progress.problem));
            action = tr("Try Again");
            break;
    }
    m_action.setText(action);
    m_action.setVisible(!action.isEmpty());
    m_detail.setVisible(!m_detail.text().isEmpty());
    if (!isVisible() && (m_trigger == UpdateTrigger::person || progress.stage == Stage::found)) {
        QDialog::show();
        raise();
        activateWindow();
    }
}

}  // namespace kinesta
