#include "datetext/KeyFilter.h"
