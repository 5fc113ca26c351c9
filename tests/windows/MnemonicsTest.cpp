#include "windows/Mnemonics.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSet>

namespace calvoro {
namespace {

std::string Marked(const QStringList& captions) {
    return WithMnemonics(captions).join(QStringLiteral("|")).toStdString();
}

TEST(WithMnemonics, MarksTheBeginningOfTheFirstWord) {
    EXPECT_EQ(Marked({QStringLiteral("Close")}), "&Close");
}

TEST(WithMnemonics, GivesNoKeyTwice) {
    EXPECT_EQ(Marked({QStringLiteral("Close"), QStringLiteral("Copy to clipboard")}),
              "&Close|Copy &to clipboard");
    EXPECT_EQ(Marked({QStringLiteral("Ab"), QStringLiteral("aC"), QStringLiteral("A")}), "A&b|a&C|&A");
}

TEST(WithMnemonics, LeavesACaptionWithoutAFreeKeyAsItIs) {
    EXPECT_EQ(Marked({QStringLiteral("A"), QStringLiteral("a"), QStringLiteral("->")}), "&A|a|->");
    EXPECT_EQ(Marked({}), "");
    EXPECT_EQ(Marked({QString()}), "");
}

TEST(WithMnemonics, UsesDigitsAndPlainLettersOnly) {
    EXPECT_EQ(Marked({QStringLiteral("\u00DCber")}), "\u00DC&ber");
    EXPECT_EQ(Marked({QStringLiteral("1.")}), "&1.");
}

TEST(WithMnemonics, MovesEarlierCaptionsToLetLaterOnesIn) {
    // Each can have a key only when the ones before give way, twice over.
    EXPECT_EQ(Marked({QStringLiteral("ABC"), QStringLiteral("AB"), QStringLiteral("A")}), "AB&C|A&B|&A");
}

TEST(WithMnemonics, LetsThoseThatAreServedFirstKeepTheirKeys) {
    const QStringList captions = {QStringLiteral("ABC"), QStringLiteral("AB"), QStringLiteral("A")};
    EXPECT_EQ(WithMnemonics(captions, 1).join(QStringLiteral("|")).toStdString(), "&ABC|A&B|A");
    EXPECT_EQ(WithMnemonics(captions, 2).join(QStringLiteral("|")).toStdString(), "&ABC|A&B|A");
    EXPECT_EQ(WithMnemonics(
                  {QStringLiteral("A"), QStringLiteral("AB"), QStringLiteral("B"), QStringLiteral("BC")}, 1)
                  .join(QStringLiteral("|"))
                  .toStdString(),
              "&A|A&B|B|B&C");
}

TEST(WithoutMnemonic, GivesTheCaptionBack) {
    EXPECT_EQ(WithoutMnemonic(QStringLiteral("Copy &to clipboard")).toStdString(), "Copy to clipboard");
    EXPECT_EQ(WithoutMnemonic(QStringLiteral("Close")).toStdString(), "Close");
}

}  // namespace
}  // namespace calvoro
