#include "compute/DateStep.h"
