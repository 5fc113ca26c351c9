#include "datetext/DayNumberText.h"
