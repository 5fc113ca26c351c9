#include "mainwindow/SettingsFile.h"
