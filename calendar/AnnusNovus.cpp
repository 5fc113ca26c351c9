#include "calendar/AnnusNovus.h"
