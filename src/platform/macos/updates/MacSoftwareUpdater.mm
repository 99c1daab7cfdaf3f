#include "platform/macos/updates/MacSoftwareUpdater.h"

#include <Foundation/Foundation.h>

#include <initializer_list>
#include <utility>

#include "app/SoftwareUpdateController.h"
#include "platform/macos/foundation/KeyValueObservation.h"
#include "platform/macos/foundation/NsTexts.h"

// What we use of the framework, from memory: every method is asked for before its first use.

@protocol KinestaUpdater <NSObject>
@property(readonly) BOOL canCheckForUpdates;
@property BOOL automaticallyChecksForUpdates;
@end

@protocol KinestaUpdaterController <NSObject>
- (nullable instancetype)initWithStartingUpdater:(BOOL)isStarting
                                 updaterDelegate:(nullable id)updaterDelegate
                              userDriverDelegate:(nullable id)userDriverDelegate;
@property(nullable, readonly) NSObject<KinestaUpdater>* updater;
- (void)startUpdater;
- (void)checkForUpdates:(nullable id)sender;
@end

@interface KinestaUpdaterDelegate : NSObject
@end

@implementation KinestaUpdaterDelegate
- (NSArray<NSString*>*)allowedSystemProfileKeysForUpdater:(id)updater {
    return kinesta::nsTexts(kinesta::SoftwareUpdateController::allowedSystemProfileKeys());
}
@end

namespace kinesta {
namespace {

NSString* const kFramework = @"Sparkle.framework";
NSString* const kController = @"SPUStandardUpdaterController";

NSString* const kCanCheck = @"canCheckForUpdates";
NSString* const kChecksAutomatically = @"automaticallyChecksForUpdates";

/// Nil if the framework cannot be loaded, or does not have it.
Class controllerClass() {
    NSURL* const url = [NSBundle.mainBundle.privateFrameworksURL URLByAppendingPathComponent:kFramework];
    NSBundle* const framework = url ? [NSBundle bundleWithURL:url] : nil;
    return [framework loadAndReturnError:nil] ? [framework classNamed:kController] : nil;
}

bool makesAll(Class type, std::initializer_list<SEL> selectors) {
    for (const SEL selector : selectors)
        if (![type instancesRespondToSelector:selector])
            return false;
    return true;
}

bool canAll(id object, std::initializer_list<SEL> selectors) {
    for (const SEL selector : selectors)
        if (![object respondsToSelector:selector])
            return false;
    return true;
}

}  // namespace

struct MacSoftwareUpdater::Impl {
    /// The framework keeps it weakly.
    KinestaUpdaterDelegate* delegate = [KinestaUpdaterDelegate new];
    id<KinestaUpdaterController> controller = nil;
    NSObject<KinestaUpdater>* updater = nil;
    std::unique_ptr<KeyValueObservation> canCheck;
    std::unique_ptr<KeyValueObservation> checksAutomatically;
};

std::unique_ptr<SoftwareUpdater> MacSoftwareUpdater::make() {
    const Class type = controllerClass();
    if (!makesAll(type, {
            @selector(initWithStartingUpdater:updaterDelegate:userDriverDelegate:), @selector(updater),
                @selector(startUpdater), @selector(checkForUpdates:)
        }))
        return nullptr;
    auto impl = std::make_unique<Impl>();
    impl->controller = [[type alloc] initWithStartingUpdater:NO updaterDelegate:impl->delegate userDriverDelegate:nil];
    impl->updater = impl->controller.updater;
    if (!canAll(impl->updater, {
            @selector(canCheckForUpdates), @selector(automaticallyChecksForUpdates),
                @selector(setAutomaticallyChecksForUpdates:)
        }))
        return nullptr;
    return std::unique_ptr<SoftwareUpdater>(new MacSoftwareUpdater(std::move(impl)));
}

MacSoftwareUpdater::MacSoftwareUpdater(std::unique_ptr<Impl> impl) : m_impl(std::move(impl)) {}

MacSoftwareUpdater::~MacSoftwareUpdater() = default;

void MacSoftwareUpdater::start() {
    [m_impl->controller startUpdater];
    m_impl->canCheck = std::make_unique<KeyValueObservation>(
        m_impl->updater, kCanCheck, [this] { m_canCheckForUpdates.set(m_impl->updater.canCheckForUpdates); });
    m_impl->checksAutomatically = std::make_unique<KeyValueObservation>(m_impl->updater, kChecksAutomatically, [this] {
        m_automaticallyChecksForUpdates.set(m_impl->updater.automaticallyChecksForUpdates);
    });
}

void MacSoftwareUpdater::checkForUpdates() { [m_impl->controller checkForUpdates:nil]; }

void MacSoftwareUpdater::setAutomaticallyChecksForUpdates(bool isAutomatic) {
    m_impl->updater.automaticallyChecksForUpdates = isAutomatic;
}

}  // namespace kinesta
