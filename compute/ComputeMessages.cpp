#include "compute/ComputeMessages.h"
