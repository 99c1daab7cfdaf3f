#include <gtest/gtest.h>
#include <sys/stat.h>

#include "desktop/harness/AccessibleProgram.h"
#include "desktop/harness/ApplicationProcess.h"
#include "support/TemporaryFolder.h"

namespace kinesta::testing {
namespace {

/// The window of the application as a person uses it.
struct ConfigurationWindow : Application {
    ConfigurationWindow() : Application(TestDesktop::openbox) {
        setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1);
        application = start("");
        EXPECT_TRUE(status().is_object());  // waits until it runs
        EXPECT_EQ(run("ctl show"), "0|");
        program.emplace("Kinesta");
        program->await("frame", "Kinesta");
    }
    ~ConfigurationWindow() override { run("ctl quit"); }

    std::unique_ptr<ChildProcess> application;
    std::optional<AccessibleProgram> program;
};

TEST_F(ConfigurationWindow, IsAWindowForScreenReaders) { program->await("frame", "Kinesta"); }

}  // namespace
}  // namespace kinesta::testing
