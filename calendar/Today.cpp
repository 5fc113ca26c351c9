#include "calendar/Today.h"
