#include "calendar/AnnusNovus.h"

namespace calvoro {

bool jdn_to_annus_novus_date(DateRecord& /*record*/) {
    return false;
}

bool annus_novus_date_to_jdn(DateRecord& /*record*/) {
    return false;
}

}  // namespace calvoro
