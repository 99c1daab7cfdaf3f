#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <thread>

#include "platform/linux/UinputDevice.h"
#include "support/TemporaryFolder.h"
#include "vm/DeviceListener.h"
#include "vm/VirtualTouchpad.h"

namespace kinesta::vm {
namespace {

constexpr const char* kProgram = "/usr/bin/kinesta";

constexpr const char* kRules = R"([
  {"id":"00000000-0000-4000-8000-000000000001","name":"","isEnabled":true,"fingerCount":3,"gesture":"singleTap",
   "action":{"kind":"middleClick","modifiers":0,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000002","name":"","isEnabled":true,"fingerCount":2,"gesture":"singleClick",
   "action":{"kind":"keyboardShortcut","keyCode":8,"modifiers":1,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000003","name":"","isEnabled":true,"fingerCount":2,"gesture":"edgeSlide",
   "action":{"kind":"adjustVolume","modifiers":0,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000004","name":"","isEnabled":true,"gesture":"anchorDraw",
   "anchorCorner":"topLeft","drawPattern":"lineUp",
   "action":{"kind":"keyboardShortcut","keyCode":123,"modifiers":16,"value":""}}
])";

/// How long a hand takes: gestures have their time, on a real pad as here.
void rest(int milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }

/// `kinesta daemon` with the rules above and settings of its own.
class DaemonRun {
  public:
    DaemonRun() {
        ::setenv("XDG_CONFIG_HOME", m_folder.path().c_str(), 1);
        const std::string rules = m_folder.write("rules.json", kRules);
        EXPECT_EQ(std::system((std::string(kProgram) + " rules import " + rules + " >/dev/null").c_str()), 0);
        int ends[2];
        EXPECT_EQ(::pipe(ends), 0);
        m_process = ::fork();
        if (m_process == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            ::execl(kProgram, "kinesta", "daemon", nullptr);
            ::_exit(127);
        }
        ::close(ends[1]);
        m_log = ends[0];
    }
    ~DaemonRun() {
        if (m_process > 0)
            end(SIGKILL);
        ::close(m_log);
    }

    /// Waits until the log says so, from where the last wait ended.
    bool says(const std::string& text) {
        const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        for (;;) {
            if (const std::size_t at = m_said.find(text); at != std::string::npos) {
                m_said.erase(0, at + text.size());
                return true;
            }
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(limit - std::chrono::steady_clock::now());
            pollfd readable{m_log, POLLIN, 0};
            char block[4096];
            if (left.count() <= 0 || ::poll(&readable, 1, static_cast<int>(left.count())) <= 0)
                return false;
            const ssize_t count = ::read(m_log, block, sizeof block);
            if (count <= 0)
                return false;
            m_said.append(block, static_cast<std::size_t>(count));
        }
    }

    /// Sends a signal and returns what waitpid() tells of the end.
    int end(int signal) {
        int status = -1;
        ::kill(m_process, signal);
        ::waitpid(std::exchange(m_process, -1), &status, 0);
        return status;
    }

    void signal(int number) const { ::kill(m_process, number); }

    /// How often its threads have gone to sleep of their own accord, all together.
    long sleeps() const {
        long sum = 0;
        for (const auto& task : std::filesystem::directory_iterator("/proc/" + std::to_string(m_process) + "/task"))
            sum += number(task.path() / "status", "voluntary_ctxt_switches:");
        return sum;
    }

    long residentKilobytes() const { return number("/proc/" + std::to_string(m_process) + "/status", "VmRSS:"); }

  private:
    static long number(const std::filesystem::path& file, const std::string& label) {
        std::ifstream stream(file);
        for (std::string word; stream >> word;)
            if (long value = 0; word == label && stream >> value)
                return value;
        ADD_FAILURE() << file << " has no " << label;
        return 0;
    }

    TemporaryFolder m_folder;
    pid_t m_process = -1;
    int m_log = -1;
    std::string m_said;
};

void tapWithThree(VirtualTouchpad& pad) {
    pad.down(0, 1, 300, 250).down(1, 2, 450, 250).down(2, 3, 600, 250).report();
    rest(60);
    pad.up(0).up(1).up(2).report();
}

TEST(Daemon, PerformsWhatTheFingersMean) {
    auto pad = std::make_unique<VirtualTouchpad>();
    DaemonRun daemon;
    ASSERT_TRUE(daemon.says("Trackpad listening: Virtual Touchpad"));
    DeviceListener desktop(UinputDevice::kName);

    rest(500);
    const long before = daemon.sleeps();
    rest(2000);
    EXPECT_EQ(daemon.sleeps(), before) << "idle, it must not wake at all";
    std::cout << "resident: " << daemon.residentKilobytes() << " kB\n";

    tapWithThree(*pad);
    EXPECT_EQ(desktop.take(2), (Lines{"BTN_MIDDLE down", "BTN_MIDDLE up"}));
    EXPECT_TRUE(daemon.says("3-finger single tap  →  Middle click"));

    pad->down(0, 11, 400, 250).down(1, 12, 550, 250).report();
    rest(50);
    pad->key(BTN_LEFT, true).report();
    rest(50);
    pad->key(BTN_LEFT, false).report();
    pad->up(0).up(1).report();
    EXPECT_EQ(desktop.take(4), (Lines{"KEY_LEFTCTRL down", "KEY_C down", "KEY_C up", "KEY_LEFTCTRL up"}));

    pad->down(0, 21, 800, 300).down(1, 22, 900, 300).report();
    for (const int y : {280, 260}) {  // upward by 0.04 of the pad each: 3 steps of 0.025 in all
        rest(20);
        pad->move(0, 800, y).move(1, 900, y).report();
    }
    pad->up(0).up(1).report();
    EXPECT_EQ(desktop.take(6), (Lines{"KEY_VOLUMEUP down", "KEY_VOLUMEUP up", "KEY_VOLUMEUP down", "KEY_VOLUMEUP up",
                                      "KEY_VOLUMEUP down", "KEY_VOLUMEUP up"}));

    rest(300);
    pad->down(0, 31, 100, 50).report();
    rest(250);
    pad->down(1, 32, 500, 400).report();
    for (int y = 390; y >= 250; y -= 10) {
        rest(10);
        pad->move(1, 500, y).report();
    }
    pad->up(1).report();
    rest(20);
    pad->up(0).report();
    EXPECT_EQ(desktop.take(2), (Lines{"KEY_HOME down", "KEY_HOME up"}));
    EXPECT_TRUE(daemon.says("top left line up  →  fn Left"));

    pad.reset();
    ASSERT_TRUE(daemon.says("No built-in trackpad was found."));
    pad = std::make_unique<VirtualTouchpad>();
    ASSERT_TRUE(daemon.says("Trackpad listening"));
    tapWithThree(*pad);
    EXPECT_EQ(desktop.take(2), (Lines{"BTN_MIDDLE down", "BTN_MIDDLE up"}));

    const int status = daemon.end(SIGTERM);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    EXPECT_EQ(desktop.take(1), (Lines{"gone"}));
}

TEST(Daemon, TakesOverRulesThatAnotherProcessStores) {
    VirtualTouchpad pad;
    DaemonRun daemon;
    ASSERT_TRUE(daemon.says("4 of 4 rules are on."));
    ASSERT_EQ(std::system("echo '[]' | /usr/bin/kinesta rules import - >/dev/null"), 0);
    ASSERT_TRUE(daemon.says("0 of 0 rules are on."));
    tapWithThree(pad);
    EXPECT_TRUE(daemon.says("3-finger single tap  →  nothing: no rule is bound to it"));
}

}  // namespace
}  // namespace kinesta::vm
