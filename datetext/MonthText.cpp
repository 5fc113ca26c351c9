#include "datetext/MonthText.h"
