#include "windows/ManualAddress.h"

#include <algorithm>
#include <array>

#include "text/AsciiCase.h"

namespace calvoro {
namespace {

constexpr std::array<std::string_view, 4> kReservedDomains = {"example", "example.com", "example.net",
                                                              "example.org"};

std::string_view Host(std::string_view address) {
    constexpr std::string_view kAfterScheme = "://";
    const std::size_t scheme = address.find(kAfterScheme);
    if (scheme == std::string_view::npos) return {};
    address.remove_prefix(scheme + kAfterScheme.size());
    std::string_view host = address.substr(0, address.find_first_of(":/?#"));
    if (host.ends_with('.')) host.remove_suffix(1);
    return host;
}

/// Whether a host is a domain or lies below it.
bool Within(std::string_view host, std::string_view domain) {
    if (host.size() < domain.size()) return false;
    const std::size_t before = host.size() - domain.size();
    return EqualsIgnoringCase(host.substr(before), domain) && (before == 0 || host[before - 1] == '.');
}

}  // namespace

std::string ManualAddress(const WebAddresses& addresses, LanguageNumber language) {
    const bool german = language == LanguageGerman;
    const std::string& online = german ? addresses.manualGerman : addresses.manualEnglish;
    const std::string& installed =
        german ? addresses.installedManualGerman : addresses.installedManualEnglish;
    return IsReservedForExamples(online) && !installed.empty() ? installed : online;
}

bool IsReservedForExamples(std::string_view address) {
    const std::string_view host = Host(address);
    return std::any_of(kReservedDomains.begin(), kReservedDomains.end(),
                       [host](std::string_view domain) { return Within(host, domain); });
}

}  // namespace calvoro
