#include "ui/window/RuleFiles.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>
#include <sstream>
#include <utility>

#include "app/RuleTransfer.h"

namespace kinesta {
namespace {

QString filter() { return RuleFiles::tr("Rule files (*.json);;All files (*)"); }

/// What is wrong in the file, without its name in front.
QString withoutName(const std::string& message, const std::string& file) {
    QString text = QString::fromStdString(message);
    const QString name = QString::fromStdString(file);
    if (text.startsWith(name + QStringLiteral(": ")))
        return text.mid(name.size() + 2);
    if (text.startsWith(name + QLatin1Char(':')))
        return RuleFiles::tr("line %1").arg(text.mid(name.size() + 1));
    return text;
}

QString withSuffix(const QString& file) {
    return QFileInfo(file).suffix().isEmpty() ? file + QStringLiteral(".json") : file;
}

/// The file that is dragged; empty if something else is.
QString draggedFile(const QMimeData& data) {
    const auto urls = data.urls();
    return urls.size() == 1 && urls.front().isLocalFile() ? urls.front().toLocalFile() : QString();
}

}  // namespace

RuleFiles::RuleFiles(const WindowParts& parts, RuleHistory& history, WindowCommands& commands, QWidget* window)
    : QObject(window), m_parts(parts), m_history(history), m_commands(commands), m_window(window) {}

void RuleFiles::import() {
    auto* dialog = new QFileDialog(m_window, tr("Import rules"), QDir::homePath(), filter());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &RuleFiles::importFile);
    dialog->open();
}

void RuleFiles::importFile(const QString& file) {
    const std::string path = QFile::encodeName(file).toStdString();
    const QString name = QFileInfo(file).fileName();
    std::istringstream none;
    const QFileInfo info(file);
    // Reading a pipe would hang the window until somebody writes to it.
    auto rules = info.exists() && !info.isFile() && !info.isDir()
                     ? Error{path + ": " + tr("this is a pipe or a device, not a rule file").toStdString()}
                     : readRuleFile(path, none);
    std::string problem;
    ImportedRules imported;
    if (rules) {
        m_history.recordReplacement([&] {
            auto result = importRules(m_parts.desktop, m_parts.store, std::move(*rules));
            if (result)
                imported = std::move(*result);
            else
                problem = result.error().message;
        });
    } else {
        problem = rules.error().message;
    }
    if (!problem.empty()) {
        m_commands.select(WindowSelection::settings());
        Q_EMIT problemChanged(
            tr("“%1” could not be read: %2. Nothing was changed.").arg(name, withoutName(problem, path)));
        return;
    }
    Q_EMIT problemChanged({});
    Q_EMIT copyKept(QFile::decodeName(imported.copy.c_str()));
    QString text = imported.count == 1 ? tr("Imported 1 rule") : tr("Imported %1 rules").arg(imported.count);
    if (imported.leftOff > 0)
        text = tr("Imported %1 rules; %2 of them stay off until they are complete")
                   .arg(imported.count)
                   .arg(imported.leftOff);
    m_commands.showToast(text, tr("Undo"), [this] { m_commands.undo(); });
}

void RuleFiles::exportAll() {
    auto* dialog = new QFileDialog(m_window, tr("Export rules"),
                                   QDir::home().filePath(QStringLiteral("kinesta-rules.json")), filter());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("json"));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& chosen) {
        const QString file = withSuffix(chosen);
        const std::string path = QFile::encodeName(file).toStdString();
        if (const Outcome written = exportRules(m_parts.store, path); !written) {
            m_commands.select(WindowSelection::settings());
            Q_EMIT problemChanged(
                tr("“%1”: %2.").arg(QFileInfo(file).fileName(), withoutName(written.error().message, path)));
            return;
        }
        Q_EMIT problemChanged({});
        m_commands.showToast(tr("Exported to “%1”").arg(QFileInfo(file).fileName()), {}, {});
    });
    dialog->open();
}

bool RuleFiles::takes(const QMimeData& dragged) { return !draggedFile(dragged).isEmpty(); }

bool RuleFiles::drop(const QMimeData& dropped) {
    const QString file = draggedFile(dropped);
    if (file.isEmpty())
        return false;
    QMetaObject::invokeMethod(
        this, [this, file] { importFile(file); }, Qt::QueuedConnection);
    return true;
}

}  // namespace kinesta
