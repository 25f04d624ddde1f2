#include "winiconextractor.h"
