#include "seasonal/SznWzrdPgCashSprd.h"
