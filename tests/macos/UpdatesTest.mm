#include "MacTest.h"
#include "platform/macos/updates/MacBundleInformation.h"
#include "platform/macos/updates/MacSoftwareUpdater.h"

// The update framework, whole and with parts missing.

@interface FrameworkUpdater : NSObject
@property BOOL canCheckForUpdates;
@property BOOL automaticallyChecksForUpdates;
@end
@implementation FrameworkUpdater
@end

@interface FrameworkController : NSObject
@property(weak) id delegate;
@property(strong) FrameworkUpdater* updater;
@end

namespace {

__weak FrameworkController* current = nil;
std::vector<std::string> received;

}  // namespace

@interface OldUpdater : NSObject
@property(readonly) BOOL canCheckForUpdates;
@end
@implementation OldUpdater
@end

@interface NSObject (UpdaterDelegate)
- (NSArray*)allowedSystemProfileKeysForUpdater:(id)updater;
@end

@implementation FrameworkController
- (instancetype)initWithStartingUpdater:(BOOL)isStarting
                        updaterDelegate:(id)delegate
                     userDriverDelegate:(id)userDriverDelegate {
    if ((self = [super init])) {
        received.push_back(isStarting || userDriverDelegate ? "wrong init" : "init");
        self.delegate = delegate;
        self.updater = [FrameworkUpdater new];
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

@interface ControllerOfOldUpdater : FrameworkController
@end
@implementation ControllerOfOldUpdater
- (id)updater {
    return [OldUpdater new];
}
@end

@interface ControllerWithoutUpdater : FrameworkController
@end
@implementation ControllerWithoutUpdater
- (FrameworkUpdater*)updater {
    return nil;
}
@end

namespace kinesta {
namespace {

class UpdatesOnTheMac : public MacTest {
  protected:
    UpdatesOnTheMac() { received.clear(); }
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
        EXPECT_FALSE(updaterOf(nil));
        EXPECT_FALSE(updaterOf([FrameworkController class], @"Other"));
        EXPECT_FALSE(updaterOf([NSObject class]));
        EXPECT_EQ(received, Calls{});
        EXPECT_FALSE(updaterOf([ControllerOfOldUpdater class]));
        EXPECT_FALSE(updaterOf([ControllerWithoutUpdater class]));
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
