#include "seasonal/SznWzrdPgFut1.h"
