#pragma once

#include <iostream>
#include <string>
#include <string_view>

namespace kinesta {

/// Exit statuses of every subcommand.
enum class ExitStatus { success = 0, badInput = 1, badUsage = 2 };

/// Whether a subcommand writes for people, or JSON for programs.
enum class OutputForm { forPeople, json };

/// The standard streams of a subcommand and their capabilities.
struct Console {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool outIsTerminal = false;
    bool errIsTerminal = false;
    /// Whether output for people may be coloured.
    bool colour = false;
    /// Width and height of the terminal on the output, 0 where unknown.
    int columns = 0;
    int rows = 0;

    std::string bold(std::string_view text) const { return styled("1", text); }
    std::string dim(std::string_view text) const { return styled("2", text); }
    std::string good(std::string_view text) const { return styled("32", text); }
    std::string warning(std::string_view text) const { return styled("33", text); }
    std::string accent(std::string_view text) const { return styled("36", text); }

    /// Writes one line to the error stream and returns badInput.
    ExitStatus fail(std::string_view message) const {
        out.flush();
        err << message << '\n';
        return ExitStatus::badInput;
    }

  private:
    std::string styled(std::string_view code, std::string_view text) const {
        if (!colour || text.empty())
            return std::string(text);
        return "\x1b[" + std::string(code) + "m" + std::string(text) + "\x1b[0m";
    }
};

}  // namespace kinesta
