#include "windows/list/lines/Records.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace calvoro {
namespace {

constexpr FieldShape kCsv{',', true};
constexpr FieldShape kTabs{'\t', false};
constexpr FieldShape kPlain{};

std::vector<std::string> Texts(std::string_view line, const FieldShape& shape, std::size_t most = 256) {
    std::vector<std::string_view> fields;
    SplitFields(line, shape, most, fields);
    std::vector<std::string> texts;
    std::string scratch;
    for (const std::string_view field : fields) texts.emplace_back(FieldText(field, shape, scratch));
    return texts;
}

using Strings = std::vector<std::string>;

TEST(Fields, AreDividedByTheDelimiter) {
    EXPECT_EQ(Texts("a,b,,c", kCsv), (Strings{"a", "b", "", "c"}));
    EXPECT_EQ(Texts("a,b\t\tc", kTabs), (Strings{"a,b", "", "c"}));
    EXPECT_EQ(Texts("a,b\tc", kPlain), (Strings{"a,b\tc"}));
    EXPECT_EQ(Texts("", kCsv), Strings{""});
    EXPECT_EQ(Texts(",", kCsv), (Strings{"", ""}));
}

TEST(Fields, LoseTheirQuotes) {
    EXPECT_EQ(Texts("\"a,b\",c", kCsv), (Strings{"a,b", "c"}));
    EXPECT_EQ(Texts("\"a,\",\",b\",c", kCsv), (Strings{"a,", ",b", "c"}));
    EXPECT_EQ(Texts("\"a \"\"b\"\"\",c", kCsv), (Strings{"a \"b\"", "c"}));
    EXPECT_EQ(Texts("\"a\"b,c", kCsv), (Strings{"ab", "c"}));
    EXPECT_EQ(Texts("a\"b,c\"", kCsv), (Strings{"a\"b", "c\""}));
    EXPECT_EQ(Texts("\"\",\"\"\"\"", kCsv), (Strings{"", "\""}));
    EXPECT_EQ(Texts("\"a,b", kCsv), (Strings{"\"a", "b"}));
    EXPECT_EQ(Texts("\"a\"", kTabs), Strings{"\"a\""});
}

TEST(Fields, KeepTheRestInTheLastOne) {
    EXPECT_EQ(Texts("a,b,c,d", kCsv, 2), (Strings{"a", "b,c,d"}));
    EXPECT_EQ(Texts("a,b", kCsv, 1), Strings{"a,b"});
}

TEST(Fields, AreOneWhereNothingDividesThem) {
    EXPECT_EQ(CountFields("a,b\tc", kPlain), 1);
    EXPECT_EQ(CountFields("", kPlain), 1);
}

TEST(Fields, AreFoundOneByOneAsAllAtOnce) {
    for (const std::string line : {"a,b,,c", "", ",", "\"a,b\",c", "\"a,\",b", "\"a,b", "a,\"b\nc\",d"}) {
        std::vector<std::string_view> fields;
        SplitFields(line, kCsv, 256, fields);
        EXPECT_EQ(CountFields(line, kCsv), fields.size()) << line;
        for (std::size_t i = 0; i < fields.size(); ++i) EXPECT_EQ(FieldAt(line, kCsv, i), fields[i]) << line;
        EXPECT_EQ(FieldAt(line, kCsv, fields.size()), "") << line;
    }
}

}  // namespace
}  // namespace calvoro
