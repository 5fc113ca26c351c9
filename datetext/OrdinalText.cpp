#include "datetext/OrdinalText.h"
