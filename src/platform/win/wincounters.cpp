#include "wincounters.h"
