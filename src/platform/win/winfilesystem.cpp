#include "winfilesystem.h"
