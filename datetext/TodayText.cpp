#include "datetext/TodayText.h"
