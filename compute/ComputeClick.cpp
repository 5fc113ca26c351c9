#include "compute/ComputeClick.h"
