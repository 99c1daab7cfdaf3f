#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <thread>

#include "platform/linux/keyboard/UinputDevice.h"
#include "platform/linux/settings/FileUserDefaults.h"
#include "support/TemporaryFolder.h"
#include "vm/DeviceListener.h"
#include "vm/VirtualTouchpad.h"

namespace kinesta::vm {
namespace {

constexpr const char* kProgram = "/usr/bin/kinesta";

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kIsInstrumented = true;  // the program too, which then keeps freed memory
#else
constexpr bool kIsInstrumented = false;
#endif

constexpr const char* kRules = R"([
  {"id":"00000000-0000-4000-8000-000000000001","name":"","isEnabled":true,"fingerCount":3,"gesture":"singleTap",
   "action":{"kind":"middleClick","modifiers":0,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000002","name":"","isEnabled":true,"fingerCount":2,"gesture":"singleClick",
   "action":{"kind":"keyboardShortcut","keyCode":8,"modifiers":1,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000003","name":"","isEnabled":true,"fingerCount":2,"gesture":"edgeSlide",
   "action":{"kind":"adjustVolume","modifiers":0,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000004","name":"","isEnabled":true,"gesture":"anchorDraw",
   "anchorCorner":"topLeft","drawPattern":"lineUp",
   "action":{"kind":"keyboardShortcut","keyCode":123,"modifiers":16,"value":""}},
  {"id":"00000000-0000-4000-8000-000000000005","name":"","isEnabled":true,"fingerCount":3,"gesture":"singleForceClick",
   "action":{"kind":"keyboardShortcut","keyCode":9,"modifiers":1,"value":""}}
])";

/// How long a hand takes: gestures have their time, on a real pad as here.
void rest(int milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }

/// Runs the program to its end, as a shell command; whether it ended well.
bool kinesta(const std::string& words) { return std::system((std::string(kProgram) + " " + words).c_str()) == 0; }

/// The program as a process of its own, ended if the test ends first.
class ProgramRun {
  public:
    explicit ProgramRun(std::vector<std::string> words) {
        words.insert(words.begin(), "kinesta");
        std::vector<char*> pointers;
        for (std::string& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        int ends[2];
        EXPECT_EQ(::pipe(ends), 0);
        m_process = ::fork();
        if (m_process == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            ::execv(kProgram, pointers.data());
            ::_exit(127);
        }
        ::close(ends[1]);
        m_log = ends[0];
    }
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;
    ~ProgramRun() {
        if (m_process > 0)
            end(SIGKILL);
        ::close(m_log);
    }

    /// Waits until it says so, from where the last wait ended.
    bool says(const std::string& text, std::chrono::seconds patience = std::chrono::seconds(10)) {
        const auto limit = std::chrono::steady_clock::now() + patience;
        for (;;) {
            if (const std::size_t at = m_said.find(text); at != std::string::npos) {
                m_said.erase(0, at + text.size());
                return true;
            }
            m_said.erase(0, m_said.size() - std::min(m_said.size(), text.size()));
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

    std::ptrdiff_t descriptors() const {
        const std::filesystem::directory_iterator all("/proc/" + std::to_string(m_process) + "/fd");
        return std::distance(std::filesystem::begin(all), std::filesystem::end(all));
    }

  private:
    static long number(const std::filesystem::path& file, const std::string& label) {
        std::ifstream stream(file);
        for (std::string word; stream >> word;)
            if (long value = 0; word == label && stream >> value)
                return value;
        ADD_FAILURE() << file << " has no " << label;
        return 0;
    }

    pid_t m_process = -1;
    int m_log = -1;
    std::string m_said;
};

/// The rules above in settings of the test's own, and the program on them.
struct Daemon : ::testing::Test {
    Daemon() {
        ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        EXPECT_TRUE(kinesta("rules import " + folder.write("rules.json", kRules) + " >/dev/null"));
    }

    TemporaryFolder folder;
};

void tapWithThree(VirtualTouchpad& pad) {
    pad.down(0, 1, 300, 250).down(1, 2, 450, 250).down(2, 3, 600, 250).report();
    rest(60);
    pad.up(0).up(1).up(2).report();
}

TEST_F(Daemon, PerformsWhatTheFingersMean) {
    auto pad = std::make_unique<VirtualTouchpad>();
    ProgramRun daemon({"daemon"});
    ASSERT_TRUE(daemon.says("Trackpad listening: Virtual Touchpad"));
    DeviceListener desktop(UinputDevice::kName);

    rest(500);
    const long before = daemon.sleeps();
    rest(2000);
    EXPECT_EQ(daemon.sleeps(), before) << "idle, it must not wake at all";
    EXPECT_TRUE(kIsInstrumented || daemon.residentKilobytes() < 10240) << daemon.residentKilobytes();

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

TEST_F(Daemon, TakesOverRulesThatAnotherProcessStores) {
    VirtualTouchpad pad;
    ProgramRun daemon({"daemon"});
    ASSERT_TRUE(daemon.says("5 of 5 rules are on."));
    ASSERT_TRUE(kinesta("rules import " + folder.write("none.json", "[]") + " >/dev/null"));
    ASSERT_TRUE(daemon.says("0 of 0 rules are on."));
    tapWithThree(pad);
    EXPECT_TRUE(daemon.says("3-finger single tap  →  nothing: no rule is bound to it"));
}

TEST_F(Daemon, TellsAForceClickOnAPadThatCanTellPressure) {
    VirtualTouchpad pad({.pressureResolution = 10, .maximumPressure = 1000});
    ProgramRun daemon({"daemon"});
    ASSERT_TRUE(daemon.says("Trackpad listening: Virtual Touchpad"));
    for (const int force : {300, 900}) {
        pad.down(0, 1, 300, 250).down(1, 2, 450, 250).down(2, 3, 600, 250).report();
        rest(30);
        pad.key(BTN_LEFT, true).report();
        pad.pressure(0, force).report();
        rest(30);
        pad.pressure(0, 100).key(BTN_LEFT, false).report();
        pad.up(0).up(1).up(2).report();
        EXPECT_TRUE(daemon.says(force < 600 ? "3-finger single soft click (stage 1)  →  nothing"
                                            : "3-finger single force click (stage 2)  →  ⌘V"));
        rest(500);
    }
}

TEST_F(Daemon, NeitherMisfiresNorStaysDeafWhenItMissedEvents) {
    VirtualTouchpad pad;
    ProgramRun daemon({"daemon"});
    ASSERT_TRUE(daemon.says("Trackpad listening"));
    DeviceListener desktop(UinputDevice::kName);
    daemon.signal(SIGSTOP);
    for (int i = 0; i < 200; ++i) {  // taps, more than the kernel keeps for a reader
        pad.down(0, 3 * i, 300, 250).down(1, 3 * i + 1, 450, 250).down(2, 3 * i + 2, 600, 250).report();
        pad.up(0).up(1).up(2).report();
    }
    pad.down(0, 700, 300, 250).report();
    daemon.signal(SIGCONT);
    rest(700);  // until whatever may have been understood would have been performed
    pad.up(0).report();
    const Lines missed = desktop.take(3, kMoment);
    EXPECT_LE(missed.size(), 2U) << "what was lost is no reason to click";
    tapWithThree(pad);
    EXPECT_EQ(desktop.take(2), (Lines{"BTN_MIDDLE down", "BTN_MIDDLE up"}));
}

TEST_F(Daemon, HoldsOnToNothingOverThousandsOfActions) {
    VirtualTouchpad pad;
    ProgramRun daemon({"daemon"});
    ASSERT_TRUE(daemon.says("Trackpad listening"));
    long resident = 0;
    std::ptrdiff_t descriptors = 0;
    constexpr int kActionsARound = 500;
    for (int round = 0; round <= 4; ++round) {
        pad.down(0, 2 * round, 50, 250).down(1, 2 * round + 1, 150, 250).report();
        std::thread fingers([&pad] {
            for (int i = 0; i < kActionsARound; ++i) {  // up and down by 0.05: two steps each
                rest(1);
                const int y = i % 2 == 0 ? 225 : 250;
                pad.move(0, 50, y).move(1, 150, y).report();
            }
        });
        int told = 0;
        while (told < kActionsARound && daemon.says("2-finger left edge slide", std::chrono::seconds(2)))
            ++told;
        fingers.join();
        pad.up(0).up(1).report();
        ASSERT_GE(told, kActionsARound * 9 / 10) << round;
        if (round == 0) {
            resident = daemon.residentKilobytes();
            descriptors = daemon.descriptors();
        }
    }
    EXPECT_EQ(daemon.descriptors(), descriptors);
    EXPECT_TRUE(kIsInstrumented || daemon.residentKilobytes() <= resident + 128) << daemon.residentKilobytes();
}

TEST_F(Daemon, FollowsTheChoiceOfThePad) {
    VirtualTouchpad first({.name = "First Pad"});
    VirtualTouchpad second({.name = "Second Pad", .bus = BUS_USB});
    ProgramRun daemon({"daemon"});
    ASSERT_TRUE(daemon.says("Trackpad listening: First Pad"));
    FileUserDefaults(folder / "kinesta/defaults.json", {}).setString("linux.touchpad.v1", "Second Pad");
    ASSERT_TRUE(daemon.says("Trackpad listening: Second Pad"));
    tapWithThree(first);
    tapWithThree(second);
    EXPECT_TRUE(daemon.says("rules are on."));
    EXPECT_TRUE(daemon.says("3-finger single tap  →  Middle click"));
}

TEST_F(Daemon, LeavesAValidRecordingWheneverItIsKilled) {
    VirtualTouchpad pad;
    const std::string file = folder / "pad.jsonl";
    for (const int signal : {SIGKILL, SIGTERM}) {
        ProgramRun record({"record", "-o", file});
        const auto lines = [&] {
            std::ifstream stream(file);
            return std::count(std::istreambuf_iterator<char>(stream), {}, '\n');
        };
        const auto waitForLines = [&](std::ptrdiff_t count) {
            for (int i = 0; i < 1000 && lines() < count; ++i)
                rest(5);
            return lines() >= count;
        };
        ASSERT_TRUE(waitForLines(1));
        tapWithThree(pad);
        ASSERT_TRUE(waitForLines(3));
        record.end(signal);
        EXPECT_TRUE(kinesta("replay --json " + file + " > " + (folder / "told")));
        EXPECT_NE(readText(folder / "told").find(R"("gesture":"singleTap","fingers":3)"), std::string::npos);
        std::filesystem::remove(file);
    }
}

TEST_F(Daemon, DoctorKnowsHowManyFingersThePadTells) {
    for (const int fingers : {2, 3}) {
        const VirtualTouchpad pad({.slots = 2, .fingers = fingers, .pressureResolution = 10, .maximumPressure = 1000});
        EXPECT_EQ(kinesta("doctor > " + (folder / "told")), fingers == 3);
        const bool isTold =
            readText(folder / "told").find("tells of 2 fingers at once and no more.") != std::string::npos;
        EXPECT_EQ(isTold, fingers == 2) << readText(folder / "told");
    }
}

TEST_F(Daemon, MonitorTellsAndPerformsNothingAndDoctorIsContent) {
    VirtualTouchpad pad({.pressureResolution = 10, .maximumPressure = 1000});
    EXPECT_TRUE(kinesta("devices --json | grep -q '\"name\": \"Virtual Touchpad\"'"));
    EXPECT_TRUE(kinesta("doctor > " + (folder / "told")));
    EXPECT_NE(readText(folder / "told").find("✓ Touchpad: Virtual Touchpad at /dev/input/"), std::string::npos);
    EXPECT_EQ(readText(folder / "told").find("also reads it"), std::string::npos);
    ::setenv("WAYLAND_DISPLAY", "wayland-0", 1);
    EXPECT_TRUE(kinesta("doctor > " + (folder / "told")));
    ::unsetenv("WAYLAND_DISPLAY");
    EXPECT_NE(readText(folder / "told").find("also reads it while this desktop has it switched off"),
              std::string::npos);
    ProgramRun monitor({"monitor"});
    ASSERT_TRUE(monitor.says("Virtual Touchpad"));
    tapWithThree(pad);
    EXPECT_TRUE(monitor.says("3-finger single tap  →  would run: Middle click"));
    EXPECT_EQ(monitor.end(SIGTERM), 0);
}

}  // namespace
}  // namespace kinesta::vm
