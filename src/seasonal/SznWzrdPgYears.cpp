#include "seasonal/SznWzrdPgYears.h"
