// The appearance of the system, and of the display.
#include <AppKit/AppKit.h>

#include "Fakes.h"
#include "Registrations.h"

const NSAppearanceName NSAppearanceNameAqua = @"NSAppearanceNameAqua";
const NSAppearanceName NSAppearanceNameDarkAqua = @"NSAppearanceNameDarkAqua";

namespace {

NSAppearanceName systemAppearance = NSAppearanceNameAqua;

}  // namespace

@implementation NSAppearance {
    NSAppearanceName _name;
}
+ (NSAppearance*)appearanceNamed:(NSAppearanceName)name {
    NSAppearance* const appearance = [NSAppearance new];
    appearance->_name = name;
    return appearance;
}
- (NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName>*)names {
    for (NSAppearanceName name in names)
        if ([name isEqual:_name])
            return name;
    return nil;
}
- (const char*)recordedText {
    return _name.UTF8String;
}
@end

@implementation NSApplication (FakeAppearance)
- (NSAppearance*)appearance {
    return nil;
}
- (void)setAppearance:(NSAppearance*)appearance {
}
- (NSAppearance*)effectiveAppearance {
    return [NSAppearance appearanceNamed:systemAppearance];
}
@end

@interface NSWorkspace ()
@property(readwrite) BOOL accessibilityDisplayShouldIncreaseContrast;
@property(readwrite) BOOL accessibilityDisplayShouldReduceMotion;
@property(readwrite) BOOL accessibilityDisplayShouldReduceTransparency;
@end

namespace kinesta::fakes {

void chooseAppearance(NSAppearanceName name) {
    systemAppearance = name;
    changed(NSApplication.sharedApplication, @"effectiveAppearance");
}

void choose(DisplayOption option, bool isOn) {
    NSWorkspace* const workspace = NSWorkspace.sharedWorkspace;
    if (option == DisplayOption::reduceMotion)
        workspace.accessibilityDisplayShouldReduceMotion = isOn;
    else if (option == DisplayOption::reduceTransparency)
        workspace.accessibilityDisplayShouldReduceTransparency = isOn;
    else
        workspace.accessibilityDisplayShouldIncreaseContrast = isOn;
    post(workspace.notificationCenter, NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification);
}

static const OnReset appearance([] {
    systemAppearance = NSAppearanceNameAqua;
    for (const auto option :
         {DisplayOption::reduceMotion, DisplayOption::reduceTransparency, DisplayOption::increaseContrast})
        choose(option, false);
});

}  // namespace kinesta::fakes
