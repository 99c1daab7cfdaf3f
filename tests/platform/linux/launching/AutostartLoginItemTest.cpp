#include "platform/linux/launching/AutostartLoginItem.h"

#include <gtest/gtest.h>

#include "support/CallLog.h"
#include "support/TemporaryFolder.h"

namespace kinesta::testing {
namespace {

struct AutostartLoginItemTest : ::testing::Test, ProcessLauncher, Workspace {
    AutostartLoginItemTest() {
        std::filesystem::create_directories(program.parent_path());
        writeText(program, "");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        setenv("XDG_CURRENT_DESKTOP", "Test", 1);
    }
    void launch(std::string executable, std::vector<std::string> arguments) override {
        log.add(executable + " " + joined(arguments));
    }
    void openURL(const std::string&) override {}
    void openFile(const std::string& path) override { log.add("open " + path); }
    void launchApplication(const std::string&, const std::vector<std::string>&) override {}
    std::optional<ProcessIdentifier> frontmostApplication() override { return std::nullopt; }
    ProcessIdentifier ownProcessIdentifier() override { return 0; }

    TemporaryFolder folder;
    std::filesystem::path program = folder.path() / R"(a "b" $c`d` e\f 100%u #!)" / "kinesta";
    AutostartLoginItem item{program.string(), *this, *this};
    std::filesystem::path autostart = std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "autostart";
    std::filesystem::path file = autostart / "com.orvane.kinesta.desktop";
    CallLog log;
};

TEST_F(AutostartLoginItemTest, IsWhatTheFileOfTheDesktopSays) {
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
    ASSERT_TRUE(item.registerItem());
    EXPECT_EQ(item.status(), LoginItemStatus::enabled) << readText(file);
    const std::string enabled = readText(file);
    EXPECT_NE(enabled.find(R"(a \\"b\\" \\$c\\`d\\` e\\\\f 100%%u #!/kinesta" --background)"), std::string::npos)
        << enabled;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(autostart), {}), 1) << "nothing else stays behind";

    const std::string off = "[Desktop Entry]\nType=Application\nName=Kinesta\nExec=kinesta\n";
    for (const auto& [content, status] :
         {std::pair{enabled + "Hidden=true\n", LoginItemStatus::requiresApproval},
          {std::string("[Desktop Entry]\nHidden=true\n"), LoginItemStatus::requiresApproval},
          {enabled + "X-GNOME-Autostart-enabled=false\n", LoginItemStatus::requiresApproval},
          {enabled + "X-GNOME-Autostart-enabled=true\n[Other]\nHidden=true\n", LoginItemStatus::enabled},
          {enabled + "OnlyShowIn=GNOME;KDE;\n", LoginItemStatus::requiresApproval},
          {enabled + "OnlyShowIn=GNOME;Test;\n", LoginItemStatus::enabled},
          {enabled + "NotShowIn=Test;\n", LoginItemStatus::requiresApproval},
          {off, LoginItemStatus::notFound},
          {std::string("damaged"), LoginItemStatus::notFound}}) {
        writeText(file, content);
        EXPECT_EQ(item.status(), status) << content;
        EXPECT_TRUE(item.registerItem());
        const bool isKept = status == LoginItemStatus::requiresApproval;
        EXPECT_EQ(readText(file), isKept ? content : enabled);
    }
    std::filesystem::remove(program);
    EXPECT_EQ(item.status(), LoginItemStatus::notFound);
    EXPECT_TRUE(item.unregisterItem());
    EXPECT_TRUE(item.unregisterItem());
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
}

TEST_F(AutostartLoginItemTest, SaysWhyItFails) {
    writeText(autostart, "a file in place of the folder");
    EXPECT_EQ(item.registerItem().error().message,
              "The start at login cannot be changed: " + autostart.string() + ": Not a directory");
    EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
    EXPECT_NE(item.openSettings().error().message.find("delete " + file.string()), std::string::npos);
    folder.write("systemsettings", "");
    std::filesystem::permissions(folder / "systemsettings", std::filesystem::perms::owner_all);
    setenv("PATH", folder.path().c_str(), 1);
    setenv("XDG_CURRENT_DESKTOP", "KDE", 1);
    EXPECT_TRUE(item.openSettings());
    EXPECT_EQ(joined(log.take()), "open " + autostart.string() + "; systemsettings kcm_autostart");
}

}  // namespace
}  // namespace kinesta::testing
