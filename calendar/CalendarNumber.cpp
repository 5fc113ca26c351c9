#include "calendar/CalendarNumber.h"
