#include "datetext/Tags.h"
