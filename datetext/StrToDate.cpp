#include "datetext/StrToDate.h"
