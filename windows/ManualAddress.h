#pragma once

// Which page the link to the manual opens.

#include <string>
#include <string_view>

#include "text/Language.h"
#include "windows/WebAddresses.h"

namespace calvoro {

/// The page to open for the manual: the configured online page; but while that one lies in a domain reserved
/// for examples, where no page can ever be, the installed manual, if there is one.
/// language  of the interface: German gets the German manual, every other one the English
std::string ManualAddress(const WebAddresses& addresses, LanguageNumber language);

/// Whether the host of an address is one that is reserved for examples: "example" and everything below it,
/// example.com, example.net, example.org and everything below them.
/// source  RFC 2606, RFC 6761
bool IsReservedForExamples(std::string_view address);

}  // namespace calvoro
