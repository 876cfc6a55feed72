#include "seasonal/SznWzrdPgSnglInst.h"
