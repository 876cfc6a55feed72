#include "seasonal/SznWzrdPgMult.h"
