#include "calendar/IsoWeekDate.h"
