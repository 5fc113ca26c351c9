#include "windows/ManualAddress.h"

#include <gtest/gtest.h>

#include "tests/support/RowName.h"

namespace calvoro {
namespace {

struct AddressRow {
    const char* name;
    const char* address;
    bool reserved;
};

void PrintTo(const AddressRow& row, std::ostream* out) {
    *out << row.address;
}

class ReservedAddress : public testing::TestWithParam<AddressRow> {};

TEST_P(ReservedAddress, IsToldByItsHost) {
    EXPECT_EQ(IsReservedForExamples(GetParam().address), GetParam().reserved);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReservedAddress,
    testing::Values(AddressRow{"OurDefault", "https://vantorel.example/calvoro/manual/en/", true},
                    AddressRow{"WithoutPath", "https://vantorel.example", true},
                    AddressRow{"TheDomainItself", "https://example/", true},
                    AddressRow{"InCapitals", "HTTPS://VANTOREL.EXAMPLE/manual", true},
                    AddressRow{"WithPort", "http://vantorel.example:8080/manual", true},
                    AddressRow{"WithFinalDot", "https://vantorel.example./manual", true},
                    AddressRow{"WithQuery", "https://vantorel.example?page=1", true},
                    AddressRow{"SecondLevel", "https://www.example.com/", true},
                    AddressRow{"SecondLevelItself", "https://example.org/manual", true},
                    AddressRow{"RealDomain", "https://calvoro.org/manual/en/", false},
                    AddressRow{"OnlyInThePath", "https://calvoro.org/vantorel.example/", false},
                    AddressRow{"OnlyInTheQuery", "https://calvoro.org/?from=vantorel.example", false},
                    AddressRow{"OnlyAtTheBeginning", "https://vantorel.example.org.uk/", false},
                    AddressRow{"OnlyTheSameEnd", "https://counterexample/", false},
                    AddressRow{"OnlyTheSameEndOfSecondLevel", "https://myexample.com/", false},
                    AddressRow{"NoAddress", "", false}),
    RowName<AddressRow>);

WebAddresses Addresses() {
    WebAddresses addresses;
    addresses.manualEnglish = "https://vantorel.example/en/";
    addresses.manualGerman = "https://vantorel.example/de/";
    addresses.installedManualEnglish = "file:///usr/share/doc/calvoro/html/en/index.html";
    addresses.installedManualGerman = "file:///usr/share/doc/calvoro/html/de/index.html";
    return addresses;
}

TEST(ManualAddress, IsTheInstalledManualWhileTheOnlineOneIsReserved) {
    EXPECT_EQ(ManualAddress(Addresses(), LanguageEnglish), Addresses().installedManualEnglish);
    EXPECT_EQ(ManualAddress(Addresses(), LanguageGerman), Addresses().installedManualGerman);
    EXPECT_EQ(ManualAddress(Addresses(), LanguageSpanish), Addresses().installedManualEnglish);
}

TEST(ManualAddress, IsTheOnlineManualOnceThereIsOne) {
    WebAddresses addresses = Addresses();
    addresses.manualEnglish = "https://calvoro.org/en/";
    EXPECT_EQ(ManualAddress(addresses, LanguageEnglish), "https://calvoro.org/en/");
    EXPECT_EQ(ManualAddress(addresses, LanguageGerman), addresses.installedManualGerman);
}

TEST(ManualAddress, IsTheOnlineManualWhenNoneIsInstalled) {
    WebAddresses addresses = Addresses();
    addresses.installedManualGerman.clear();
    EXPECT_EQ(ManualAddress(addresses, LanguageEnglish), addresses.installedManualEnglish);
    EXPECT_EQ(ManualAddress(addresses, LanguageGerman), "https://vantorel.example/de/");
}

}  // namespace
}  // namespace calvoro
