#pragma once

#include <string>

#include "app/SystemReport.h"
#include "support/MainThread.h"

namespace kinesta {

/// What works here, as `kinesta doctor` finds out in a process of its own.
class DoctorReport final : public SystemReport {
  public:
    /// `program` is the path of the command line program. The main thread must outlive this.
    DoctorReport(MainThread& mainThread, std::string program)
        : m_mainThread(mainThread), m_program(std::move(program)) {}

    void request(std::function<void(const Result&)> receive) override;

  private:
    MainThread& m_mainThread;
    std::string m_program;
};

}  // namespace kinesta
