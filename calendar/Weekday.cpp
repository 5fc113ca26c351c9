#include "calendar/Weekday.h"
