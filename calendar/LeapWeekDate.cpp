#include "calendar/LeapWeekDate.h"
