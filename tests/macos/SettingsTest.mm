#include <limits>

#include "MacTest.h"
#include "platform/macos/settings/MacUserDefaults.h"

namespace kinesta {
namespace {

class UserDefaultsOnTheMac : public MacTest {
  protected:
    static constexpr const char* domain = "com.orvane.kinesta";

    ~UserDefaultsOnTheMac() override { fakes::forgetValues(); }
};

TEST_F(UserDefaultsOnTheMac, KeepTheTypesApart) {
    @autoreleasepool {
        MacUserDefaults defaults(domain);
        struct Row {
            id stored;
            const char* types;  // what reads it: Boolean, Integer, Real, String, Data
            const char* text;
        };
        const Row rows[] = {{@YES, "B", "true"},
                            {@1, "IR", "1"},
                            {@(-9007199254740993LL), "IR", "-9007199254740993"},
                            {@18446744073709551615ULL, "R", "18446744073709551616"},
                            {@1.0, "R", "1"},
                            {@0.25, "R", "0.25"},
                            {@"1", "S", "1"},
                            {@"", "S", ""},
                            {[NSData dataWithBytes:"\0\xff" length:2], "D", nullptr},
                            {[NSData dataWithBytes:nullptr length:0], "D", ""},
                            {@[ @1, @"a" ], "", "[1, \"a\"]"},
                            {[NSObject new], "", "described"},
                            {nil, nullptr, nullptr}};
        for (const Row& row : rows) {
            fakes::storeElsewhere(@"key.v1", row.stored);
            std::string types;
            types += defaults.boolean("key.v1") ? "B" : "";
            types += defaults.integer("key.v1") ? "I" : "";
            types += defaults.real("key.v1") ? "R" : "";
            types += defaults.string("key.v1") ? "S" : "";
            types += defaults.data("key.v1") ? "D" : "";
            EXPECT_EQ(types, row.types ? row.types : "");
            EXPECT_EQ(defaults.contains("key.v1"), row.types != nullptr);
            if (row.text)
                EXPECT_EQ(defaults.anyAsText("key.v1"), row.text);
        }
        defaults.setBoolean("b.v1", false);
        defaults.setInteger("i.v1", std::numeric_limits<std::int64_t>::min());
        defaults.setReal("r.v1", 1);
        defaults.setString("s.v1", "ünï");
        defaults.setData("d.v1", std::string("\0\n", 2));
        EXPECT_EQ(defaults.boolean("b.v1"), false);
        EXPECT_EQ(defaults.integer("i.v1"), std::numeric_limits<std::int64_t>::min());
        EXPECT_EQ(defaults.real("r.v1"), 1);
        EXPECT_EQ(defaults.integer("r.v1"), std::nullopt);
        EXPECT_EQ(defaults.string("s.v1"), "ünï");
        EXPECT_EQ(defaults.data("d.v1"), std::string("\0\n", 2));
        (void)objc::takeCalls();
        defaults.remove("b.v1");
        EXPECT_FALSE(defaults.contains("b.v1"));
        EXPECT_EQ(objc::takeCalls(), (Calls{"NSUserDefaults#1 setObject:nil forKey:\"b.v1\"",
                                            "NSUserDefaults#1 setObject:\"UUID-6\" forKey:\"settingsRevision\"",
                                            "NSUserDefaults#1 objectForKey:\"b.v1\""}));
        EXPECT_TRUE(defaults.save());
        fakes::canStore = false;
        EXPECT_FALSE(defaults.save());
    }
}

TEST_F(UserDefaultsOnTheMac, AreThoseOfTheApplicationInOtherPrograms) {
    @autoreleasepool {
        {
            MacUserDefaults application(domain);
            application.setInteger("a.v1", 1);
            EXPECT_EQ(objc::takeCalls().front(), "NSUserDefaults#1 setObject:1 forKey:\"a.v1\"");
        }
        fakes::bundleIdentifier = nil;  // a program outside of the bundle
        MacUserDefaults program(domain);
        EXPECT_EQ(objc::takeCalls(), Calls{"NSUserDefaults#2 initWithSuiteName:\"com.orvane.kinesta\""});
        EXPECT_EQ(program.integer("a.v1"), 1);
    }
}

TEST_F(UserDefaultsOnTheMac, TellOnceOfWhatOthersHaveChanged) {
    @autoreleasepool {
        int changes = 0;
        auto defaults = std::make_unique<MacUserDefaults>(domain);
        defaults->setInteger("own.v1", 1);
        EXPECT_EQ(defaults->integer("absent.v1"), std::nullopt);
        defaults->watch([&] {
            ++changes;
            EXPECT_TRUE(defaults->reload());
        });
        defaults->setInteger("own.v1", 2);
        fakes::drainMainQueue();
        EXPECT_EQ(changes, 0);
        EXPECT_FALSE(defaults->reload());

        fakes::storeElsewhere(@"absent.v1", @5);
        EXPECT_EQ(defaults->integer("absent.v1"), 5);  // to read a change is not to act on it
        fakes::storeElsewhere(@"never read.v1", @5);
        fakes::isOnAnotherThread = true;
        fakes::storeElsewhere(@"settingsRevision", @"theirs");
        EXPECT_EQ(changes, 0);
        fakes::drainMainQueue();
        EXPECT_EQ(changes, 1);

        fakes::storeElsewhere(@"own.v1", nil);
        fakes::post(NSNotificationCenter.defaultCenter, NSUserDefaultsDidChangeNotification);
        EXPECT_EQ(changes, 1);
        fakes::drainMainQueue();
        EXPECT_EQ(changes, 2);

        fakes::storeElsewhere(@"own.v1", @3);
        fakes::storeElsewhere(@"settingsRevision", @"again");
        fakes::post(NSNotificationCenter.defaultCenter, NSUserDefaultsDidChangeNotification);
        defaults.reset();
        fakes::drainMainQueue();
        EXPECT_EQ(changes, 2);
    }
}

}  // namespace
}  // namespace kinesta
