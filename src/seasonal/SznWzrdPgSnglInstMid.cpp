#include "seasonal/SznWzrdPgSnglInstMid.h"
