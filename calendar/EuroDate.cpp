#include "calendar/EuroDate.h"
