#include "datetext/EuroDateText.h"
