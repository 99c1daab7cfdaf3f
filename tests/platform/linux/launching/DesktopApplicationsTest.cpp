#include "platform/linux/launching/DesktopApplications.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/TemporaryFolder.h"

namespace kinesta {
namespace {

namespace fs = std::filesystem;

struct DesktopApplicationsTest : ::testing::Test {
    DesktopApplicationsTest() {
        setenv("XDG_DATA_HOME", (folder / "home").c_str(), 1);
        setenv("XDG_DATA_DIRS", ("relative::" + folder / "near:" + folder / "far:" + folder / "missing").c_str(), 1);
        setenv("XDG_CURRENT_DESKTOP", "Sample:GNOME", 1);
        setenv("LC_ALL", "de_DE.UTF-8", 1);
        setenv("PATH", folder.path().c_str(), 1);
        setenv("HOME", folder.path().c_str(), 1);
        fs::permissions(folder.write("tool", "#!/bin/sh\n"), fs::perms::owner_all);
        folder.write("notes", "");
    }
    ~DesktopApplicationsTest() override {
        unsetenv("LC_ALL");
        setenv("PATH", m_path.c_str(), 1);
        setenv("HOME", m_home.c_str(), 1);
        unsetenv("XDG_DATA_HOME");
        unsetenv("XDG_DATA_DIRS");
    }
    /// Writes a file in the applications of a data folder.
    void install(const std::string& data, const std::string& name, const std::string& keys) {
        const fs::path path = fs::path(folder / data) / "applications" / name;
        fs::create_directories(path.parent_path());
        writeText(path, "[Desktop Entry]\nType=Application\nExec=tool %U\n" + keys);
    }
    /// "Name at data/applications/file" of each, in order.
    std::vector<std::string> names() const {
        std::vector<std::string> result;
        for (const auto& each : DesktopApplications().all())
            result.push_back(each.name + " at " + fs::relative(each.path, folder.path()).string());
        return result;
    }

    std::string m_path = std::getenv("PATH");
    std::string m_home = std::getenv("HOME");
    TemporaryFolder folder;
};

TEST_F(DesktopApplicationsTest, ListsWhatTheMenuShows) {
    install("far", "b.desktop", "Name=beta\nName[de]=Äpfel\n");
    install("far", "a.desktop", "Name=Alpha\n");
    install("near", "a.desktop", "Name=alpha, newer\nIcon=alpha\n");
    install("home", "sub/c.desktop", "Name=Gamma\n");
    install("near", "sub-c.desktop", "Name=shadowed from below\n");
    install("home", "deleted.desktop", "Name=Deleted\nHidden=true\n");
    install("far", "deleted.desktop", "Name=Deleted\n");
    install("far", "helper.desktop", "Name=Helper\nNoDisplay=true\n");
    install("far", "other.desktop", "Name=Of another desktop\nOnlyShowIn=KDE;XFCE;\n");
    install("far", "own.desktop", "Name=Of this one\nOnlyShowIn=KDE;GNOME;\n");
    install("far", "not.desktop", "Name=Not here\nNotShowIn=Sample;\n");
    install("far", "gone.desktop", "Name=Gone\nTryExec=gone\n");
    install("far", "there.desktop", "Name=Tried\nTryExec=tool\n");
    install("far", "notes.desktop", "Name=No program\nTryExec=" + folder / "notes" + "\n");
    writeText(folder / "far/applications/link.desktop", "[Desktop Entry]\nType=Link\nName=Link\n");
    writeText(folder / "far/applications/codes.desktop", "[Desktop Entry]\nType=Application\nExec=%U\nName=Codes\n");
    install("far", "bytes.desktop", "Name=\xFF\xFE\nIcon=\xFF\n");
    install("far", "read.me", "Name=No desktop file\n");
    fs::create_directory_symlink(folder / "far/applications", folder / "far/applications/loop");
    const std::vector<std::string> expected{
        "alpha, newer at near/applications/a.desktop", "bytes at far/applications/bytes.desktop",
        "Gamma at home/applications/sub/c.desktop",    "Of this one at far/applications/own.desktop",
        "Tried at far/applications/there.desktop",     "Äpfel at far/applications/b.desktop"};
    EXPECT_EQ(names(), expected);
}

TEST_F(DesktopApplicationsTest, KnowsWhatStandsAtAPath) {
    install("near", "a.desktop", "Name=Alpha\nName[de]=Alfa\nIcon=alpha\n");
    const DesktopApplications applications;
    const std::string file = folder / "near/applications/a.desktop";
    EXPECT_EQ(applications.at(file), (InstalledApplication{"Alfa", file, "alpha"}));
    EXPECT_EQ(applications.at(folder / "tool"), (InstalledApplication{"tool", folder / "tool", ""}));
    for (const std::string& none : {folder / "notes", folder.path().string(), folder / "missing", std::string(),
                                    folder / "missing.desktop", std::string("tool")})
        EXPECT_FALSE(applications.at(none)) << none;
}

}  // namespace
}  // namespace kinesta
