#include "seasonal/SznWzrdPgSeason.h"
