#include "seasonal/SznWzrdPgYrCount.h"
