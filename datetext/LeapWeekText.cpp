#include "datetext/LeapWeekText.h"
