#include "calendar/OrdinalDate.h"
