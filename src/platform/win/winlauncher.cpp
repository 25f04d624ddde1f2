#include "winlauncher.h"
