#pragma once

// The Annus Novus calendar is carried by the data model (code A) but offered nowhere, so its two
// conversions are named operations that report failure and leave the record alone.

#include "calendar/DateRecord.h"

namespace calvoro {

/// returns false: there is no conversion; the record is unchanged
bool jdn_to_annus_novus_date(DateRecord& record);

/// returns false: there is no conversion; the record is unchanged
bool annus_novus_date_to_jdn(DateRecord& record);

}  // namespace calvoro
