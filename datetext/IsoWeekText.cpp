#include "datetext/IsoWeekText.h"
