#include "calendar/OrdinalDate.h"

#include "calendar/CheckedInt.h"

namespace calvoro {

std::int32_t OrdinalToJdn(std::int32_t year, std::int32_t dayOfYear) {
    using namespace formula;
    return NarrowToInt32(DaysBeforeCommonEraYear(std::int64_t{year} - 1) + dayOfYear - 1 + kCommonEraJanuary);
}

}  // namespace calvoro
