#pragma once

#include "windows/CaptionButton.h"
