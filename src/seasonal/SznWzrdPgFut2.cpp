#include "seasonal/SznWzrdPgFut2.h"
