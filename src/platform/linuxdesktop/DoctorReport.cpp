#include "platform/linuxdesktop/DoctorReport.h"

#include <sys/prctl.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <csignal>
#include <optional>
#include <utility>

#include "platform/qt/ReportText.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

std::string textIn(const QJsonObject& object, const char* key, MarkedLanguage language = MarkedLanguage::english) {
    return unmarked(object.value(QLatin1String(key)).toString().toStdString(), language);
}

std::optional<SystemFinding> findingIn(const QJsonObject& object, MarkedLanguage language) {
    const auto subject = findingSubject(textIn(object, "subject"));
    const QJsonValue works = object.value(QLatin1String("works"));
    SystemFinding finding{
        .subject = subject.value_or(FindingSubject::rule),
        .what = textIn(object, "what", language),
        .works = works.toBool(),
        .why = textIn(object, "why", language),
        .remedy = textIn(object, "remedy", language),
        .command = textIn(object, "command"),
        .isSetting = object.value(QLatin1String("setting")).toBool(),
        .rulesInNeed = static_cast<std::size_t>(std::max(object.value(QLatin1String("rulesInNeed")).toInt(), 0)),
        .rule = Uuid::parse(textIn(object, "rule")),
        .chosenName = textIn(object, "chosenName")};
    if (!subject || finding.what.empty() || !works.isBool())
        return std::nullopt;
    return finding;
}

/// The findings in the output of the program; none if it is not what this version writes.
std::vector<SystemFinding> findingsIn(const QByteArray& output, MarkedLanguage language) {
    std::vector<SystemFinding> findings;
    const QJsonArray array = QJsonDocument::fromJson(output).array();
    for (const auto& value : array) {
        auto finding = findingIn(value.toObject(), language);
        if (!finding)
            return {};
        findings.push_back(std::move(*finding));
    }
    return findings;
}

}  // namespace

DoctorReport::DoctorReport(MainThread& mainThread, std::string program, std::string version,
                           std::chrono::milliseconds patience)
    : m_mainThread(mainThread), m_program(std::move(program)), m_version(std::move(version)), m_patience(patience) {}

DoctorReport::~DoctorReport() {
    end();
    for (auto* process : m_processes.findChildren<QProcess*>())
        process->waitForFinished();
}

void DoctorReport::request(Receive receive) {
    m_waiting.push_back(std::move(receive));
    end();
    start();
}

void DoctorReport::start() {
    auto* process = m_process = new QProcess(&m_processes);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    // It only reads, so it may end at any moment: also with us, however we end.
    process->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QObject::connect(process, &QProcess::finished, process, [this, process](int status, QProcess::ExitStatus exit) {
        if (process == m_process)
            ended(status, exit);
    });
    const auto onError = [this, process](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        process->deleteLater();
        if (process != m_process)
            return;
        const std::string why = process->errorString().toStdString();
        end();
        answer({.findings = {}, .text = {}, .problem = translated("%1 cannot be started: %2.", {m_program, why})});
    };
    // Queued, as start() may fail at once.
    QObject::connect(process, &QProcess::errorOccurred, process, onError, Qt::QueuedConnection);
    m_deadline = m_mainThread.after(m_patience, [this] {
        end();
        answer({.findings = {},
                .text = {},
                .problem = translated("%1 did not answer in time. Try again later.", {m_program})});
    });
    process->start(QString::fromStdString(m_program),
                   {QStringLiteral("doctor"), QStringLiteral("--json"), QStringLiteral("--marked-texts")},
                   QIODevice::ReadOnly);
}

void DoctorReport::end() {
    m_deadline.cancel();
    if (auto* process = std::exchange(m_process, nullptr))
        process->kill();  // deletes itself when it has ended
}

void DoctorReport::ended(int status, QProcess::ExitStatus exit) {
    Result result;
    Result inEnglish;
    // 1 says that something is missing.
    if (exit == QProcess::NormalExit && (status == 0 || status == 1)) {
        const QByteArray output = m_process->readAllStandardOutput();
        result.findings = findingsIn(output, MarkedLanguage::ofPerson);
        inEnglish.findings = findingsIn(output, MarkedLanguage::english);
    }
    if (result.findings.empty())
        inEnglish.problem = result.problem =
            translated("%1 doctor gave no report. Run it in a terminal to see why.", {m_program});
    // The report goes to people who help, so it is in English.
    result.text = reportText(inEnglish, m_version);
    end();
    answer(std::move(result));
}

void DoctorReport::answer(Result result) {
    if (result.text.empty())
        result.text = reportText(result, m_version);
    for (const Receive& receive : std::exchange(m_waiting, {}))
        receive(result);
}

}  // namespace kinesta
