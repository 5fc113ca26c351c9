#include "calendar/YearsAndMonths.h"
