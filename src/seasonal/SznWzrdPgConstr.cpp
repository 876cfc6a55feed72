#include "seasonal/SznWzrdPgConstr.h"
