#pragma once

#include "windows/QtText.h"
