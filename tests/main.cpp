#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

/// Gives each test a login session of its own: an empty home, no display and no bus, and no setting of the person who
/// runs it. What a test changes in the environment is gone with it.
class OwnSession final : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        // In /tmp, not in TMPDIR: the paths of sockets must be short.
        std::string pattern = "/tmp/kinesta-session-XXXXXX";
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no folder in /tmp");
        m_folder = pattern;
        clearenv();
        for (const auto& [name, value] : m_kept)
            setenv(name.c_str(), value.c_str(), 1);
        for (const auto& [name, path] : {std::pair{"HOME", "home"},
                                         {"XDG_CONFIG_HOME", "home/config"},
                                         {"XDG_DATA_HOME", "home/data"},
                                         {"XDG_CACHE_HOME", "home/cache"},
                                         {"XDG_STATE_HOME", "home/state"},
                                         {"XDG_RUNTIME_DIR", "runtime"},
                                         {"XDG_CONFIG_DIRS", "etc"},
                                         {"XDG_DATA_DIRS", "share"}}) {
            fs::create_directory(m_folder / path);
            setenv(name, (m_folder / path).c_str(), 1);
        }
        fs::permissions(m_folder / "runtime", fs::perms::owner_all);
        // GTK programs do not start without these. What opens files and what a bus can start is not among them.
        for (const char* name : {"glib-2.0", "icons", "mime", "themes"})
            fs::create_directory_symlink(fs::path("/usr/share") / name, m_folder / "share" / name);
        setenv("GSETTINGS_BACKEND", "memory", 1);
        setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent", 1);
        setenv("BROWSER", "false", 1);
        setenv("TZ", "UTC", 1);
        fs::current_path(m_folder / "home");
    }

    void OnTestEnd(const testing::TestInfo&) override {
        fs::current_path("/");
        std::error_code ignored;  // a program that is still ending may be writing
        fs::remove_all(m_folder, ignored);
    }

    static std::map<std::string, std::string> kept() {
        std::map<std::string, std::string> variables;
        for (const char* name :
             {"PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS"})
            if (const char* value = std::getenv(name))
                variables[name] = value;
        return variables;
    }

    const std::map<std::string, std::string> m_kept = kept();
    fs::path m_folder;
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new OwnSession);
    return RUN_ALL_TESTS();
}
