// User defaults, bundles and what they are made of.
#include <Foundation/Foundation.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <utility>

#include "Fakes.h"
#include "Registrations.h"

const NSNotificationName NSUserDefaultsDidChangeNotification = @"NSUserDefaultsDidChangeNotification";

namespace {

using Values = std::map<std::string, id>;

/// By domain.
std::map<std::string, Values>& settings() {
    static auto& all = *new std::map<std::string, Values>;
    return all;
}

/// By path; the main bundle has none.
std::map<std::string, Values>& information() {
    static auto& all = *new std::map<std::string, Values>;
    return all;
}

struct Framework {
    std::string className;
    Class type;
    bool loads;
};

/// By path.
std::map<std::string, Framework>& frameworks() {
    static auto& all = *new std::map<std::string, Framework>;
    return all;
}

int uuids = 0;

}  // namespace

@implementation NSUserDefaults {
    std::string _domain;
}
+ (NSUserDefaults*)standardUserDefaults {
    static NSUserDefaults* const defaults = [NSUserDefaults new];
    defaults->_domain = kinesta::fakes::bundleIdentifier.UTF8String;
    return defaults;
}
- (instancetype)initWithSuiteName:(NSString*)suite {
    if ([suite isEqual:kinesta::fakes::bundleIdentifier])
        return nil;
    if ((self = [super init]))
        _domain = suite.UTF8String;
    return self;
}
- (id)objectForKey:(NSString*)key {
    const auto found = settings()[_domain].find(key.UTF8String);
    return found == settings()[_domain].end() ? nil : found->second;
}
- (void)setObject:(id)value forKey:(NSString*)key {
    if (value)
        settings()[_domain][key.UTF8String] = value;
    else
        settings()[_domain].erase(key.UTF8String);
    kinesta::fakes::changed(self, key);
    kinesta::fakes::post(NSNotificationCenter.defaultCenter, NSUserDefaultsDidChangeNotification);
}
- (BOOL)synchronize {
    return kinesta::fakes::canStore;
}
@end

@implementation NSUUID {
    std::string _text;
}
+ (instancetype)UUID {
    NSUUID* const uuid = [self new];
    uuid->_text = "UUID-" + std::to_string(++uuids);
    return uuid;
}
- (NSString*)UUIDString {
    return [NSString stringWithUTF8String:_text.c_str()];
}
@end

@interface NSObject (Recorded)
- (const char*)recordedText;
@end

@implementation NSObject (Description)
- (NSString*)description {
    return @"described";
}
@end

@implementation NSJSONSerialization
+ (BOOL)isValidJSONObject:(id)object {
    return [object isKindOfClass:[NSArray class]];
}
+ (NSData*)dataWithJSONObject:(id)object options:(NSJSONWritingOptions)options error:(NSError**)error {
    if (![self isValidJSONObject:object])
        std::abort();
    const std::string text = [object recordedText];
    return [NSData dataWithBytes:text.data() length:text.size()];
}
@end

@implementation NSError {
    NSString* _text;
}
+ (NSError*)errorWithText:(const char*)text {
    NSError* const error = [self new];
    error->_text = [NSString stringWithUTF8String:text];
    return error;
}
- (NSString*)localizedDescription {
    return _text;
}
@end

@implementation NSURL {
    std::string _text;
}
+ (NSURL*)withText:(std::string)text {
    NSURL* const url = [self new];
    url->_text = std::move(text);
    return url;
}
+ (instancetype)URLWithString:(NSString*)string {
    const std::string text = string.UTF8String;
    for (const char c : text)
        if (c <= ' ')
            return nil;
    return [self withText:text];
}
+ (NSURL*)fileURLWithPath:(NSString*)path {
    return [self withText:path.UTF8String];
}
- (NSString*)scheme {
    return [NSString stringWithUTF8String:_text.substr(0, _text.find(':')).c_str()];
}
- (NSURL*)URLByStandardizingPath {
    return [NSURL withText:std::filesystem::path(_text).lexically_normal().string()];
}
- (NSURL*)URLByAppendingPathComponent:(NSString*)component {
    return [NSURL withText:_text + "/" + component.UTF8String];
}
- (id)copyWithZone:(NSZone*)zone {
    return self;
}
- (const char*)recordedText {
    return _text.c_str();
}
@end

@implementation NSString (FakePaths)
- (NSString*)stringByExpandingTildeInPath {
    const std::string text = self.UTF8String;
    if (!text.starts_with("~") || text == "~nobody")
        return self;
    return [NSString stringWithUTF8String:(text == "~" ? kinesta::fakes::home : "/Users/" + text.substr(1)).c_str()];
}
@end

@implementation NSFileManager
+ (NSFileManager*)defaultManager {
    static NSFileManager* const manager = [NSFileManager new];
    return manager;
}
- (NSString*)displayNameAtPath:(NSString*)path {
    const std::string name = std::filesystem::path(path.UTF8String).filename();
    return name == "Calendar.app" ? @"Kalender" : [NSString stringWithUTF8String:name.c_str()];
}
@end

@implementation NSBundle {
    std::string _path;
}
+ (NSBundle*)mainBundle {
    static NSBundle* const bundle = [NSBundle new];
    return bundle;
}
+ (instancetype)bundleWithURL:(NSURL*)url {
    if (!url)
        std::abort();
    const std::string path = [url recordedText];
    if (!information().contains(path) && !frameworks().contains(path))
        return nil;
    NSBundle* const bundle = [self new];
    bundle->_path = path;
    return bundle;
}
- (NSURL*)privateFrameworksURL {
    return frameworks().empty() ? nil : [NSURL fileURLWithPath:@"/Frameworks"];
}
- (NSString*)executablePath {
    return @"/Applications/Kinesta.app/Contents/MacOS/Kinesta";
}
- (NSString*)bundleIdentifier {
    return kinesta::fakes::bundleIdentifier;
}
- (id)objectForInfoDictionaryKey:(NSString*)key {
    return information()[_path][key.UTF8String];
}
- (BOOL)loadAndReturnError:(NSError**)error {
    return frameworks()[_path].loads;
}
- (Class)classNamed:(NSString*)name {
    const Framework& framework = frameworks()[_path];
    return framework.className == name.UTF8String ? framework.type : nil;
}
@end

namespace kinesta::fakes {

NSString* bundleIdentifier = @"com.orvane.kinesta";
bool canStore = true;

void setInformation(NSString* key, id value) { setInformation(@"", key, value); }
void setInformation(NSString* path, NSString* key, id value) { information()[path.UTF8String][key.UTF8String] = value; }

void installFramework(NSString* path, NSString* className, Class type, bool loads) {
    frameworks()[std::string("/Frameworks/") + path.UTF8String] = {className.UTF8String, type, loads};
}

void storeElsewhere(NSString* key, id value) {
    settings()["com.orvane.kinesta"][key.UTF8String] = value;
    changed(nil, key);
}

std::string home = "/Users/ada";

void forgetValues() {
    settings().clear();
    information().clear();
    frameworks().clear();
    bringToFront(0);
}

static const OnReset values([] {
    bundleIdentifier = @"com.orvane.kinesta";
    (void)@[ NSUserDefaults.standardUserDefaults, NSFileManager.defaultManager, NSBundle.mainBundle ];
    forgetValues();
    canStore = true;
    uuids = 0;
});

}  // namespace kinesta::fakes
