#include "platform/qt/ReportText.h"

#include <QDir>
#include <QString>
#include <QSysInfo>
#include <cstddef>

namespace kinesta {
namespace {

std::string withoutPersonalNames(const std::string& text, const SystemFinding& finding) {
    QString cleaned = QString::fromStdString(text);
    if (!finding.chosenName.empty())
        cleaned.replace(QString::fromStdString(finding.chosenName), QStringLiteral("(an external trackpad)"));
    if (const QString home = QDir::homePath(); home.size() > 1)
        cleaned.replace(home, QStringLiteral("~"));
    return cleaned.toStdString();
}

std::string describe(const SystemFinding& finding) {
    const char* mark = finding.works ? "✓" : finding.isNeeded() ? "✗" : "–";
    std::string text =
        std::string(mark) + " " + finding.what + ": " + withoutPersonalNames(finding.why, finding) + "\n";
    if (!finding.remedy.empty())
        text += "    " + withoutPersonalNames(finding.remedy, finding) + "\n";
    if (!finding.command.empty())
        text += "        " + withoutPersonalNames(finding.command, finding) + "\n";
    return text;
}

std::string valueOr(const char* variable, const char* otherwise) {
    const std::string value = qEnvironmentVariable(variable).toStdString();
    return value.empty() ? otherwise : value;
}

}  // namespace

std::string reportText(const SystemReport::Result& result, const std::string& version) {
    std::string text = "Kinesta " + version + "\n" + QSysInfo::prettyProductName().toStdString() + ", " +
                       QSysInfo::kernelType().toStdString() + " " + QSysInfo::kernelVersion().toStdString() + ", Qt " +
                       qVersion() + "\nDesktop: " + valueOr("XDG_CURRENT_DESKTOP", "unknown") +
                       ", session: " + valueOr("XDG_SESSION_TYPE", "unknown") + "\n\n";
    if (!result.problem.empty())
        text += withoutPersonalNames(result.problem, {}) + "\n";
    std::size_t leftOut = 0;
    for (const SystemFinding& finding : result.findings) {
        // They tell of paths, addresses and commands.
        if (finding.subject == FindingSubject::rule)
            ++leftOut;
        else
            text += describe(finding);
    }
    text += "\nLeft out: ";
    if (leftOut > 0)
        text += std::to_string(leftOut) + (leftOut == 1 ? " finding" : " findings") + " about single rules, ";
    return text + "names of rules and of external trackpads, and where the home folder is.\n";
}

}  // namespace kinesta
