#include "datetext/DayCountText.h"
