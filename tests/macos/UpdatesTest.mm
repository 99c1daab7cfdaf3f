#include "MacTest.h"
#include "platform/macos/updates/MacBundleInformation.h"
#include "platform/macos/updates/MacSoftwareUpdater.h"

// The update framework, whole and with parts missing.

@class FrameworkController;

namespace {

__weak FrameworkController* current = nil;
std::vector<std::string> received;
SEL missing = nullptr;
bool hasUpdater = true;

}  // namespace

@interface FrameworkUpdater : NSObject
@property BOOL canCheckForUpdates;
@property BOOL automaticallyChecksForUpdates;
@end
@implementation FrameworkUpdater
- (BOOL)respondsToSelector:(SEL)selector {
    return selector != missing && [super respondsToSelector:selector];
}
@end

@interface FrameworkController : NSObject
@property(weak) id delegate;
@property(strong) FrameworkUpdater* updater;
@end

@interface NSObject (UpdaterDelegate)
- (NSArray*)allowedSystemProfileKeysForUpdater:(id)updater;
@end

@implementation FrameworkController
+ (BOOL)instancesRespondToSelector:(SEL)selector {
    return selector != missing && [super instancesRespondToSelector:selector];
}
- (instancetype)initWithStartingUpdater:(BOOL)isStarting
                        updaterDelegate:(id)delegate
                     userDriverDelegate:(id)userDriverDelegate {
    if ((self = [super init])) {
        received.push_back(isStarting || userDriverDelegate ? "wrong init" : "init");
        self.delegate = delegate;
        self.updater = hasUpdater ? [FrameworkUpdater new] : nil;
        current = self;
    }
    return self;
}
- (void)startUpdater {
    received.emplace_back("start");
    self.updater.canCheckForUpdates = YES;
}
- (void)checkForUpdates:(id)sender {
    received.emplace_back("check");
}
@end

namespace kinesta {
namespace {

class UpdatesOnTheMac : public MacTest {
  protected:
    UpdatesOnTheMac() {
        received.clear();
        missing = nullptr;
        hasUpdater = true;
    }
    ~UpdatesOnTheMac() override { fakes::forgetValues(); }

    static std::unique_ptr<SoftwareUpdater> updaterOf(Class controller,
                                                      NSString* name = @"SPUStandardUpdaterController") {
        fakes::installFramework(@"Sparkle.framework", name, controller);
        return MacSoftwareUpdater::make();
    }
};

TEST_F(UpdatesOnTheMac, DriveTheFrameworkAndFollowIt) {
    @autoreleasepool {
        auto updater = updaterOf([FrameworkController class]);
        ASSERT_TRUE(updater);
        EXPECT_EQ(received, Calls{"init"});
        EXPECT_FALSE(updater->canCheckForUpdates().value());
        updater->start();
        EXPECT_EQ(received, (Calls{"init", "start"}));
        EXPECT_TRUE(updater->canCheckForUpdates().value());
        EXPECT_FALSE(updater->automaticallyChecksForUpdates().value());
        updater->setAutomaticallyChecksForUpdates(true);
        FrameworkController* const controller = current;
        EXPECT_TRUE(controller.updater.automaticallyChecksForUpdates);
        fakes::isOnAnotherThread = true;
        fakes::changed(controller.updater, @"automaticallyChecksForUpdates");
        EXPECT_FALSE(updater->automaticallyChecksForUpdates().value());
        fakes::drainMainQueue();
        EXPECT_TRUE(updater->automaticallyChecksForUpdates().value());
        updater->checkForUpdates();
        EXPECT_EQ(received.back(), "check");
        NSArray* const keys = [controller.delegate allowedSystemProfileKeysForUpdater:controller.updater];
        EXPECT_TRUE(keys && keys.count == 0);
        fakes::changed(controller.updater, @"canCheckForUpdates");
        updater.reset();
        fakes::drainMainQueue();
    }
    EXPECT_EQ(current, nil);
}

TEST_F(UpdatesOnTheMac, DoWithoutAFrameworkThatLacksAnything) {
    @autoreleasepool {
        EXPECT_FALSE(MacSoftwareUpdater::make());
        fakes::installFramework(@"Sparkle.framework", @"SPUStandardUpdaterController", [FrameworkController class],
                                false);
        EXPECT_FALSE(MacSoftwareUpdater::make());
        EXPECT_FALSE(updaterOf([FrameworkController class], @"Other"));
        const SEL needed[] = {
            @selector(initWithStartingUpdater:updaterDelegate:userDriverDelegate:),
            @selector(startUpdater),
            @selector(checkForUpdates:),
            @selector(updater),
            @selector(canCheckForUpdates),
            @selector(automaticallyChecksForUpdates),
            @selector(setAutomaticallyChecksForUpdates:)
        };
        for (const SEL selector : needed) {
            missing = selector;
            EXPECT_FALSE(updaterOf([FrameworkController class]));
        }
        EXPECT_EQ(received, (Calls{"init", "init", "init"}));
        missing = nullptr;
        hasUpdater = false;
        EXPECT_FALSE(updaterOf([FrameworkController class]));
    }
}

TEST_F(UpdatesOnTheMac, ReadWhatTheBundleSays) {
    @autoreleasepool {
        fakes::setInformation(@"SUFeedURL", @"https://a.example");
        fakes::setInformation(@"SUPublicEDKey", @7);
        const MacBundleInformation bundle;
        EXPECT_EQ(bundle.string("SUFeedURL"), "https://a.example");
        EXPECT_TRUE(bundle.contains("SUPublicEDKey"));
        EXPECT_EQ(bundle.string("SUPublicEDKey"), std::nullopt);
        EXPECT_FALSE(bundle.contains("other"));
    }
}

}  // namespace
}  // namespace kinesta
