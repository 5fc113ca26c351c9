#include "text/ProgramTextFile.h"
