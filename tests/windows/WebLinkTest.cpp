#include "windows/WebLink.h"

#include <gtest/gtest.h>

#include <ostream>

#include "tests/support/FakePlatform.h"

namespace calvoro {
namespace {

struct LaunchRow {
    const char* name;
    int result;
    std::string_view address;
    std::string_view message;  // empty for a success
};
void PrintTo(const LaunchRow& row, std::ostream* out) {
    *out << row.result << " for " << row.address;
}

class OpenWebPageWith : public testing::TestWithParam<LaunchRow> {};

TEST_P(OpenWebPageWith, TellsWhyItFailed) {
    FakePlatform fake;
    fake.web.results = {GetParam().result};
    OpenWebPage(fake.web, fake.boxes, GetParam().address);
    if (GetParam().message.empty()) {
        EXPECT_TRUE(fake.boxes.shown.empty());
    } else {
        const ShownMessage expected{std::string(GetParam().message), "Cannot launch web browser",
                                    MessageIcon::Exclamation};
        ASSERT_EQ(fake.boxes.shown.size(), 1U);
        EXPECT_EQ(fake.boxes.shown[0], expected);
    }
    EXPECT_TRUE(fake.Settled());
}

constexpr std::string_view kPage = "https://pages.example/Manual.HTML";

INSTANTIATE_TEST_SUITE_P(
    Rows, OpenWebPageWith,
    testing::Values(LaunchRow{"Success", 33, kPage, ""}, LaunchRow{"LargeSuccess", 4242, kPage, ""},
                    LaunchRow{"NotAssociated", 31, kPage,
                              "Error launching web browser, error code = 31.\r\n\r\n"
                              "File extension 'html' is not associated with any application program."},
                    LaunchRow{"NotAssociatedWithoutExtension", 31, "https://localhost/manual",
                              "Error launching web browser, error code = 31.\r\n\r\n"
                              "File extension '' is not associated with any application program."},
                    LaunchRow{"PercentInTheExtension", 31, "https://pages.example/a.%41",
                              "Error launching web browser, error code = 31.\r\n\r\n"
                              "File extension '%41' is not associated with any application program."},
                    LaunchRow{"OutOfMemory", 8, kPage,
                              "Error launching web browser, error code = 8.\r\n\r\nOut of memory."},
                    LaunchRow{"OnceMore", 2, kPage,
                              "Error launching web browser, error code = 2.\r\n\r\nPlease try once more."},
                    LaunchRow{"AnyOther", 5, kPage, "Error launching web browser, error code = 5."},
                    LaunchRow{"GreatestFailure", 32, kPage, "Error launching web browser, error code = 32."},
                    LaunchRow{"Zero", 0, kPage, "Error launching web browser, error code = 0."},
                    LaunchRow{"Negative", -3, kPage, "Error launching web browser, error code =-3."}),
    [](const testing::TestParamInfo<LaunchRow>& row) { return std::string(row.param.name); });

TEST(OpenWebPage, TellsOfAFailureThatShowsLater) {
    FakePlatform fake;
    fake.web.results = {33};
    OpenWebPage(fake.web, fake.boxes, kPage);
    ASSERT_TRUE(fake.boxes.shown.empty());
    fake.web.failLater(31);
    const ShownMessage expected{
        "Error launching web browser, error code = 31.\r\n\r\n"
        "File extension 'html' is not associated with any application program.",
        "Cannot launch web browser", MessageIcon::Exclamation};
    ASSERT_EQ(fake.boxes.shown.size(), 1U);
    EXPECT_EQ(fake.boxes.shown[0], expected);
}

std::string OpenedFor(std::string_view address) {
    FakePlatform fake;
    fake.web.results = {33};
    OpenWebPage(fake.web, fake.boxes, address);
    return fake.web.opened.at(0).address;
}

TEST(OpenWebPage, DeliberatelyOpensEveryHttpAddressSecurely) {
    EXPECT_EQ(OpenedFor("http://pages.example/"), "https://pages.example/");
    EXPECT_EQ(OpenedFor("https://pages.example/"), "https://pages.example/");
    EXPECT_EQ(OpenedFor("http://a.example/?next=http://b.example/"),
              "https://a.example/?next=https://b.example/");
    EXPECT_EQ(OpenedFor(""), "");
}

TEST(OpenWebPage, DeliberatelyHandsOnZeroTextsAndTheNormalWindowState) {
    FakePlatform fake;
    fake.web.results = {33};
    OpenWebPage(fake.web, fake.boxes, kPage);
    const OpenedAddress expected{std::string(kPage), "0", "0", 1};
    ASSERT_EQ(fake.web.opened.size(), 1U);
    EXPECT_EQ(fake.web.opened[0], expected);
}

TEST(FileExtension, IsWhatFollowsTheLastDotOfTheLastComponent) {
    EXPECT_EQ(FileExtension("C:\\Files\\Report.TXT", true), "txt");
    EXPECT_EQ(FileExtension("C:\\Files\\Report.TXT", false), "TXT");
    EXPECT_EQ(FileExtension("a.b.c", false), "c");
    EXPECT_EQ(FileExtension("name.", true), "");
    EXPECT_EQ(FileExtension(".Profile", true), "profile");
}

TEST(FileExtension, IsEmptyWithoutADotInTheLastComponent) {
    EXPECT_EQ(FileExtension("C:\\folder.old\\name", true), "");
    EXPECT_EQ(FileExtension("name", true), "");
    EXPECT_EQ(FileExtension("name.txt\\", true), "");
    EXPECT_EQ(FileExtension("", true), "");
}

TEST(FileExtension, TakesTheBackslashAloneForASeparator) {
    EXPECT_EQ(FileExtension("https://pages.example/manual", true), "example/manual");
}

}  // namespace
}  // namespace calvoro
