#include "platform/linux/windows/I3Layout.h"

#include <gtest/gtest.h>

namespace kinesta {
namespace {

TEST(I3Layout, CountsTheTitleBarAsPartOfTheFrame) {
    const auto places = i3Places(R"({"nodes":[
        {"window":1,"rect":{"x":640,"y":32,"width":640,"height":748},"deco_rect":{"x":0,"y":0,"width":640,"height":18},
         "window_rect":{"x":2,"y":18,"width":636,"height":728}},
        {"window":null,"nodes":[7,null,{"window":"no number"}],"floating_nodes":[
          {"window":2,"rect":{"x":0,"y":25,"width":640,"height":672},
           "deco_rect":{"x":0,"y":0,"width":640,"height":25},"window_rect":{"x":2,"y":0,"width":636,"height":670}},
          {"nodes":[{"window":3,"rect":{"x":1e99,"y":-1e99},"deco_rect":[],"window_rect":null}]}]}]})");
    ASSERT_TRUE(places);
    ASSERT_EQ(places->size(), 3U);
    EXPECT_EQ(places->at(1).frame, (WindowRectangle{640, 32, 640, 748})) << "i3";
    EXPECT_EQ(places->at(1).client, (WindowRectangle{642, 50, 636, 728}));
    EXPECT_FALSE(places->at(1).floats);
    EXPECT_EQ(places->at(2).frame, (WindowRectangle{0, 0, 640, 697})) << "sway";
    EXPECT_EQ(places->at(2).client, (WindowRectangle{2, 25, 636, 670}));
    EXPECT_TRUE(places->at(2).floats && places->at(3).floats);
    EXPECT_EQ(places->at(3).frame, (WindowRectangle{32767, -32767, 0, 0}));
}

TEST(I3Layout, RejectsAnswersOfAnotherKind) {
    for (const char* text : {"", "[]", "7", "{", "null"}) {
        EXPECT_FALSE(i3Places(text)) << text;
        EXPECT_FALSE(i3Succeeded(text)) << text;
        EXPECT_TRUE(i3WorkAreas(text).empty()) << text;
    }
    EXPECT_FALSE(i3Succeeded(R"([{"success":true},{"success":false}])"));
    EXPECT_TRUE(i3WorkAreas(R"([{"visible":false,"rect":{}},3])").empty());
}

}  // namespace
}  // namespace kinesta
