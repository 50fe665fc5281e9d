#include "platform/desktop.h"

Desktop desktop;
