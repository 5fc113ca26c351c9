#include "text/ProgramText.h"
