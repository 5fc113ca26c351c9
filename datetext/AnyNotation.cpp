#include "datetext/AnyNotation.h"
