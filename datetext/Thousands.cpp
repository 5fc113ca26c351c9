#include "datetext/Thousands.h"
