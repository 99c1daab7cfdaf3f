#pragma once

#include <QProcess>
#include <QTimer>
#include <chrono>
#include <string>
#include <vector>

#include "app/SystemReport.h"

namespace kinesta {

/// What works here, as `kinesta doctor` finds out in a process of its own: services that do not answer hold it up for
/// seconds. Main thread only.
class DoctorReport final : public SystemReport {
  public:
    /// The program gives up by itself on services that do not answer, long before this.
    static constexpr std::chrono::seconds kPatience{20};

    /// `program` is the path of the command line program, `version` ours, for the text.
    DoctorReport(std::string program, std::string version, std::chrono::milliseconds patience = kPatience);
    ~DoctorReport() override;

    void request(Receive receive) override;

  private:
    void start();
    void end();
    void ended(int status, QProcess::ExitStatus exit);
    void answer(Result result);

    std::string m_program;
    std::string m_version;
    std::vector<Receive> m_waiting;
    /// Owns the process and those that were ended for a newer one and are not gone yet.
    QObject m_processes;
    QProcess* m_process = nullptr;
    QTimer m_deadline;
};

}  // namespace kinesta
