#include "text/DateNames.h"
