#include "platform/macos/workspace/MacWorkspace.h"

#include <AppKit/AppKit.h>

#include <algorithm>

#include "platform/macos/foundation/NsTexts.h"
#include "support/Text.h"

namespace kinesta {
namespace {

NSURL* fileURL(const std::string& path) { return [NSURL fileURLWithPath:nsText(path)]; }

}  // namespace

void MacWorkspace::openURL(const std::string& url) {
    // Nil for what the system does not accept as an address; before macOS 14 that is every address with letters beyond
    // ASCII (from memory).
    NSURL* const address = [NSURL URLWithString:nsText(url)];
    // By the system's own reading: what it takes for another scheme could start any program.
    NSString* const scheme = address.scheme.lowercaseString;
    if (address && ([scheme isEqualToString:@"http"] || [scheme isEqualToString:@"https"]))
        [NSWorkspace.sharedWorkspace openURL:address];
}

void MacWorkspace::openFile(const std::string& path) {
    if (!isUtf8(path))
        return;
    if (NSURL* const file = fileURL(path).URLByStandardizingPath)
        [NSWorkspace.sharedWorkspace openURL:file];
}

void MacWorkspace::launchApplication(const std::string& path, const std::vector<std::string>& arguments) {
    if (!isUtf8(path) || !std::ranges::all_of(arguments, [](const auto& each) { return isUtf8(each); }))
        return;
    NSWorkspaceOpenConfiguration* const configuration = [NSWorkspaceOpenConfiguration configuration];
    configuration.arguments = nsTexts(arguments);
    const HandOvers::Request request = m_handOvers.begin();
    // The handler is called on a queue of its own, and given up afterwards (from memory).
    [NSWorkspace.sharedWorkspace openApplicationAtURL:fileURL(path)
                                        configuration:configuration
                                    completionHandler:^(NSRunningApplication*, NSError*) {
                                      (void)request;
                                    }];
}

std::optional<ProcessIdentifier> MacWorkspace::frontmostApplication() {
    NSRunningApplication* const application = NSWorkspace.sharedWorkspace.frontmostApplication;
    // -1 while an application has no process.
    if (application.processIdentifier <= 0)
        return std::nullopt;
    return application.processIdentifier;
}

ProcessIdentifier MacWorkspace::ownProcessIdentifier() { return NSProcessInfo.processInfo.processIdentifier; }

}  // namespace kinesta
