#pragma once

#include <systemd/sd-bus.h>

#include <map>
#include <string>
#include <thread>
#include <vector>

namespace kinesta::testing {

/// A program on the accessibility bus, as toolkits make one: this process, with a tree of elements of the test's own.
/// Starts the bus if need be, as every such program does.
class AccessibleProgram {
  public:
    struct Element {
        std::uint64_t state = 0;
        std::vector<std::string> children;
    };

    /// Elements by the last part of their path; the program itself is "root".
    explicit AccessibleProgram(std::map<std::string, Element> elements);
    AccessibleProgram(const AccessibleProgram&) = delete;
    AccessibleProgram& operator=(const AccessibleProgram&) = delete;
    ~AccessibleProgram();

    /// Answers no more, but stays on the bus.
    void hang();

  private:
    static int answer(sd_bus_message* call, void* self, sd_bus_error* error);

    std::map<std::string, Element> m_elements;
    sd_bus* m_bus = nullptr;
    int m_stop = -1;
    std::thread m_thread;
};

}  // namespace kinesta::testing
