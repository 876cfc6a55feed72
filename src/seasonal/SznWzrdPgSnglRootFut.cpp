#include "seasonal/SznWzrdPgSnglRootFut.h"
