#include "calendar/MonthArithmetic.h"
